// The first paint of 100,000 strokes, compared with the same picture by Qt's painter.

#include "bench/window/Bench.h"
#include "bench/window/RealWindow.h"
#include "bench/window/Scene.h"

#include <QElapsedTimer>
#include <QPainter>
#include <QPainterPath>

#include <thread>

namespace marlevo {

namespace {

QPainterPath smoothPath(const PointList& points) {
    QPainterPath path(QPointF(points[0].x, points[0].y));
    for (std::size_t i = 1; i + 1 < points.size(); ++i)
        path.quadTo(points[i].x, points[i].y, (points[i].x + points[i + 1].x) / 2,
                    (points[i].y + points[i + 1].y) / 2);
    path.lineTo(points[points.size() - 1].x, points[points.size() - 1].y);
    return path;
}

double paintWithQt(const LayerList& layers, const CanvasSize& canvas) {
    QElapsedTimer timer;
    timer.start();
    QImage image(static_cast<int>(canvas.width), static_cast<int>(canvas.height),
                 QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::white);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    for (const Layer& layer : layers)
        for (const Stroke& stroke : layer.strokes) {
            const Color& color = stroke.color;
            painter.setPen(QPen(QColor::fromRgbF(static_cast<float>(color.red),
                                                 static_cast<float>(color.green),
                                                 static_cast<float>(color.blue)),
                                stroke.lineWidth, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
            painter.drawPath(smoothPath(stroke.points));
        }
    return static_cast<double>(timer.nsecsElapsed()) / 1e6;
}

}  // namespace

void measureFirstShow(Bench& bench) {
    constexpr CanvasSize canvas{1280, 720};
    const int rounds = bench.isQuick ? 1 : 5;
    const auto hundredThousand = scribbles(100'000, canvas);
    std::vector<double> ours;
    for (int i = 0; i < rounds; ++i) {
        RealWindow real(RealWindow::Sheet::dismissed);
        real.show({Layer("Background")}, canvas);
        QElapsedTimer timer;
        timer.start();
        real.document().layers = hundredThousand;
        const std::size_t before = bench.meter.paints();
        while (bench.meter.paints() == before)
            QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
        ours.push_back(static_cast<double>(timer.nsecsElapsed()) / 1e6);
    }
    QJsonObject result{{"row", "first show"},
                       {"cores", bench.arguments.value(0).toInt()},
                       {"painted", median(ours)}};
    if (bench.arguments.contains("peer")) {
        std::vector<double> peer;
        for (int i = 0; i < 1 + rounds / 4; ++i)
            peer.push_back(paintWithQt(hundredThousand, canvas));
        result["qt"] = median(peer);
    }
    bench.report(result);
}

}  // namespace marlevo
