#pragma once

#include <QScrollArea>
#include <QWidget>

namespace marlevo {

/// Shows a sheet in the middle of a window's content, which lies dimmed and out of reach below it
/// until the host goes: the pointer, Tab and drops stay inside. The menus stay in reach. A sheet
/// that finds too little room scrolls.
class SheetHost final : public QWidget {
    Q_OBJECT

public:
    /// The host covers the content and stays as large as that is.
    explicit SheetHost(QWidget& content);

    /// Takes the sheet, which has its preferred size as its size hint, and gives it the keyboard.
    void setSheet(QWidget* sheet);

    /// Gives the keyboard back and goes after the current event, in which the sheet may still be
    /// busy.
    void dismiss();

    bool eventFilter(QObject* watched, QEvent* event) override;

protected:
    void showEvent(QShowEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;
    void dragEnterEvent(QDragEnterEvent* event) override;

private:
    void layOut();

    QScrollArea frame_;
};

}  // namespace marlevo
