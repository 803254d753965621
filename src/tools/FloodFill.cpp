#include "tools/FloodFill.h"

#include "tools/MatchBlock.h"

#include <queue>

#include <algorithm>
#include <bit>
#include <memory>

namespace marlevo {
namespace {

using Word = Region::Word;
constexpr int side = Region::wordBits;

/// Grows the bits of `seeds` along the runs of set bits in `row`, in which they lie, to both ends
/// of each run. Doubles the reach in each step (Kogge-Stone).
Word fillRuns(Word seeds, Word row) {
    Word filled = seeds;
    Word open = row;
    for (int step = 1; step < side; step *= 2) {
        filled |= open & (filled << step);
        open &= open << step;
    }
    Word towardsZero = seeds;
    open = row;
    for (int step = 1; step < side; step *= 2) {
        towardsZero |= open & (towardsZero >> step);
        open &= open >> step;
    }
    return filled | towardsZero;
}

/// The rows of a block, of which the region has a part. Row 0 is the top row.
struct BlockRows {
    BlockBits matching;    ///< pixels that have the wanted colour
    BlockBits filled{};    ///< pixels of the region
    BlockBits entered{};   ///< pixels of the region whose runs are not filled yet
    Word waitingRows = 0;  ///< rows with such pixels

    /// Continues the region at those of the given pixels that match and are new. Returns true if
    /// there are any.
    bool enter(int y, Word pixels) {
        pixels &= matching[y] & ~filled[y];
        entered[y] |= pixels;
        waitingRows |= Word{pixels != 0} << y;
        return pixels != 0;
    }
};

/// A block of 64 × 64 pixels; fewer at the right and the lower side of the picture.
struct Block {
    bool isRead = false;
    bool isQueued = false;
    bool isFilled = false;            ///< only of a block whose pixels all match
    std::unique_ptr<BlockRows> rows;  ///< null if all pixels match
};

/// Floods a picture block by block, in the order in which the region reaches them. Only these
/// blocks are read.
class BlockFlood {
public:
    /// `region` is empty and has the size of the picture.
    BlockFlood(const RasterImage& image, const ColorRange& range, Region& region)
        : image_(image), range_(range), region_(region),
          columns_((image.width() + side - 1) / side), rows_((image.height() + side - 1) / side),
          blocks_(static_cast<std::size_t>(columns_) * static_cast<std::size_t>(rows_)) {}

    /// Pixel (x, y) lies in the picture and matches; row 0 is the top row.
    void flood(int x, int y) {
        enter({x / side, y / side}, y % side, Word{1} << (x % side));
        while (!queue_.empty()) {
            const Place place = queue_.front();
            queue_.pop();
            Block& block = blockAt(place);
            block.isQueued = false;
            if (block.rows)
                fillRows(*block.rows, place);
            else
                fillWhole(block, place);
        }
        for (int row = 0; row < rows_; ++row)
            for (int column = 0; column < columns_; ++column)
                if (const Block& block = blockAt({column, row}); block.rows)
                    copyToRegion(block.rows->filled, {column, row});
    }

private:
    /// A block's column and row among all blocks.
    struct Place {
        int column;
        int row;
    };

    Block& blockAt(Place place) {
        return blocks_[static_cast<std::size_t>(place.row) * static_cast<std::size_t>(columns_) +
                       static_cast<std::size_t>(place.column)];
    }

    int widthAt(Place place) const { return std::min(side, image_.width() - place.column * side); }
    int heightAt(Place place) const { return std::min(side, image_.height() - place.row * side); }
    Word allColumnsAt(Place place) const { return ~Word{0} >> (side - widthAt(place)); }

    void read(Block& block, Place place) const {
        const std::size_t rowBytes =
            static_cast<std::size_t>(image_.width()) * RasterImage::bytesPerPixel;
        const std::size_t begin =
            static_cast<std::size_t>(place.row) * side * rowBytes +
            static_cast<std::size_t>(place.column) * side * RasterImage::bytesPerPixel;
        const BlockBits matching = matchBlock(
            {image_.bytes().subspan(begin), rowBytes, widthAt(place), heightAt(place)}, range_);
        const Word all = allColumnsAt(place);
        if (!std::all_of(matching.begin(), matching.begin() + heightAt(place),
                         [all](Word bits) { return bits == all; }))
            block.rows = std::make_unique<BlockRows>(BlockRows{.matching = matching});
        block.isRead = true;
    }

    /// Continues the region at pixels of row `y` of a block that is not being filled. Does nothing
    /// outside of the picture.
    void enter(Place place, int y, Word pixels) {
        if (place.column < 0 || place.column >= columns_ || place.row < 0 || place.row >= rows_ ||
            pixels == 0)
            return;
        Block& block = blockAt(place);
        if (!block.isRead) read(block, place);
        const bool isNew = block.rows ? block.rows->enter(y, pixels) : !block.isFilled;
        if (!isNew || block.isQueued) return;
        block.isQueued = true;
        queue_.push(place);
    }

    void fillRows(BlockRows& rows, Place place) {
        while (rows.waitingRows != 0) {
            const int y = std::countr_zero(rows.waitingRows);
            rows.waitingRows &= rows.waitingRows - 1;
            const Word run = fillRuns(rows.entered[y], rows.matching[y]) & ~rows.filled[y];
            rows.entered[y] = 0;
            rows.filled[y] |= run;
            if (y > 0)
                rows.enter(y - 1, run);
            else
                enter({place.column, place.row - 1}, side - 1, run);
            if (y < side - 1)
                rows.enter(y + 1, run);
            else
                enter({place.column, place.row + 1}, 0, run);
            enter({place.column - 1, place.row}, y, run << (side - 1));
            enter({place.column + 1, place.row}, y, run >> (side - 1));
        }
    }

    void fillWhole(Block& block, Place place) {
        block.isFilled = true;
        const Word all = allColumnsAt(place);
        BlockBits filled{};
        std::fill_n(filled.begin(), heightAt(place), all);
        copyToRegion(filled, place);
        enter({place.column, place.row - 1}, side - 1, all);
        enter({place.column, place.row + 1}, 0, all);
        for (int y = 0; y < heightAt(place); ++y) {
            enter({place.column - 1, place.row}, y, all << (side - 1));
            enter({place.column + 1, place.row}, y, all >> (side - 1));
        }
    }

    void copyToRegion(const BlockBits& filled, Place place) const {
        for (int y = 0; y < heightAt(place); ++y)
            region_.row(image_.height() - 1 - place.row * side -
                        y)[static_cast<std::size_t>(place.column)] = filled[y];
    }

    const RasterImage& image_;
    const ColorRange& range_;
    Region& region_;
    int columns_;
    int rows_;
    std::vector<Block> blocks_;
    std::queue<Place> queue_;
};

}  // namespace

Region floodFill(const RasterImage& image, GridPoint seed, int tolerance) {
    Region region(image.width(), image.height());
    if (seed.x < 0 || seed.x >= image.width() || seed.y < 0 || seed.y >= image.height())
        return region;
    const int y = image.height() - 1 - seed.y;
    const ColorRange range = ColorRange::around(image.pixel(seed.x, y), tolerance);
    BlockFlood(image, range, region).flood(seed.x, y);
    return region;
}

}  // namespace marlevo
