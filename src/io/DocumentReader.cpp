#include "io/DocumentReader.h"

#include "io/Base64.h"
#include "io/DocumentFields.h"
#include "io/JsonEscape.h"
#include "io/JsonSyntax.h"
#include "platform/ParallelFor.h"

#include <simdjson.h>

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdlib>
#include <locale.h>
#include <utility>

namespace marlevo {
namespace {

namespace ondemand = simdjson::ondemand;
using ondemand::json_type;

static_assert(PaddedBytes::padding >= simdjson::SIMDJSON_PADDING);

template <typename Value>
constexpr bool isRequired = true;
template <typename Value>
constexpr bool isRequired<std::optional<Value>> = false;

/// Fills the records directly from the parser's position in the text, without a tree of values.
///
/// There are two kinds of errors. A value of another type than its record's is a problem, whose
/// path is completed on the way out of the recursion. Malformed text stops the reading. JsonSyntax
/// then finds the place, because the parser does not report it.
class RecordReader {
public:
    enum class Strokes : unsigned char { oneByOne, inParallel };

    RecordReader(std::string_view text, Strokes strokes) : text_(text), strokes_(strokes) {}

    Result<DocumentData> read() {
        DocumentData document;
        const bool isRead = readRoot(document, 0);
        if (!isRead || sawProblem_) {
            // After a problem the parser has skipped text without a check of its syntax.
            if (const auto fault = JsonSyntax::findFault(text_))
                return Unexpected(describe(*fault));
        }
        if (isRead) return document;
        const bool hasPath = !problem_.path.text().empty();
        return Unexpected(Failure{problem_.path.text() + (hasPath ? ": " : "") + problem_.text});
    }

    /// The document if it is free of errors. Only read() finds the reason of an error.
    std::optional<DocumentData> readFaultless() {
        std::optional<DocumentData> document(std::in_place);
        if (!readRoot(*document, 0) || sawProblem_) document.reset();
        return document;
    }

private:
    struct Problem {
        KeyPath path;
        std::string text;
    };

    // ---- Records --------------------------------------------------------------------------------

    /// Reads the whole text as one record, which is inside `depth` arrays and objects.
    template <typename Record>
    bool readRoot(Record& record, std::size_t depth) {
        ondemand::document document;
        json_type type{};
        ondemand::object object;
        const simdjson::padded_string_view padded(text_.data(), text_.size(),
                                                  text_.size() + PaddedBytes::padding);
        if (const auto error = parser_.iterate(padded).get(document)) return broken(error);
        if (const auto error = document.type().get(type)) return broken(error);
        if (type != json_type::object) return problem("an object was expected");
        if (const auto error = document.get_object().get(object)) return broken(error);
        if (!readMembers(object, record, depth + 1)) return false;
        const bool isAtEnd = document.current_location().error() == simdjson::OUT_OF_BOUNDS;
        return isAtEnd || broken(simdjson::TRAILING_CONTENT);
    }

    /// `depth` is the number of arrays and objects around the members.
    template <typename Record>
    bool readMembers(ondemand::object& object, Record& record, std::size_t depth) {
        // A wrong value is a problem only if no later value of the same key replaces it.
        std::array<std::optional<Problem>, fieldCount<Record>> problems;
        std::array<bool, fieldCount<Record>> isPresent{};

        for (auto entry : object) {
            ondemand::field member;
            if (const auto error = std::move(entry).get(member)) return broken(error);
            const auto rawKey = JsonSyntax::leadingString(textFrom(member.key().raw() - 1));
            if (!rawKey) return broken(simdjson::STRING_ERROR);
            const std::string key = JsonEscape::replaceAll(*rawKey);

            bool isKnown = false;
            forEachField<Record>([&](std::size_t index, const auto& field) {
                if (isKnown || field.key != key) return;
                isKnown = true;
                isPresent[index] = true;
                problems[index].reset();
                if (!readValue(member.value(), record.*field.member, depth))
                    problems[index] = std::exchange(problem_, {});
            });
            if (!isKnown && !JsonSyntax::startsWithMemberValue(textFrom(member.value()), depth))
                broken(simdjson::TAPE_ERROR);
            if (isBroken_) return false;
        }

        bool isComplete = true;
        forEachField<Record>([&](std::size_t index, const auto& field) {
            if (!isComplete) return;
            if (problems[index]) {
                problem_ = std::move(*problems[index]);
                problem_.path.prependKey(field.key);
                isComplete = false;
            } else if (!isPresent[index] &&
                       isRequired<std::decay_t<decltype(record.*field.member)>>) {
                isComplete = problem(std::string(field.key) + " is missing");
            }
        });
        return isComplete;
    }

    // ---- Values ---------------------------------------------------------------------------------

    template <typename Record>
    bool readValue(ondemand::value value, Record& record, std::size_t depth) {
        ondemand::object object;
        if (!is(value, json_type::object)) return problem("an object was expected");
        if (const auto error = value.get_object().get(object)) return broken(error);
        return readMembers(object, record, depth + 1);
    }

    /// Strokes are most of a long text. One thread finds the end of each, which is quick; all cores
    /// read them.
    bool readValue(ondemand::value value, std::vector<StrokeData>& strokes, std::size_t depth) {
        if (strokes_ == Strokes::oneByOne) return readList(value, strokes, depth);
        ondemand::array array;
        if (!is(value, json_type::array)) return problem("an array was expected");
        if (const auto error = value.get_array().get(array)) return broken(error);
        std::vector<std::string_view> texts;
        for (auto element : array) {
            ondemand::object object;
            if (const auto error = element.get_object().get(object)) return broken(error);
            if (const auto error = object.raw_json().get(texts.emplace_back()))
                return broken(error);
        }
        strokes.clear();
        strokes.resize(texts.size());

        constexpr std::size_t batch = 128;
        std::atomic<bool> isFaultless = true;
        parallelFor((texts.size() + batch - 1) / batch, [&](std::size_t number) {
            RecordReader reader({}, Strokes::oneByOne);
            const std::size_t end = std::min(texts.size(), (number + 1) * batch);
            for (std::size_t i = number * batch; i < end && isFaultless; ++i) {
                reader.text_ = texts[i];
                if (!reader.readRoot(strokes[i], depth + 1) || reader.sawProblem_)
                    isFaultless = false;
            }
        });
        return isFaultless || problem("a stroke is not what was expected");
    }

    bool readValue(ondemand::value value, std::vector<LayerData>& layers, std::size_t depth) {
        return readList(value, layers, depth);
    }

    template <typename Record>
    bool readList(ondemand::value value, std::vector<Record>& records, std::size_t depth) {
        ondemand::array array;
        if (!is(value, json_type::array)) return problem("an array was expected");
        if (const auto error = value.get_array().get(array)) return broken(error);
        records.clear();
        for (auto element : array) {
            ondemand::value item;
            if (const auto error = element.get(item)) return broken(error);
            if (!readValue(item, records.emplace_back(), depth + 1)) {
                problem_.path.prependIndex(records.size() - 1);
                return false;
            }
        }
        return true;
    }

    bool readValue(ondemand::value value, PointList& points, std::size_t /*depth*/) {
        ondemand::array array;
        if (!is(value, json_type::array)) return problem("an array was expected");
        if (const auto error = value.get_array().get(array)) return broken(error);
        points_.clear();
        Point point;
        std::size_t count = 0;
        for (auto element : array) {
            ondemand::value item;
            if (const auto error = element.get(item)) return broken(error);
            const bool isX = count % 2 == 0;
            if (!readNumber(item, isX ? point.x : point.y)) {
                problem_.path.prependIndex(count);
                return false;
            }
            if (!isX) points_.push_back(point);
            ++count;
        }
        points = PointList(std::vector<Point>(points_));  // a copy, which has no spare capacity
        return true;
    }

    bool readValue(ondemand::value value, double& number, std::size_t /*depth*/) {
        return readNumber(value, number);
    }

    bool readNumber(ondemand::value& value, double& number) {
        const std::string_view token = value.raw_json_token();
        const bool isRead = isLongFraction(token)
                                ? readLongFraction(token, number)
                                : value.get_double().get(number) == simdjson::SUCCESS;
        if (isRead) return true;
        if (!is(value, json_type::number)) return problem("a number was expected");
        return problem("the number is too large");
    }

    /// Before version 3.1, simdjson miscounts the digits after "0." and returns a wrong number if
    /// there are more than 19.
    static bool isLongFraction(std::string_view token) {
        constexpr std::size_t longestRight = std::string_view("0.1234567890123456789").size();
        return token.size() > longestRight && (token.starts_with("0.") || token.starts_with("-0."));
    }

    /// The token ends where the next one starts: white space after the number is allowed, any other
    /// character is an error.
    static bool readLongFraction(std::string_view token, double& number) {
        static const locale_t plainLocale = newlocale(LC_ALL_MASK, "C", nullptr);
        const auto digits = JsonSyntax::leadingNumber(token);
        if (!digits || token.find_first_not_of(" \n\r\t", digits->size()) != token.npos)
            return false;
        // strtod stops at the character after the digits, which cannot continue a number.
        number = strtod_l(token.data(), nullptr, plainLocale);
        return std::isfinite(number);
    }

    bool readValue(ondemand::value value, std::int64_t& number, std::size_t /*depth*/) {
        if (!is(value, json_type::number)) return problem("a whole number was expected");
        if (value.get_int64().get(number) == simdjson::SUCCESS) return true;
        double whole = 0;  // for numbers with a fraction of zero or an exponent
        if (value.get_double().get(whole) != simdjson::SUCCESS || std::trunc(whole) != whole)
            return problem("a whole number was expected");
        if (std::abs(whole) >= 0x1p63) return problem("the number is too large");
        number = static_cast<std::int64_t>(whole);
        return true;
    }

    bool readValue(ondemand::value value, bool& flag, std::size_t /*depth*/) {
        if (!is(value, json_type::boolean)) return problem("true or false was expected");
        if (const auto error = value.get_bool().get(flag)) return broken(error);
        return true;
    }

    bool readValue(ondemand::value value, std::string& string, std::size_t /*depth*/) {
        if (!is(value, json_type::string)) return problem("a string was expected");
        const auto raw = JsonSyntax::leadingString(textFrom(value));
        if (!raw) return broken(simdjson::STRING_ERROR);
        string = JsonEscape::replaceAll(*raw);
        return consumeString(value);
    }

    bool readValue(ondemand::value value, std::optional<Bytes>& bytes, std::size_t depth) {
        bytes.reset();
        if (is(value, json_type::null)) {
            const bool isNull = JsonSyntax::startsWithMemberValue(textFrom(value), depth);
            return isNull || broken(simdjson::N_ATOM_ERROR);
        }
        if (!is(value, json_type::string)) return problem("a string was expected");
        // An image is long, so it is decoded in place. Base64 has no quotes and no backslashes, so
        // the first quote is its end. A text with escapes ("\/") is copied and unescaped first.
        const std::string_view text = textFrom(value).substr(1);
        auto decoded = decodeBase64(text.substr(0, text.find('"')));
        if (decoded) {
            bytes = Bytes(std::move(*decoded));
            return consumeString(value);
        }
        std::string string;
        if (!readValue(value, string, depth)) return false;
        decoded = decodeBase64(string);
        if (!decoded) return problem("the text is not valid base64");
        bytes = Bytes(std::move(*decoded));
        return true;
    }

    /// Moves the parser behind a string that was read from the text. A parser that skips the string
    /// itself takes it for a key if a colon follows, and accepts what is not JSON.
    bool consumeString(ondemand::value& value) {
        const auto error = value.get_raw_json_string().error();
        return error == simdjson::SUCCESS || broken(error);
    }

    // ---- Text and errors ------------------------------------------------------------------------

    static bool is(ondemand::value& value, json_type type) {
        json_type found{};
        return value.type().get(found) == simdjson::SUCCESS && found == type;
    }

    std::string_view textFrom(const char* position) const {
        return text_.substr(static_cast<std::size_t>(position - text_.data()));
    }

    std::string_view textFrom(ondemand::value& value) const {
        return textFrom(value.raw_json_token().data());
    }

    bool problem(std::string text) {
        problem_ = {{}, std::move(text)};
        sawProblem_ = true;
        return false;
    }

    bool broken(simdjson::error_code error) {
        isBroken_ = true;
        return problem(simdjson::error_message(error));
    }

    Failure describe(const JsonSyntax::Fault& fault) const {
        const std::string_view before = text_.substr(0, fault.offset);
        const auto line = 1 + std::count(before.begin(), before.end(), '\n');
        const std::string_view lastLine = before.substr(before.rfind('\n') + 1);
        const auto isCharacterStart = [](char c) { return (c & 0xC0) != 0x80; };
        const auto column = 1 + std::count_if(lastLine.begin(), lastLine.end(), isCharacterStart);
        const std::string& path = fault.path.text();
        return {(path.empty() ? "" : path + ": ") + "line " + std::to_string(line) + ", column " +
                std::to_string(column) + ": " + std::string(fault.reason)};
    }

    std::string_view text_;
    Strokes strokes_;
    ondemand::parser parser_;
    std::vector<Point> points_;  ///< reused by every stroke
    Problem problem_;
    bool sawProblem_ = false;
    bool isBroken_ = false;
};

}  // namespace

Result<DocumentData> readDocumentData(const PaddedBytes& contents) {
    constexpr std::string_view byteOrderMark = "\xEF\xBB\xBF";
    std::string_view text = contents.text();
    if (text.starts_with(byteOrderMark)) text.remove_prefix(byteOrderMark.size());

    constexpr std::size_t longText = std::size_t{1} << 20;
    if (text.size() >= longText) {
        auto document = RecordReader(text, RecordReader::Strokes::inParallel).readFaultless();
        if (document) return std::move(*document);
    }
    return RecordReader(text, RecordReader::Strokes::oneByOne).read();
}

}  // namespace marlevo
