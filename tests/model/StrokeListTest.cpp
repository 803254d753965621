#include "model/StrokeList.h"

#include "model/StrokeDifference.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <atomic>
#include <cmath>
#include <limits>
#include <random>
#include <thread>
#include <vector>

using namespace marlevo;

namespace {

/// A stroke at a random place in 1000 × 1000. Its colour identifies it.
Stroke makeStroke(double mark, std::mt19937& random) {
    std::uniform_real_distribution<double> position(0, 1000);
    std::uniform_real_distribution<double> width(0, 20);
    const Point start{position(random), position(random)};
    Stroke stroke;
    stroke.points = {start, {start.x + width(random), start.y + width(random)}};
    stroke.color.red = mark;
    stroke.lineWidth = width(random);
    return stroke;
}

bool same(const Stroke& a, const Stroke& b) {
    return a.points == b.points && a.color == b.color && a.lineWidth == b.lineWidth;
}

/// A list and the plain vector that it must equal.
struct Twin {
    StrokeList list;
    std::vector<Stroke> plain;

    void append(const Stroke& stroke) {
        list.append(stroke);
        plain.push_back(stroke);
    }
    void erase(std::size_t at) {
        list.erase(at);
        plain.erase(plain.begin() + at);
    }
    void replace(std::size_t at, const Stroke& stroke) {
        list.replace(at, stroke);
        plain[at] = stroke;
    }
    void modify(std::size_t at) {
        const auto change = [](Stroke& stroke) {
            stroke.points = {{-1, -1}, {2000, 3}};
            stroke.color.green += 1;
        };
        list.modify(at, change);
        change(plain[at]);
    }
    void clear() {
        list.clear();
        plain.clear();
    }

    void check() const {
        ASSERT_EQ(list.size(), plain.size());
        ASSERT_TRUE(std::equal(list.begin(), list.end(), plain.begin(), plain.end(), same));
        StrokeSummary sum;
        for (const Stroke& stroke : plain)
            sum.add(StrokeSummary::of(stroke));
        const StrokeSummary summary = list.summary();
        EXPECT_EQ(summary.count, sum.count);
        EXPECT_EQ(summary.minX, sum.minX);
        EXPECT_EQ(summary.minY, sum.minY);
        EXPECT_EQ(summary.maxX, sum.maxX);
        EXPECT_EQ(summary.maxY, sum.maxY);
        EXPECT_EQ(summary.maxLineWidth, sum.maxLineWidth);
    }
};

class RandomEdits {
public:
    explicit RandomEdits(unsigned seed) : random_(seed) {}

    std::size_t below(std::size_t limit) {
        return std::uniform_int_distribution<std::size_t>(0, limit - 1)(random_);
    }
    Stroke stroke() { return makeStroke(++made_, random_); }

    void step(Twin& twin) {
        const std::size_t choice = below(100);
        const std::size_t size = twin.plain.size();
        if (size == 0 || choice < 45) {
            // Runs of strokes, so that leaves and branches fill up and spill over.
            for (std::size_t n = below(choice < 3 ? 2000 : 40); n > 0; --n)
                twin.append(stroke());
        } else if (choice < 60) {
            for (std::size_t n = std::min(size, below(60)), at = below(size); n > 0; --n)
                twin.erase(std::min(at, twin.plain.size() - 1));
        } else if (choice < 75) {
            twin.erase(below(2) ? size - 1 : below(size));
        } else if (choice < 87) {
            twin.replace(below(size), stroke());
        } else if (choice < 99) {
            twin.modify(below(size));
        } else if (below(3) == 0) {
            twin.clear();
        } else {
            // Sparse branches, which later strokes fill up again.
            for (std::size_t at = size; at-- > 0;)
                if (at % 100 != 0) twin.erase(at);
        }
    }

private:
    std::mt19937 random_;
    double made_ = 0;
};

TEST(StrokeList, EqualsAVectorThroughRandomEditsAndKeepsOldVersions) {
    for (unsigned seed = 1; seed <= 2; ++seed) {
        RandomEdits edits(seed);
        std::vector<Twin> versions(1);
        for (int step = 0; step < 500; ++step) {
            // Mostly continues with the newest version, sometimes with an older one.
            Twin next =
                edits.below(10) == 0 ? versions[edits.below(versions.size())] : versions.back();
            if (edits.below(8) == 0) versions.clear();
            for (std::size_t n = edits.below(4); n > 0; --n)
                edits.step(next);
            versions.push_back(std::move(next));
            if (versions.size() > 12) versions.erase(versions.begin() + edits.below(12));
            if (step % 100 != 0) continue;
            for (const Twin& version : versions)
                ASSERT_NO_FATAL_FAILURE(version.check());
        }
        for (const Twin& version : versions) {
            ASSERT_NO_FATAL_FAILURE(version.check());
            for (std::size_t at = 0; at < version.plain.size(); at += 7)
                ASSERT_TRUE(same(version.list[at], version.plain[at]));
        }
    }
}

TEST(StrokeList, SharesWithCopiesUntilOneChanges) {
    RandomEdits edits(2);
    for (const int size : {0, 5, 32, 1000}) {
        StrokeList list;
        for (int i = 0; i < size; ++i)
            list.append(edits.stroke());
        StrokeList copy = list;
        EXPECT_TRUE(copy.sharesWith(list));
        copy.append(edits.stroke());
        EXPECT_FALSE(copy.sharesWith(list));
        EXPECT_EQ(list.size(), static_cast<std::size_t>(size));
    }
}

TEST(StrokeList, VisitsWhatThePlainScanFindsInOrderAndStopsWhenAsked) {
    RandomEdits edits(3);
    Twin twin;
    for (int i = 0; i < 4000; ++i)
        twin.append(edits.stroke());
    Stroke lost = edits.stroke();
    lost.points = {{5, 5}, {std::numeric_limits<double>::quiet_NaN(), 5}, {6, 6}};
    twin.replace(1234, lost);
    Stroke wide = edits.stroke();
    wide.lineWidth = std::numeric_limits<double>::quiet_NaN();
    twin.replace(500, wide);

    for (int i = 0; i < 200; ++i) {
        // An index after both.
        const auto edited = [&] { return 2000 + edits.below(twin.plain.size() - 2000); };
        twin.replace(edited(), edits.stroke());
        twin.modify(edited());
        twin.erase(edited());
        for (std::size_t n = edits.below(3); n > 0; --n)
            twin.append(edits.stroke());
        const auto upTo = [&](std::size_t limit) {
            return static_cast<double>(edits.below(limit));
        };
        const Rect area{{upTo(1000), upTo(1000)}, {upTo(30), upTo(30)}};
        std::vector<std::size_t> expected;
        for (std::size_t at = 0; at < twin.plain.size(); ++at) {
            const Stroke& stroke = twin.plain[at];
            const Rect painted = stroke.boundingRect().grownBy(stroke.lineWidth / 2);
            if (at == 1234 || at == 500 ||
                (painted.minX() <= area.maxX() && painted.maxX() >= area.minX() &&
                 painted.minY() <= area.maxY() && painted.maxY() >= area.minY()))
                expected.push_back(at);
        }
        const std::size_t most = i % 2 == 0 ? 1 + edits.below(5) : twin.plain.size();
        const bool isWhole = expected.size() < most;
        if (!isWhole) expected.resize(most);
        std::vector<std::size_t> found;
        const auto visit = [&](std::size_t at, const Stroke& stroke, const FloatBox&) {
            EXPECT_EQ(stroke.color, twin.plain[at].color);
            found.push_back(at);
            return found.size() < most;
        };
        ASSERT_EQ(twin.list.visitNear(area, 0, visit), isWhole);
        ASSERT_EQ(found, expected);
    }
}

TEST(StrokeList, VisitMissesNothingByRounding) {
    RandomEdits edits(8);
    StrokeList list;
    std::vector<Point> places;
    for (int i = 0; i < 2000; ++i) {
        const auto coordinate = [&] {
            return std::ldexp(static_cast<double>(edits.below(1u << 31)) - 0x1p30,
                              static_cast<int>(edits.below(60)) - 40);
        };
        Stroke stroke = edits.stroke();
        stroke.lineWidth = 0;
        stroke.points = {places.emplace_back(Point{coordinate(), coordinate()})};
        list.append(stroke);
    }
    for (std::size_t wanted = 0; wanted < places.size(); ++wanted)
        EXPECT_FALSE(list.visitNear(
            {places[wanted], {}}, 0,
            [&](std::size_t at, const Stroke&, const FloatBox&) { return at != wanted; }))
            << wanted;
}

TEST(StrokeDifference, IsExactBetweenAnyTwoVersions) {
    RandomEdits edits(5);
    std::vector<Twin> versions(1);
    for (int step = 0; step < 200; ++step) {
        Twin next = edits.below(4) == 0 ? versions[edits.below(versions.size())] : versions.back();
        for (std::size_t n = edits.below(6); n > 0; --n)
            edits.step(next);
        versions.push_back(std::move(next));
        if (versions.size() > 8) versions.erase(versions.begin());

        const StrokeList& before = versions[edits.below(versions.size())].list;
        const StrokeList& after = versions[edits.below(versions.size())].list;
        const auto only = [](const StrokeList& in, const StrokeList& notIn) {
            std::vector<const Stroke*> others;
            for (const Stroke& stroke : notIn)
                others.push_back(&stroke);
            std::ranges::sort(others);
            std::vector<const Stroke*> rest;
            for (const Stroke& stroke : in)
                if (!std::ranges::binary_search(others, &stroke)) rest.push_back(&stroke);
            return rest;
        };
        const StrokeDifference difference = StrokeDifference::between(before, after);
        ASSERT_EQ(difference.removed, only(before, after));
        ASSERT_EQ(difference.added, only(after, before));

        constexpr std::size_t most = 40;
        if (const auto similar = StrokeDifference::betweenSimilar(before, after, most)) {
            ASSERT_EQ(similar->added, difference.added);
        } else {
            ASSERT_GT(difference.removed.size() + difference.added.size(), most);
        }
    }
}

TEST(StrokeList, CopiesMayBeUsedOnOtherThreadsWhileTheListChanges) {
    RandomEdits edits(8);
    StrokeList list;
    for (int i = 0; i < 2000; ++i)
        list.append(edits.stroke());
    for (int round = 0; round < 20; ++round) {
        std::vector<std::thread> readers;
        const Stroke extra = edits.stroke();
        for (int reader = 0; reader < 3; ++reader) {
            readers.emplace_back([copy = list, extra]() mutable {
                const StrokeSummary before = copy.summary();
                StrokeSummary sum;
                for (const Stroke& stroke : copy)
                    sum.add(StrokeSummary::of(stroke));
                EXPECT_EQ(sum.count, before.count);
                EXPECT_EQ(sum.maxX, before.maxX);
                for (int i = 0; i < 10; ++i)
                    copy.append(extra);
            });
        }
        for (int i = 0; i < 15; ++i)
            list.append(edits.stroke());
        list.erase(edits.below(list.size()));
        list.modify(edits.below(list.size()), [](Stroke& stroke) { stroke.opacity = 1; });
        for (std::thread& reader : readers)
            reader.join();
    }
    EXPECT_EQ(list.size(), 2000u + 20 * 14);
}

TEST(StrokeList, CopiesThatShareAnOpenLeafMayAppendOnTwoThreadsAtOnce) {
    RandomEdits edits(9);
    std::vector<std::array<Twin, 2>> pairs(4000);
    for (std::size_t i = 0; i < pairs.size(); ++i) {
        Twin shared;
        for (std::size_t n = 0; n < i % 31; ++n)
            shared.append(edits.stroke());
        pairs[i] = {shared, shared};
    }
    const std::array added{edits.stroke(), edits.stroke()};
    std::vector<std::atomic<int>> arrived(pairs.size());
    const auto appendToEach = [&](std::size_t thread) {
        for (std::size_t i = 0; i < pairs.size(); ++i) {
            // Spins at first, so that both append within nanoseconds where cores are free.
            ++arrived[i];
            for (int spins = 0; arrived[i] < 2; ++spins)
                if (spins > 2000) std::this_thread::yield();
            pairs[i][thread].append(added[thread]);
        }
    };
    std::thread other(appendToEach, 1);
    appendToEach(0);
    other.join();
    for (const auto& pair : pairs)
        for (const Twin& copy : pair)
            copy.check();
}

TEST(StrokeTree, LosesHeightWithItsStrokes) {
    using namespace stroke_tree;
    IntrusivePtr<Node> root;
    for (std::size_t i = 0; i < fanOut * fanOut; ++i) {
        auto leaf = IntrusivePtr<Leaf>::make();
        leaf->appendAfter(0, IntrusivePtr<Record>::make(Stroke{}));
        leaf->summarise();
        appendLeaf(root, std::move(leaf));
    }
    const auto eraseDownTo = [&](std::size_t count) {
        while (root->summary.count > count)
            erase(root, 0);
    };
    EXPECT_EQ(root->height, 2);
    eraseDownTo(fanOut + 1);
    EXPECT_EQ(root->height, 2);
    eraseDownTo(fanOut);
    EXPECT_EQ(root->height, 1);
    eraseDownTo(1);
    EXPECT_EQ(root->height, 0);
}

TEST(StrokeSummary, ReachesWhatTouchesByRoundingAlone) {
    std::mt19937 random(10);
    std::uniform_real_distribution<double> anywhere(-3000, 3000);
    std::uniform_real_distribution<double> margins(0, 100);
    int touching = 0;
    for (int i = 0; i < 10000; ++i) {
        const Point at{anywhere(random), anywhere(random)};
        const double margin = margins(random);
        Stroke stroke;
        stroke.points = {at};
        const StrokeSummary summary = StrokeSummary::of(stroke);
        // The next coordinate beyond the margin. Adding the margin to it rounds.
        const double left = std::nextafter(at.x - margin, -1e9);
        const double below = std::nextafter(at.y + margin, 1e9);
        if (left + margin >= at.x) {
            ++touching;
            EXPECT_TRUE(summary.reaches({{left, at.y}, {}}, margin)) << i;
        }
        if (below - margin <= at.y) {
            ++touching;
            EXPECT_TRUE(summary.reaches({{at.x, below}, {}}, margin)) << i;
        }
        EXPECT_FALSE(summary.reaches({{at.x - margin - 1e-6, at.y}, {}}, margin)) << i;
    }
    EXPECT_GT(touching, 1000);
}

}  // namespace
