#include "tools/FloodFill.h"

#include "tools/MatchRow.h"

#include <algorithm>
#include <bit>

namespace marlevo {
namespace {

/// The cells begin … end − 1 of one row.
struct Run {
    int begin;
    int end;
};

/// Calls `visit` with each maximal run of set bits, from west to east. The visitor may clear the
/// run that it is given.
template <class Visitor>
void forEachRun(std::span<const Region::Word> row, Visitor visit) {
    Run run{0, 0};
    Region::Word carry = 0;
    for (std::size_t i = 0; i < row.size(); ++i) {
        const Region::Word word = row[i];
        // A bit that differs from its western neighbour begins a run or follows its end.
        Region::Word edges = word ^ (word << 1 | carry);
        carry = word >> (Region::wordBits - 1);
        for (; edges != 0; edges &= edges - 1) {
            const int bit = std::countr_zero(edges);
            const int x = static_cast<int>(i) * Region::wordBits + bit;
            if (word >> bit & 1) {
                run.begin = x;
            } else {
                run.end = x;
                visit(run);
            }
        }
    }
    if (carry != 0) {
        run.end = static_cast<int>(row.size()) * Region::wordBits;
        visit(run);
    }
}

void clearRun(std::span<Region::Word> row, Run run) {
    constexpr Region::Word ones = ~Region::Word{0};
    const int first = run.begin / Region::wordBits;
    const int last = (run.end - 1) / Region::wordBits;
    const Region::Word fromBegin = ones << (run.begin % Region::wordBits);
    const Region::Word upToEnd = ones >> (Region::wordBits - 1 - (run.end - 1) % Region::wordBits);
    if (first == last) {
        row[first] &= ~(fromBegin & upToEnd);
        return;
    }
    row[first] &= ~fromBegin;
    std::fill(row.begin() + first + 1, row.begin() + last, Region::Word{0});
    row[last] &= ~upToEnd;
}

/// Disjoint sets of runs, numbered in the order in which they were added. A set's root is its
/// oldest run, so parents never have higher numbers than their children.
class RunSets {
public:
    using Number = std::uint32_t;

    Number add() {
        const auto number = static_cast<Number>(parents_.size());
        parents_.push_back(number);
        return number;
    }

    Number root(Number run) {
        while (parents_[run] != run) {
            parents_[run] = parents_[parents_[run]];
            run = parents_[run];
        }
        return run;
    }

    void join(Number a, Number b) {
        a = root(a);
        b = root(b);
        parents_[std::max(a, b)] = std::min(a, b);
    }

private:
    std::vector<Number> parents_;
};

/// The runs of one row, of which the first has the number `firstNumber`.
struct RowRuns {
    std::vector<Run> runs;
    RunSets::Number firstNumber = 0;
};

/// Joins each run of a row with the runs of the row above that share a column with it.
void joinRows(const RowRuns& above, const RowRuns& row, RunSets& sets) {
    std::size_t from = 0;
    for (std::size_t i = 0; i < row.runs.size(); ++i) {
        const Run run = row.runs[i];
        while (from < above.runs.size() && above.runs[from].end <= run.begin)
            ++from;
        for (std::size_t j = from; j < above.runs.size() && above.runs[j].begin < run.end; ++j) {
            sets.join(above.firstNumber + static_cast<RunSets::Number>(j),
                      row.firstNumber + static_cast<RunSets::Number>(i));
        }
    }
}

/// Removes every run whose set is not `wanted`. Visits the runs in the order of their numbers.
void keepSet(Region& region, RunSets& sets, RunSets::Number wanted) {
    RunSets::Number number = 0;
    for (int y = region.height() - 1; y >= 0; --y) {
        const std::span<Region::Word> row = region.row(y);
        forEachRun(row, [&](Run run) {
            if (sets.root(number++) != wanted) clearRun(row, run);
        });
    }
}

}  // namespace

Region floodFill(const RasterImage& image, GridPoint seed, int tolerance) {
    const int width = image.width();
    const int height = image.height();
    Region region(width, height);
    if (seed.x < 0 || seed.x >= width || seed.y < 0 || seed.y >= height) return region;

    const ColorRange range =
        ColorRange::around(image.pixel(seed.x, height - 1 - seed.y), tolerance);
    const std::size_t rowBytes = static_cast<std::size_t>(width) * RasterImage::bytesPerPixel;
    RunSets sets;
    RunSets::Number seedRun = 0;
    RowRuns above;
    RowRuns current;

    // From top to bottom, which is the order of the picture's memory.
    for (int y = height - 1; y >= 0; --y) {
        const auto imageRow = static_cast<std::size_t>(height - 1 - y);
        const std::span<Region::Word> row = region.row(y);
        matchRow(image.bytes().subspan(imageRow * rowBytes, rowBytes), range, row);

        std::swap(above, current);
        current.runs.clear();
        forEachRun(row, [&](Run run) {
            const RunSets::Number number = sets.add();
            if (current.runs.empty()) current.firstNumber = number;
            if (y == seed.y && run.begin <= seed.x && seed.x < run.end) seedRun = number;
            current.runs.push_back(run);
        });
        joinRows(above, current, sets);
    }
    keepSet(region, sets, sets.root(seedRun));
    return region;
}

}  // namespace marlevo
