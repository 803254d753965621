#pragma once

#include <QScrollArea>
#include <QWidget>

namespace marlevo {

/// Shows a sheet in the middle of a window's content, which is dimmed and gets no pointer events,
/// focus by Tab or drops until the host is deleted. The menus stay usable. A sheet larger than the
/// window scrolls.
class SheetHost final : public QWidget {
    Q_OBJECT

public:
    /// The host covers the content and follows its size.
    explicit SheetHost(QWidget& content);

    /// Takes ownership of the sheet and gives it the focus. Its size hint is its preferred size.
    void setSheet(QWidget* sheet);

    /// Restores the focus and deletes the host after the current event, which the sheet may still
    /// be handling.
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
