#pragma once

#include <cstddef>
#include <functional>

namespace marlevo {

/// Runs work(0) … work(count − 1), each once and in any order, on all cores that the program may
/// use, and returns when all are done. The calling thread works too; with one core, or while
/// another call is under way, it does everything itself.
///
/// What the work does with one index must not touch what it does with another; all of it is visible
/// to the caller afterwards. The first exception that it throws comes out here when all threads
/// have stopped; some indices are then left out.
void parallelFor(std::size_t count, const std::function<void(std::size_t)>& work);

}  // namespace marlevo
