#pragma once

#include "io/DocumentData.h"

#include <cstddef>
#include <string_view>
#include <tuple>
#include <type_traits>

namespace marlevo {

/// A key of a record's JSON object and the member for its value. The JSON value must have the type
/// of the member. It may be absent if that type is a std::optional.
template <typename Record, typename Value>
struct Field {
    std::string_view key;
    Value Record::*member;
};

template <typename Record, typename Value>
Field(std::string_view, Value Record::*) -> Field<Record, Value>;

/// The fields of each record, in the order of writing.
template <typename Record>
inline constexpr auto fieldsOf = std::tuple<>();

template <>
inline constexpr auto fieldsOf<StrokeData> =
    std::tuple{Field{"points", &StrokeData::points},   Field{"colorR", &StrokeData::colorR},
               Field{"colorG", &StrokeData::colorG},   Field{"colorB", &StrokeData::colorB},
               Field{"colorA", &StrokeData::colorA},   Field{"lineWidth", &StrokeData::lineWidth},
               Field{"opacity", &StrokeData::opacity}, Field{"isEraser", &StrokeData::isEraser},
               Field{"isFill", &StrokeData::isFill},   Field{"shapeType", &StrokeData::shapeType}};

template <>
inline constexpr auto fieldsOf<LayerData> =
    std::tuple{Field{"name", &LayerData::name}, Field{"isVisible", &LayerData::isVisible},
               Field{"opacity", &LayerData::opacity}, Field{"imageData", &LayerData::imageData},
               Field{"strokes", &LayerData::strokes}};

template <>
inline constexpr auto fieldsOf<DocumentData> =
    std::tuple{Field{"version", &DocumentData::version},
               Field{"canvasWidth", &DocumentData::canvasWidth},
               Field{"canvasHeight", &DocumentData::canvasHeight},
               Field{"bgColorR", &DocumentData::bgColorR},
               Field{"bgColorG", &DocumentData::bgColorG},
               Field{"bgColorB", &DocumentData::bgColorB},
               Field{"bgColorA", &DocumentData::bgColorA},
               Field{"bgTransparent", &DocumentData::bgTransparent},
               Field{"layers", &DocumentData::layers}};

template <typename Record>
inline constexpr std::size_t fieldCount =
    std::tuple_size_v<std::decay_t<decltype(fieldsOf<Record>)>>;

/// Calls visit(index, field) for each field of a record, in order.
template <typename Record, typename Visit>
void forEachField(Visit visit) {
    std::apply(
        [&](const auto&... field) {
            std::size_t index = 0;
            (visit(index++, field), ...);
        },
        fieldsOf<Record>);
}

}  // namespace marlevo
