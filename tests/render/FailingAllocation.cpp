#include "tests/render/FailingAllocation.h"

#include <cstdlib>
#include <new>

namespace {
thread_local std::int64_t successes = -1;  // none fails
}

// Not inlined, or gcc sees a new that does not match its delete.
[[gnu::noinline]] void* operator new(std::size_t size) {
    if (successes >= 0 && successes-- == 0) throw std::bad_alloc();
    if (void* memory = std::malloc(size)) return memory;
    throw std::bad_alloc();
}
[[gnu::noinline]] void operator delete(void* memory) noexcept { std::free(memory); }
[[gnu::noinline]] void operator delete(void* memory, std::size_t) noexcept { std::free(memory); }

namespace marlevo {

FailingAllocation::FailingAllocation(std::int64_t count) { successes = count; }
FailingAllocation::~FailingAllocation() { successes = -1; }

}  // namespace marlevo
