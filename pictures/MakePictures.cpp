// Draws in a real window with the mouse and saves pictures of it: make_pictures <folder>.

#include "platform/BackgroundThread.h"
#include "platform/qt/QtImageCodec.h"
#include "platform/qt/QtMainQueue.h"
#include "platform/qt/QtStrings.h"
#include "tests/ui/Pointer.h"
#include "ui/DocumentWindow.h"
#include "ui/MarlevoApp.h"
#include "ui/Translations.h"

#include <QAbstractButton>
#include <QApplication>
#include <QDir>
#include <QPalette>

#include <cmath>
#include <numbers>

using namespace marlevo;

namespace {

constexpr double turn = 2 * std::numbers::pi;

class Picture {
public:
    explicit Picture(DocumentWindow& window)
        : window_(window), document_(window.document()), pointer_(window.canvasView()) {}

    void press(const QString& name) {
        for (auto* button : window_.findChildren<QAbstractButton*>())
            if (button->accessibleName() == name && button->isVisible()) return button->click();
        qFatal("no button %s", qPrintable(name));
    }

    void pen(Color color, double width, double opacity = 1) {
        document_.selectedColor = color;
        document_.lineWidth = width;
        document_.brushOpacity = opacity;
    }

    void drag(const std::vector<Point>& way) {
        pointer_.press({way.front().x, way.front().y});
        for (const Point p : way)
            pointer_.move({p.x, p.y});
        pointer_.release({way.back().x, way.back().y});
    }

    void click(Point p) {
        pointer_.press({p.x, p.y});
        pointer_.release({p.x, p.y});
    }

    void hill(double base, double height, double length, double phase) {
        std::vector<Point> way;
        for (double x = 0; x <= 1280; x += 10)
            way.push_back({x, base - height * std::sin(x / length + phase)});
        drag(way);
    }

    void draw() {
        press("Draw");
        pen({0.18, 0.31, 0.55, 1}, 3);
        hill(330, 70, 150, 0.4);
        pen({0.16, 0.45, 0.38, 1}, 3);
        hill(430, 55, 210, 1.9);
        pen({0.11, 0.32, 0.24, 1}, 3);
        hill(560, 40, 160, 4.0);

        press("Fill");
        pen({0.55, 0.69, 0.88, 1}, 3);
        click({640, 405});
        pen({0.44, 0.72, 0.56, 1}, 3);
        click({150, 500});
        pen({0.26, 0.54, 0.38, 1}, 3);
        click({640, 680});
        pen({0.99, 0.91, 0.78, 1}, 3);
        click({640, 60});

        press("Ellipse");
        pen({0.95, 0.55, 0.2, 1}, 6);
        drag({{930, 70}, {1000, 120}, {1070, 210}});
        press("Draw");
        pen({0.97, 0.72, 0.25, 1}, 20, 0.45);
        std::vector<Point> rays;
        for (double t = 0; t < 5; t += 0.02)
            rays.push_back(
                {1000 + 50 * t / 5 * std::cos(turn * t), 140 + 50 * t / 5 * std::sin(turn * t)});
        drag(rays);
        pen({0.25, 0.2, 0.35, 1}, 4);
        for (const Point bird : {Point{300, 120}, Point{380, 90}, Point{450, 140}})
            drag({bird,
                  {bird.x + 12, bird.y - 12},
                  {bird.x + 24, bird.y},
                  {bird.x + 36, bird.y - 12},
                  {bird.x + 48, bird.y}});
        press("Line");
        pen({0.35, 0.22, 0.15, 1}, 9);
        drag({{220, 640}, {220, 560}, {220, 500}});
        press("Draw");
        pen({0.12, 0.4, 0.25, 1}, 18, 0.6);
        std::vector<Point> crown;
        for (double t = 0; t < 3; t += 0.03)
            crown.push_back({220 + (20 + 8 * t) * std::cos(turn * t),
                             455 + (26 + 10 * t) * std::sin(turn * t)});
        drag(crown);
    }

    void save(const QString& file) {
        // Thumbnails come from another thread.
        QTest::qWait(600);
        if (!window_.grab().save(file)) qFatal("cannot write %s", qPrintable(file));
    }

private:
    DocumentWindow& window_;
    DrawingDocument& document_;
    Pointer pointer_;
};

QPalette darkPalette() {
    QPalette palette(QColor(45, 45, 48), QColor(45, 45, 48));
    palette.setColor(QPalette::Base, QColor(30, 30, 32));
    palette.setColor(QPalette::Highlight, QColor(60, 120, 220));
    return palette;
}

}  // namespace

int main(int argc, char* argv[]) {
    QApplication::setStyle(QStringLiteral("fusion"));
    QApplication application(argc, argv);
    const Translations translations;
    const QDir folder(application.arguments().value(1, QStringLiteral(".")));

    QtMainQueue mainQueue;
    const QtImageCodec imageCodec;
    const QtStrings strings;
    BackgroundThread backgroundQueue;
    MarlevoApp app({.mainQueue = &mainQueue,
                    .imageCodec = &imageCodec,
                    .backgroundQueue = &backgroundQueue,
                    .strings = &strings});
    DocumentWindow& window = app.openWindow();
    window.resize(1600, 880);
    if (!QTest::qWaitForWindowActive(&window)) qFatal("the window was not shown");

    Picture picture(window);
    picture.save(folder.filePath("new-canvas.png"));
    window.content().setShowNewCanvas(false);
    QTest::qWait(300);
    picture.draw();
    picture.press("Layers");
    picture.save(folder.filePath("window.png"));

    QApplication::setPalette(darkPalette());
    picture.save(folder.filePath("window-dark.png"));
    return 0;
}
