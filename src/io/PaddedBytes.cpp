#include "io/PaddedBytes.h"

#include <algorithm>
#include <cstdlib>
#include <new>
#include <sys/mman.h>

namespace marlevo {

namespace {

constexpr std::size_t hugePage = std::size_t{2} << 20;

/// Allocates large memory in large pages where the system has them. With small pages the page
/// faults take longer than reading the file.
void* allocate(std::size_t size) {
    if (size < 2 * hugePage) return std::malloc(size);
    void* const memory = std::aligned_alloc(hugePage, (size + hugePage - 1) / hugePage * hugePage);
    // An error does no harm: the pages are small.
    if (memory != nullptr) ::madvise(memory, size, MADV_HUGEPAGE);
    return memory;
}

}  // namespace

PaddedBytes::PaddedBytes(std::size_t size)
    : data_(static_cast<std::uint8_t*>(allocate(size + padding)), std::free), size_(size) {
    if (!data_) throw std::bad_alloc();
    std::fill_n(data_.get() + size, padding, std::uint8_t{0});
}

}  // namespace marlevo
