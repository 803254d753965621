#pragma once

#include <QObject>

#include <functional>

class QWidget;

namespace marlevo {

/// Shows the whole text of a widget in a tooltip while the widget shows it elided. A tooltip that
/// the widget has itself takes precedence.
class ElidedToolTip final : public QObject {
    Q_OBJECT

public:
    /// Owned by the widget. `elidedText` returns the whole text, or an empty string if the widget
    /// has room for all of it.
    ElidedToolTip(QWidget* widget, std::function<QString()> elidedText);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    QWidget& widget_;
    std::function<QString()> elidedText_;
};

}  // namespace marlevo
