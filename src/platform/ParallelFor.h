#pragma once

#include <cstddef>
#include <functional>

namespace marlevo {

/// Runs work(0) … work(count − 1), each once and in any order, on all cores that the program may
/// use, and returns when all are done. The calling thread works too. With one core, and during
/// another call, it does all the work.
///
/// The calls of `work` run at the same time, so they must not change the same objects. Their
/// changes are visible to the caller afterwards. The first exception that one of them throws is
/// rethrown when all threads have stopped; some indices are then left out.
void parallelFor(std::size_t count, const std::function<void(std::size_t)>& work);

/// Keeps the calls of parallelFor() by this thread on this thread, for the time of its existence:
/// for background work, so that the other cores stay free for the user interface.
class OneCore {
public:
    OneCore();
    ~OneCore();
    OneCore(const OneCore&) = delete;
    OneCore& operator=(const OneCore&) = delete;

private:
    bool before_;
};

}  // namespace marlevo
