#pragma once

#include <QAbstractButton>
#include <QLabel>
#include <QPaintDevice>
#include <QPaintEngine>
#include <QSlider>

#include <vector>

namespace marlevo {

/// Keeps the texts that a widget paints itself, with their places in the widget.
class TextRecorder final : public QPaintDevice, public QPaintEngine {
public:
    explicit TextRecorder(QWidget& widget)
        : QPaintEngine(AllFeatures), resolution_(widget.logicalDpiX()) {
        widget.render(this, {}, {}, QWidget::RenderFlags());
    }

    std::vector<std::pair<QString, QRectF>> texts;

    QPaintEngine* paintEngine() const override { return const_cast<TextRecorder*>(this); }
    bool begin(QPaintDevice*) override { return true; }
    bool end() override { return true; }
    void updateState(const QPaintEngineState& now) override { transform_ = now.transform(); }
    void drawPixmap(const QRectF&, const QPixmap&, const QRectF&) override {}
    void drawPath(const QPainterPath&) override {}
    void drawPolygon(const QPointF*, int, PolygonDrawMode) override {}
    void drawTextItem(const QPointF& at, const QTextItem& item) override {
        const QRectF box(at.x(), at.y() - item.ascent(), item.width(),
                         item.ascent() + item.descent());
        texts.emplace_back(item.text(), transform_.mapRect(box));
    }
    Type type() const override { return User; }

protected:
    int metric(PaintDeviceMetric which) const override {
        if (which == PdmDevicePixelRatio) return 1;
        if (which == PdmDevicePixelRatioScaled) return int(devicePixelRatioFScale());
        return which == PdmDpiX || which == PdmDpiY ? resolution_ : 10000;
    }

private:
    int resolution_;
    QTransform transform_;
};

/// The widgets in the area that are to be seen by themselves.
inline std::vector<QWidget*> controlsIn(const QWidget& area) {
    std::vector<QWidget*> controls;
    for (QWidget* const widget : area.findChildren<QWidget*>())
        if (widget->isVisible() &&
            (qobject_cast<QAbstractButton*>(widget) || qobject_cast<QSlider*>(widget) ||
             qobject_cast<QLabel*>(widget) || widget->inherits("marlevo::ColorCircle") ||
             widget->inherits("marlevo::LayerThumbnailView")))
            controls.push_back(widget);
    return controls;
}

inline QString textOf(const QWidget& control) {
    if (const auto* label = qobject_cast<const QLabel*>(&control)) return label->text();
    const auto* button = qobject_cast<const QAbstractButton*>(&control);
    return button != nullptr ? button->text() : QString();
}

/// What hides a part of the control or of its text; empty if nothing does. The texts of
/// `shortened` may be elided.
inline QString faultOf(QWidget& control, const QWidget& area, const QStringList& shortened) {
    const auto placeOf = [&](const QWidget& widget) {
        return QRect(widget.mapTo(&area, QPoint(0, 0)), widget.size());
    };
    if (!area.rect().contains(placeOf(control))) return "beyond its area";
    if (control.visibleRegion().boundingRect() != control.rect()) return "cut by a parent";
    for (const QWidget* const other : controlsIn(area))
        if (other != &control && !other->isAncestorOf(&control) && !control.isAncestorOf(other) &&
            placeOf(*other).intersects(placeOf(control)))
            return "overlaps " + textOf(*other) + other->accessibleName();

    // Line breaks add hyphens and take spaces.
    const auto letters = [](QString text) {
        return text.remove(u' ').remove(u'-').remove(QChar::SoftHyphen).toUpper();
    };
    QString painted;
    const TextRecorder recorder(control);
    for (const auto& [text, place] : recorder.texts) {
        painted += text;
        if (!QRectF(control.rect()).adjusted(-0.5, -0.5, 0.5, 0.5).contains(place))
            return "cut: " + text;
    }
    const bool isWhole = letters(painted) == letters(textOf(control));
    return isWhole || shortened.contains(textOf(control)) ? QString() : "painted as " + painted;
}

inline QString faultsIn(const QWidget& area, const QStringList& shortened) {
    QString faults;
    for (QWidget* const control : controlsIn(area))
        if (const QString fault = faultOf(*control, area, shortened); !fault.isEmpty())
            faults += textOf(*control) + control->accessibleName() + ": " + fault + u'\n';
    return faults;
}

}  // namespace marlevo
