#include "ui/controls/IconDrawing.h"

#include <QPaintDevice>
#include <QPaintEngine>
#include <QPainter>
#include <QSvgRenderer>

#include <algorithm>
#include <cmath>
#include <iterator>

namespace marlevo {

/// Receives what is painted on it as shapes.
class Recorder final : public QPaintEngine, public QPaintDevice {
public:
    explicit Recorder(std::vector<IconDrawing::Shape>& shapes)
        : QPaintEngine(AllFeatures), shapes_(shapes) {}

    QPaintEngine* paintEngine() const override { return const_cast<Recorder*>(this); }
    int metric(PaintDeviceMetric metric) const override {
        constexpr int dotsPerInch = 96;
        switch (metric) {
        case PdmWidth:
        case PdmHeight:
            return int(IconDrawing::side);
        case PdmDevicePixelRatio:
            return 1;
        case PdmDevicePixelRatioScaled:
            return int(devicePixelRatioFScale());
        default:
            return dotsPerInch;
        }
    }

    bool begin(QPaintDevice*) override { return true; }
    bool end() override { return true; }
    Type type() const override { return User; }
    void updateState(const QPaintEngineState&) override {}
    void drawPixmap(const QRectF&, const QPixmap&, const QRectF&) override {}
    void drawPath(const QPainterPath& path) override {
        const QPainter& painter = *this->painter();
        const bool isLine = painter.pen().style() != Qt::NoPen;
        if (isLine || painter.brush().style() != Qt::NoBrush)
            shapes_.push_back({painter.transform().map(path), isLine ? painter.pen().widthF() : 0});
    }

private:
    std::vector<IconDrawing::Shape>& shapes_;
};

namespace {

constexpr double leastLineLength = 4;  // shorter lines follow their surroundings
constexpr double tolerance = 0.01;

/// The places of vertical and horizontal lines.
struct StraightLines {
    std::vector<double> columns;
    std::vector<double> rows;

    /// False if the path has none.
    bool add(const QPainterPath& path) {
        const std::size_t before = columns.size() + rows.size();
        for (int i = 1; i < path.elementCount(); ++i) {
            const QPainterPath::Element from = path.elementAt(i - 1);
            const QPainterPath::Element to = path.elementAt(i);
            const QPointF way = QPointF(to) - QPointF(from);
            if (!to.isLineTo() || way.manhattanLength() < leastLineLength) continue;
            if (std::abs(way.x()) < tolerance) columns.push_back(to.x);
            if (std::abs(way.y()) < tolerance) rows.push_back(to.y);
        }
        return columns.size() + rows.size() > before;
    }
};

/// Maps one axis of a drawing to pixels. The gaps between parallel lines have a whole number of
/// pixels, so equal gaps stay equal. What is between two lines is stretched.
class FittedAxis {
public:
    FittedAxis(std::vector<double> lines, double scale, int pixels, int lineWidth) : scale_(scale) {
        std::sort(lines.begin(), lines.end());
        const auto isSame = [](double a, double b) { return b - a < tolerance; };
        lines.erase(std::unique(lines.begin(), lines.end(), isSame), lines.end());
        double end = 0;
        for (std::size_t i = 0; i < lines.size(); ++i) {
            if (i > 0) end += std::round((lines[i] - lines[i - 1]) * scale);
            fitted_.push_back({lines[i], end});
        }
        if (fitted_.empty()) {
            fitted_.push_back({IconDrawing::side / 2, pixels / 2.0});
            return;
        }
        const double middle = (lines.front() + lines.back()) / 2 * scale;
        // The middle of a line of odd width is the middle of a pixel.
        const double offset = lineWidth % 2 / 2.0;
        const double start = std::floor(middle - end / 2 - offset + 0.5) + offset;
        for (Line& line : fitted_)
            line.pixel += start;
    }

    double operator()(double place) const {
        const auto isBefore = [](double a, const Line& line) { return a < line.place; };
        const auto after = std::upper_bound(fitted_.begin(), fitted_.end(), place, isBefore);
        if (after == fitted_.begin() || after == fitted_.end()) {
            const Line& nearest = after == fitted_.begin() ? *after : *std::prev(after);
            return nearest.pixel + (place - nearest.place) * scale_;
        }
        const Line& before = *std::prev(after);
        const double share = (place - before.place) / (after->place - before.place);
        return std::lerp(before.pixel, after->pixel, share);
    }

private:
    struct Line {
        double place;
        double pixel;
    };
    double scale_;
    std::vector<Line> fitted_;
};

}  // namespace

IconDrawing::IconDrawing(QSvgRenderer& renderer) {
    Recorder recorder(shapes_);
    QPainter painter(&recorder);
    renderer.render(&painter, QRectF(0, 0, side, side));
}

void IconDrawing::paint(QPainter& painter, int pixels) const {
    const double scale = pixels / side;
    const int wholeWidth = std::max(1, int(std::lround(lineWidth * scale)));
    StraightLines all;
    for (const Shape& shape : shapes_)
        all.add(shape.path);
    const FittedAxis x(std::move(all.columns), scale, pixels, wholeWidth);
    const FittedAxis y(std::move(all.rows), scale, pixels, wholeWidth);

    painter.setRenderHint(QPainter::Antialiasing);
    for (const Shape& shape : shapes_) {
        QPainterPath path = shape.path;
        for (int i = 0; i < path.elementCount(); ++i) {
            const QPainterPath::Element element = path.elementAt(i);
            path.setElementPositionAt(i, x(element.x), y(element.y));
        }
        StraightLines own;
        const double width = own.add(shape.path) ? wholeWidth : shape.lineWidth * scale;
        if (shape.lineWidth > 0)
            painter.strokePath(path,
                               QPen(Qt::black, width, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
        else
            painter.fillPath(path, Qt::black);
    }
}

}  // namespace marlevo
