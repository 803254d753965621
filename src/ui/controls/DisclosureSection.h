#pragma once

#include "ui/controls/DisclosureButton.h"

#include <QVariantAnimation>

namespace marlevo {

/// Content below a header that opens and closes it with an animation of 0.15 s, or at once if the
/// desktop disables motion. The content is hidden while the section is closed.
class DisclosureSection final : public QWidget {
    Q_OBJECT

public:
    enum class Start : unsigned char { closed, open };

    /// Takes the header's widgets and the content as children.
    DisclosureSection(const QString& name, const QList<QWidget*>& header, QWidget* content,
                      Start start, QWidget* parent = nullptr);

    bool isOpen() const { return button_.isOpen(); }
    void setOpen(bool open);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;
    int heightForWidth(int width) const override;

protected:
    void resizeEvent(QResizeEvent* event) override;
    bool event(QEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void showOpening(double share);
    int contentHeight(int width) const;
    int clipHeight(int width) const;
    void layOut();

    DisclosureButton button_;
    QWidget clip_;  ///< clips the content during the animation
    QWidget* content_;
    QVariantAnimation motion_;
    double opening_ = 0;  ///< 0 closed, 1 open
};

}  // namespace marlevo
