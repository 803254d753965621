#pragma once

#include <atomic>
#include <cstddef>
#include <future>
#include <system_error>

namespace marlevo {

/// Calls `work(i)` for each i below `count`, in any order, on this thread and a second one, which
/// ends before the call does. What work throws comes out here.
template <typename Work>
void onTwoThreads(std::size_t count, const Work& work) {
    std::atomic<std::size_t> next = 0;
    const auto share = [&] {
        for (std::size_t i = next++; i < count; i = next++)
            work(i);
    };
    std::future<void> helper;
    if (count > 1) {
        try {
            helper = std::async(std::launch::async, share);
        } catch (const std::system_error&) {
            // No thread to be had: the caller does it all.
        }
    }
    share();
    if (helper.valid()) helper.get();
}

}  // namespace marlevo
