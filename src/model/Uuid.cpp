#include "model/Uuid.h"

#include <random>

namespace marlevo {

namespace {

std::mt19937_64 seededGenerator() {
    std::random_device entropy;
    std::seed_seq seed{entropy(), entropy(), entropy(), entropy(),
                       entropy(), entropy(), entropy(), entropy()};
    return std::mt19937_64(seed);
}

}  // namespace

Uuid Uuid::random() {
    static thread_local std::mt19937_64 generator = seededGenerator();
    Uuid id;
    id.halves_[0] = (generator() & ~0xF000ULL) | 0x4000ULL;        // version 4
    id.halves_[1] = (generator() & ~(3ULL << 62)) | (2ULL << 62);  // variant 1
    return id;
}

}  // namespace marlevo
