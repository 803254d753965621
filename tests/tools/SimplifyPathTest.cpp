#include "tools/SimplifyPath.h"

#include "tests/tools/FillDefinition.h"

#include <gtest/gtest.h>

#include <random>

using namespace marlevo;

namespace {

using Points = std::vector<GridPoint>;

int within(std::mt19937& random, int lowest, int highest) {
    return std::uniform_int_distribution(lowest, highest)(random);
}

void expectPointsOfTheDefinition(const Points& path) {
    for (const double epsilon : {0.0, 0.5, 1.0, 2.0, 7.25}) {
        EXPECT_EQ(simplifyPath(path, epsilon), filldefinition::simplified(path, epsilon))
            << path.size() << " points, epsilon " << epsilon;
    }
}

Points closed(Points path) {
    path.push_back(path.front());
    return path;
}

TEST(SimplifyPath, KeepsThePointsOfTheDefinitionOnRandomWalks) {
    std::mt19937 random(5);
    for (int walk = 0; walk < 300; ++walk) {
        const int reach = 1 << within(random, 0, 10);
        // Straight stretches, and a fence that makes the path meet itself and ties frequent.
        const int persistence = within(random, 0, 8);
        const int fence = within(random, 2, 4 * reach);
        Points path{{0, 0}};
        GridPoint step;
        for (int i = within(random, 0, 2000); i > 0; --i) {
            if (within(random, 0, persistence) == 0) {
                step = {within(random, -reach, reach), within(random, -reach, reach)};
            }
            path.push_back({std::clamp(path.back().x + step.x, -fence, fence),
                            std::clamp(path.back().y + step.y, -fence, fence)});
        }
        expectPointsOfTheDefinition(path);
        expectPointsOfTheDefinition(closed(path));
    }
}

TEST(SimplifyPath, KeepsTheEarliestOfManyEquallyFarPoints) {
    std::mt19937 random(6);
    for (int trial = 0; trial < 100; ++trial) {
        Points path;
        const int side = within(random, 1, 4);
        for (int i = within(random, 1, trial < 50 ? 5 : 700); i > 0; --i) {
            path.push_back({within(random, 0, side), within(random, 0, side)});
        }
        expectPointsOfTheDefinition(path);
        expectPointsOfTheDefinition(closed(path));
    }
}

TEST(SimplifyPath, RoundsAsTheDefinitionOnPathsOfEnormousExtent) {
    std::mt19937 random(7);
    for (const int extent : {(1 << 24) - 1, (1 << 24) + 1, 1 << 30}) {
        for (int trial = 0; trial < 200; ++trial) {
            // Distances just above a power of two have fewer digits than the products that they
            // are computed from: points tie only after the division.
            const int width = extent - within(random, 0, 1000);
            const int height = extent / 2 + within(random, 2, 1000);
            Points path{{0, 0}};
            for (int i = 0; i < 40; ++i)
                path.push_back({within(random, 0, 2000), height});
            path.push_back({width, 1});
            expectPointsOfTheDefinition(path);
        }
    }
}

/// Paths on which each split parts off few points: the plain algorithm takes a quadratic number of
/// steps and recurses as deeply as the path is long.
Points fence(int posts, GridPoint along, GridPoint across) {
    Points path;
    for (int i = 0; i < posts; ++i) {
        const int height = i % 2;
        path.push_back({i * along.x + height * across.x, i * along.y + height * across.y});
    }
    return path;
}

Points growingZigzag(int corners) {
    Points path;
    for (int i = 0; i < corners; ++i)
        path.push_back({i, i % 2 == 0 ? i : -i});
    return path;
}

TEST(SimplifyPath, IsNeitherSlowNorDeepWhereThePlainAlgorithmIs) {
    const auto slanted = [](int posts) { return fence(posts, {2, 1}, {-4, 9}); };
    const auto upright = [](int posts) { return fence(posts, {1, 0}, {0, 5}); };
    expectPointsOfTheDefinition(slanted(2000));
    expectPointsOfTheDefinition(upright(2000));
    expectPointsOfTheDefinition(growingZigzag(2000));

    // The plain algorithm would take 10¹¹ steps and more for each; every corner must stay.
    for (const Points& path : {slanted(400'000), upright(400'000), growingZigzag(400'000)}) {
        EXPECT_EQ(simplifyPath(path, 1), path);
    }
}

}  // namespace
