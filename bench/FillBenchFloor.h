// Included once for each instruction set, hence no include guard of its own.
#if defined(BENCH_FILL_BENCH_FLOOR_H) == defined(HWY_TARGET_TOGGLE)
#ifdef BENCH_FILL_BENCH_FLOOR_H
#undef BENCH_FILL_BENCH_FLOOR_H
#else
#define BENCH_FILL_BENCH_FLOOR_H
#endif

#include <hwy/highway.h>

#include <cstdint>
#include <span>

HWY_BEFORE_NAMESPACE();
namespace marlevo::HWY_NAMESPACE {

/// Reads each byte once, with as little work as possible.
inline std::uint8_t readOnce(std::span<const std::uint8_t> bytes) {
    namespace hn = hwy::HWY_NAMESPACE;
    const hn::ScalableTag<std::uint8_t> tag;
    const std::size_t step = hn::Lanes(tag);
    auto sum0 = hn::Zero(tag);
    auto sum1 = sum0;
    auto sum2 = sum0;
    auto sum3 = sum0;
    for (std::size_t at = 0; at + 4 * step <= bytes.size(); at += 4 * step) {
        const std::uint8_t* from = bytes.data() + at;
        sum0 = hn::Xor(sum0, hn::LoadU(tag, from));
        sum1 = hn::Xor(sum1, hn::LoadU(tag, from + step));
        sum2 = hn::Xor(sum2, hn::LoadU(tag, from + 2 * step));
        sum3 = hn::Xor(sum3, hn::LoadU(tag, from + 3 * step));
    }
    return hn::GetLane(hn::Xor(hn::Xor(sum0, sum1), hn::Xor(sum2, sum3)));
}

}  // namespace marlevo::HWY_NAMESPACE
HWY_AFTER_NAMESPACE();

#endif
