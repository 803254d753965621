#pragma once

#include "graphics/AccumulationBuffer.h"
#include "graphics/DistanceField.h"
#include "graphics/FlattenedPath.h"

#include <cstddef>
#include <exception>
#include <vector>

namespace marlevo {

/// Memory that the rasteriser keeps from one shape to the next, one set per thread.
struct RasterScratch {
    FlattenedPath flattened;
    FlattenedPath outline;
    std::vector<Edge> edges;
    AccumulationBuffer accumulation;
    DistanceField field;

    static RasterScratch& ofThread() {
        thread_local RasterScratch scratch;
        return scratch;
    }

    /// Frees memory that only rare shapes need. The other members have bounds of their own.
    void trim() {
        constexpr std::size_t maxPoints = std::size_t{1} << 16;
        for (FlattenedPath* path : {&flattened, &outline})
            if (path->points.capacity() > maxPoints) *path = {};
        if (edges.capacity() > maxPoints) edges = std::vector<Edge>();
    }
};

/// Empties a scratch object if an exception ends the scope: a half-drawn stroke must not show in
/// the next one.
template <typename T>
class ResetOnException {
public:
    explicit ResetOnException(T& object) : object_(object) {}
    ~ResetOnException() {
        if (std::uncaught_exceptions() > before_) object_ = T();
    }
    ResetOnException(const ResetOnException&) = delete;
    ResetOnException& operator=(const ResetOnException&) = delete;

private:
    T& object_;
    int before_ = std::uncaught_exceptions();
};

}  // namespace marlevo
