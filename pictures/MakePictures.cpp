// Draws in a real window with the mouse and saves pictures of it: make_pictures <folder>. With a
// scale factor, or in a language other than English, only the windows that differ are saved.
// With "fonts" as second argument it saves a series instead: the smallest window with the narrowest
// sidebar, and the whole of that sidebar, at several sizes of the desktop's font, light and dark.

#include "pictures/Landscape.h"
#include "platform/BackgroundThread.h"
#include "platform/qt/QtImageCodec.h"
#include "platform/qt/QtMainQueue.h"
#include "platform/qt/QtPreferences.h"
#include "platform/qt/QtStrings.h"
#include "ui/controls/ControlPainting.h"
#include "ui/controls/DisclosureSection.h"
#include "ui/controls/Icons.h"
#include "ui/controls/MarlevoStyle.h"
#include "ui/controls/SemanticColors.h"
#include "ui/sidebar/ActionRow.h"
#include "ui/sidebar/ExportPopover.h"
#include "ui/sidebar/SidebarView.h"
#include "ui/windows/MarlevoApp.h"
#include "ui/windows/SettingsWindow.h"
#include "ui/windows/Translations.h"

#include <QApplication>
#include <QDir>
#include <QMessageBox>
#include <QPainter>
#include <QPalette>
#include <QSplitter>
#include <QTemporaryDir>

#include <algorithm>

using namespace marlevo;

namespace {

struct View {
    QSize window;
    double zoom;
};

/// The largest window that the README shows unscaled.
constexpr View viewAt(double scale) {
    return scale < 2 ? View{{1160, 860}, 0.65} : View{{980, 850}, 0.53};
}

constexpr int mostCompressed = 0;

/// Reduces the colours invisibly, for small files: the pictures are part of the repository.
QImage inFewerColors(const QImage& picture) {
    constexpr int step = 5;
    QImage image = picture.convertToFormat(QImage::Format_RGB888);
    for (int y = 0; y < image.height(); ++y) {
        uchar* const line = image.scanLine(y);
        std::transform(line, line + 3 * image.width(), line,
                       [](uchar value) { return uchar((value + step / 2) / step * step); });
    }
    return image;
}

class Pictures {
public:
    Pictures(DocumentWindow& window, const QString& folder) : window_(window), folder_(folder) {}

    void ofTheWindow(const QString& name) { save(shot(window_), name); }

    /// All that the sidebar shows when it is scrolled.
    void ofTheWholeSidebar(const QString& name) {
        save(shot(*window_.findChild<SidebarView*>()->widget()), name);
    }

    void ofTheExportPopover(const QString& name) {
        for (auto* button : window_.findChildren<QAbstractButton*>())
            if (button->toolTip() == ActionRow::tr("Export")) button->click();
        save(shot(window_), name);
        window_.findChild<ExportPopover*>()->dismiss();
    }

    void ofTheSettings(MarlevoApp& app, const QString& name) {
        app.showSettings();
        for (QWidget* widget : QApplication::topLevelWidgets())
            if (auto* settings = qobject_cast<SettingsWindow*>(widget)) {
                save(withDialog(shot(window_), *settings), name);
                settings->close();
            }
    }

    void ofTheCloseQuestion(const QString& name) {
        window_.close();
        auto* const question = window_.findChild<QMessageBox*>();
        save(withDialog(shot(window_), *question), name);
        question->reject();
    }

private:
    static QPixmap shot(QWidget& widget) {
        // Thumbnails are made on another thread, and sections open with an animation.
        QTest::qWait(600);
        return widget.grab();
    }

    /// A dialog over its window, without the frame of the desktop.
    static QPixmap withDialog(QPixmap window, QWidget& dialog) {
        const QPixmap front = shot(dialog);
        QPainter painter(&window);
        QRectF place({}, front.deviceIndependentSize());
        place.moveCenter(QRectF({}, window.deviceIndependentSize()).center().toPoint());
        for (int reach = 24; reach > 0; --reach)
            paintRoundedRect(painter, place.adjusted(-reach, -reach, reach, reach).translated(0, 6),
                             reach + 6, QColor(0, 0, 0, 2));
        painter.drawPixmap(place.topLeft(), front);
        paintRoundedRect(painter, place.adjusted(-1, -1, 1, 1), 1, Qt::transparent,
                         {semanticColor(SemanticColor::gray), 1});
        return window;
    }

    void save(const QPixmap& picture, const QString& name) {
        const QString file = QDir(folder_).filePath(name + QLatin1String(".png"));
        if (!inFewerColors(picture.toImage()).save(file, "PNG", mostCompressed))
            qFatal("cannot write %s", qPrintable(file));
    }

    DocumentWindow& window_;
    QString folder_;
};

QPalette darkPalette() {
    QPalette palette;
    setSemanticColors(palette, Appearance::dark, SemanticColor::windowBackground);
    return palette;
}

constexpr QSize smallestWindow(700, 560);
constexpr int fontSizes[] = {10, 16, 20};  // points

void saveSeries(DocumentWindow& window, Pictures& pictures, const QString& suffix) {
    window.resize(smallestWindow);
    window.findChild<QSplitter*>()->setSizes({SidebarView::leastWidth, window.width()});
    for (const bool isDark : {false, true}) {
        QApplication::setPalette(isDark ? darkPalette() : QPalette());
        for (const int points : fontSizes) {
            QFont font = QApplication::font();
            font.setPointSize(points);
            QApplication::setFont(font);
            const QString name =
                QStringLiteral("%1pt%2%3").arg(points).arg(isDark ? "-dark" : "", suffix);
            pictures.ofTheWindow("window-" + name);
            pictures.ofTheWholeSidebar("sidebar-" + name);
        }
    }
}

void openAllSections(DocumentWindow& window) {
    for (auto* section : window.findChildren<DisclosureSection*>())
        section->setOpen(true);
}

}  // namespace

int main(int argc, char* argv[]) {
    // The settings of the user are neither shown nor changed.
    const QTemporaryDir home;
    qputenv("XDG_CONFIG_HOME", home.path().toUtf8());
    QApplication application(argc, argv);
    QApplication::setStyle(new MarlevoStyle);
    QApplication::setApplicationName(QStringLiteral("Marlevo"));
    const Translations translations;

    QtMainQueue mainQueue;
    const QtImageCodec imageCodec;
    QtPreferences preferences;
    const QtStrings strings;
    BackgroundThread backgroundQueue;
    MarlevoApp app({.mainQueue = &mainQueue,
                    .imageCodec = &imageCodec,
                    .preferences = &preferences,
                    .backgroundQueue = &backgroundQueue,
                    .strings = &strings});
    DocumentWindow& window = app.openWindow();
    const double scale = window.devicePixelRatioF();
    const View view = viewAt(scale);
    window.resize(view.window);
    window.document().zoom = view.zoom;
    if (!QTest::qWaitForWindowActive(&window)) qFatal("the window was not shown");

    const QLocale::Language language = QLocale().language();
    const bool isEnglish = language == QLocale::English || language == QLocale::C;
    QString suffix = isEnglish ? QString() : "-" + QLocale::languageToCode(language);
    if (scale != 1) suffix += QStringLiteral("@%1x").arg(scale);
    const bool isPlain = suffix.isEmpty();

    Pictures pictures(window, application.arguments().value(1, QStringLiteral(".")));
    if (isPlain) pictures.ofTheWindow("new-canvas");
    window.content().setShowNewCanvas(false);
    openAllSections(window);
    Landscape(window).draw();
    if (application.arguments().value(2) == QLatin1String("fonts")) {
        saveSeries(window, pictures, suffix);
        return 0;
    }
    pictures.ofTheWindow("window" + suffix);
    if (isPlain) {
        pictures.ofTheExportPopover("export");
        pictures.ofTheSettings(app, "settings");
        pictures.ofTheCloseQuestion("close");
    }
    if (!isEnglish) return 0;
    QApplication::setPalette(darkPalette());
    pictures.ofTheWindow("window-dark" + suffix);
    return 0;
}
