#include "platform/qt/SvgImage.h"

#include <QHash>
#include <QPainter>
#include <QSet>
#include <QSvgRenderer>
#include <QXmlStreamReader>

#include <algorithm>
#include <cmath>
#include <optional>
#include <vector>

namespace marlevo {

namespace {

/// Of QPainter's coordinates, in pixels.
constexpr int maxSide = 32767;

/// True if a text names something by `url(…)` that is not an element of the same file.
bool hasForeignUrl(QStringView text) {
    constexpr QLatin1String url("url(");
    for (qsizetype at = text.indexOf(url, 0, Qt::CaseInsensitive); at >= 0;
         at = text.indexOf(url, at + url.size(), Qt::CaseInsensitive)) {
        QStringView target = text.sliced(at + url.size()).trimmed();
        if (target.startsWith(u'"') || target.startsWith(u'\'')) target = target.sliced(1);
        if (!target.startsWith(u'#')) return true;
    }
    return false;
}

/// Escapes can hide an address, and rules that start with '@' can import a file.
bool isForeignStyle(QStringView style) {
    return style.contains(u'\\') || style.contains(u'@') || hasForeignUrl(style);
}

/// Reads a drawing once, before Qt's renderer does.
class SvgCheck {
public:
    /// The number of elements that the drawing paints; nothing if it is refused.
    std::optional<qsizetype> paintedElements(const QByteArray& file) {
        QXmlStreamReader xml(file);
        while (!xml.atEnd()) {
            if (!accepts(xml) || elements_ > maxSvgElements || open_.size() > maxSvgDepth)
                return std::nullopt;
        }
        if (xml.hasError()) return std::nullopt;
        qsizetype painted = elements_;
        for (const QString& target : uses_) {
            if (usersById_.contains(target)) return std::nullopt;
            painted += sizeById_.value(target);
        }
        return painted <= maxSvgElements ? std::optional(painted) : std::nullopt;
    }

private:
    struct Element {
        QString id;
        bool isStyle;
        qsizetype before;  ///< number of elements before it
    };

    bool accepts(QXmlStreamReader& xml) {
        switch (xml.readNext()) {
        case QXmlStreamReader::StartElement:
            return acceptsElement(xml);
        case QXmlStreamReader::EndElement:
            sizeById_[open_.back().id] += elements_ - open_.back().before;
            open_.pop_back();
            return true;
        case QXmlStreamReader::Characters:
            return open_.empty() || !open_.back().isStyle || !isForeignStyle(xml.text());
        case QXmlStreamReader::DTD:
        case QXmlStreamReader::EntityReference:
        case QXmlStreamReader::ProcessingInstruction:
            return false;
        default:
            return true;
        }
    }

    bool acceptsElement(const QXmlStreamReader& xml) {
        const QStringView name = xml.name();
        if (name == u"image" || name == u"feImage") return false;
        QString id;
        QString target;
        for (const QXmlStreamAttribute& attribute : xml.attributes()) {
            const QStringView value = attribute.value();
            if (attribute.name() == u"href" || attribute.name() == u"src") {
                if (!value.startsWith(u'#')) return false;
                target = value.sliced(1).toString();
            }
            if (attribute.name() == u"id") id = value.toString();
            const bool isStyle = attribute.name() == u"style";
            if (isStyle ? isForeignStyle(value) : hasForeignUrl(value)) return false;
        }
        open_.push_back({id, name == u"style", elements_++});
        if (name == u"use" && !target.isEmpty()) {
            uses_.push_back(target);
            for (const Element& element : open_)
                usersById_.insert(element.id);
        }
        return true;
    }

    std::vector<Element> open_;  ///< the current element and those around it
    qsizetype elements_ = 0;
    std::vector<QString> uses_;           ///< the targets
    QSet<QString> usersById_;             ///< elements with a `use` inside, and those themselves
    QHash<QString, qsizetype> sizeById_;  ///< number of elements in each element
};

}  // namespace

QImage svgImage(const QByteArray& file) {
    if (file.size() > maxSvgBytes) return {};
    const auto elements = SvgCheck().paintedElements(file);
    if (!elements) return {};
    QSvgRenderer renderer;
    if (!renderer.load(file)) return {};

    QSizeF size = renderer.defaultSize();
    if (size.isEmpty()) return {};
    // Each element may cover all pixels. The product bounds the time to about two seconds.
    const double maxPixels = std::min(0x1p24, 0x1p32 / static_cast<double>(*elements));
    size *= std::min(1.0, std::sqrt(maxPixels / (size.width() * size.height())));
    const QSize pixels = size.toSize().expandedTo({1, 1}).boundedTo({maxSide, maxSide});
    QImage image(pixels, QImage::Format_ARGB32_Premultiplied);
    if (image.isNull()) return {};
    image.fill(Qt::transparent);
    QPainter painter(&image);
    renderer.render(&painter);
    return image;
}

}  // namespace marlevo
