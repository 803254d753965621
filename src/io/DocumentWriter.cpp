#include "io/DocumentWriter.h"

#include "io/Base64.h"
#include "io/DocumentFields.h"
#include "io/JsonText.h"
#include "io/KeyPath.h"
#include "platform/ParallelFor.h"

#include <algorithm>
#include <cmath>
#include <functional>

namespace marlevo {
namespace {

void writeStroke(JsonText& json, const StrokeData& stroke, std::size_t depth) {
    json.literal("{");
    forEachField<StrokeData>([&](std::size_t index, const auto& field) {
        if (index > 0) json.literal(",");
        json.member(field.key, depth + 1);
        json.value(stroke.*field.member);
    });
    json.newLine(depth);
    json.literal("}");
}

/// The document's text as a row of parts of about the same length, which can be encoded in any
/// order and by any thread. The document must outlive the plan.
class EncodingPlan {
public:
    explicit EncodingPlan(const DocumentData& document) {
        addRecord(document, 0);
        literal("\n");
    }

    void run() {
        parallelFor(parts_.size(), [this](std::size_t i) {
            for (const auto& piece : parts_[i].pieces)
                piece(parts_[i].text);
        });
    }

    bool isFinite() const {
        return std::ranges::all_of(parts_, [](const Part& part) { return part.text.isFinite(); });
    }

    TextBlocks takeText() {
        TextBlocks text;
        for (Part& part : parts_)
            text.append(part.text.take());
        return text;
    }

private:
    using Piece = std::function<void(JsonText&)>;

    struct Part {
        std::vector<Piece> pieces;
        std::size_t length = 0;  ///< estimated
        JsonText text;
    };

    static constexpr std::size_t partLength = std::size_t{512} * 1024;
    static constexpr std::size_t pieceLength = std::size_t{64} * 1024;

    void add(std::size_t length, Piece piece) {
        if (parts_.empty() || parts_.back().length >= partLength) parts_.emplace_back();
        parts_.back().length += length;
        parts_.back().pieces.push_back(std::move(piece));
    }

    void literal(std::string_view text) {
        add(text.size(), [text](JsonText& json) { json.literal(text); });
    }

    void newLine(std::size_t depth) {
        add(2 * depth, [depth](JsonText& json) { json.newLine(depth); });
    }

    template <typename Record>
    void addRecord(const Record& record, std::size_t depth) {
        literal("{");
        forEachField<Record>([&](std::size_t index, const auto& field) {
            const auto& value = record.*field.member;
            if (isAbsent(value)) return;
            add(field.key.size(), [key = field.key, depth, index](JsonText& json) {
                if (index > 0) json.literal(",");
                json.member(key, depth + 1);
            });
            addValue(value, depth + 1);
        });
        newLine(depth);
        literal("}");
    }

    template <typename Value>
    void addValue(const Value& value, std::size_t /*depth*/) {
        add(sizeof value, [&value](JsonText& json) { json.value(value); });
    }

    void addValue(const std::optional<Bytes>& image, std::size_t /*depth*/) {
        constexpr std::size_t sliceLength = pieceLength / 4 * 3;
        literal("\"");
        std::span<const std::uint8_t> rest = image->span();
        while (!rest.empty()) {
            const auto slice = rest.first(std::min(rest.size(), sliceLength));
            add(base64Length(slice.size()), [slice](JsonText& json) { json.base64(slice); });
            rest = rest.subspan(slice.size());
        }
        literal("\"");
    }

    void addValue(const std::vector<LayerData>& layers, std::size_t depth) {
        literal("[");
        for (const LayerData& layer : layers) {
            if (&layer != &layers.front()) literal(",");
            newLine(depth + 1);
            addRecord(layer, depth + 1);
        }
        endList(layers, depth);
    }

    void addValue(const std::vector<StrokeData>& strokes, std::size_t depth) {
        literal("[");
        for (std::size_t begin = 0; begin < strokes.size();) {
            std::size_t end = begin;
            std::size_t length = 0;
            for (; end < strokes.size() && length < pieceLength; ++end)
                length += 300 + 40 * strokes[end].points.size();
            add(length, [&strokes, begin, end, depth](JsonText& json) {
                for (std::size_t i = begin; i < end; ++i) {
                    if (i > 0) json.literal(",");
                    json.newLine(depth + 1);
                    writeStroke(json, strokes[i], depth + 1);
                }
            });
            begin = end;
        }
        endList(strokes, depth);
    }

    template <typename Record>
    void endList(const std::vector<Record>& list, std::size_t depth) {
        if (list.empty()) return literal(" ]");
        newLine(depth);
        literal("]");
    }

    template <typename Value>
    static bool isAbsent(const Value& /*value*/) {
        return false;
    }
    static bool isAbsent(const std::optional<Bytes>& image) { return !image; }

    std::vector<Part> parts_;
};

/// Puts the place of the first number that is not finite into `path`. False if all are.
bool findNonFinite(double number, KeyPath& /*path*/) { return !std::isfinite(number); }

bool findNonFinite(const PointList& points, KeyPath& path) {
    for (std::size_t i = 0; i < 2 * points.size(); ++i) {
        const Point& point = points[i / 2];
        if (!findNonFinite(i % 2 == 0 ? point.x : point.y, path)) continue;
        path.prependIndex(i);
        return true;
    }
    return false;
}

template <typename Record>
bool findNonFinite(const Record& record, KeyPath& path);

template <typename Record>
bool findNonFinite(const std::vector<Record>& records, KeyPath& path) {
    for (std::size_t i = 0; i < records.size(); ++i) {
        if (!findNonFinite(records[i], path)) continue;
        path.prependIndex(i);
        return true;
    }
    return false;
}

template <typename Record>
bool findNonFinite(const Record& record, KeyPath& path) {
    bool isFound = false;
    forEachField<Record>([&](std::size_t /*index*/, const auto& field) {
        if (isFound || !findNonFinite(record.*field.member, path)) return;
        path.prependKey(field.key);
        isFound = true;
    });
    return isFound;
}

}  // namespace

Result<TextBlocks> writeDocumentData(const DocumentData& document) {
    EncodingPlan plan(document);
    plan.run();
    if (plan.isFinite()) return plan.takeText();
    KeyPath path;
    findNonFinite(document, path);
    return Unexpected(Failure{path.text() + ": the number is not finite"});
}

}  // namespace marlevo
