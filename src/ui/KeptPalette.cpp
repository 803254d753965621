#include "ui/KeptPalette.h"

#include <QEvent>
#include <QWidget>

#include <utility>

namespace marlevo {

namespace {

/// Lives with the widget.
class PaletteKeeper final : public QObject {
public:
    PaletteKeeper(QWidget& widget, std::function<QPalette()> make)
        : QObject(&widget), widget_(widget), make_(std::move(make)) {
        widget.installEventFilter(this);
        widget.setPalette(make_());
    }

    bool eventFilter(QObject* watched, QEvent* event) override {
        if (event->type() == QEvent::ApplicationPaletteChange) widget_.setPalette(make_());
        return QObject::eventFilter(watched, event);
    }

private:
    QWidget& widget_;
    std::function<QPalette()> make_;
};

}  // namespace

void keepPalette(QWidget& widget, std::function<QPalette()> make) {
    new PaletteKeeper(widget, std::move(make));
}

}  // namespace marlevo
