#include "ui/controls/DisclosureSection.h"

#include "platform/qt/DesktopSettings.h"

#include <QApplication>
#include <QEvent>
#include <QStyle>

#include <algorithm>
#include <cmath>

namespace marlevo {

namespace {

constexpr int contentIndent = 4;
constexpr int openingDuration = 150;

/// True unless the style or the desktop's settings disable animation.
bool isMotionWanted() {
    const int duration = QApplication::style()->styleHint(QStyle::SH_Widget_Animation_Duration);
    return duration > 0 && DesktopSettings::instance().isMotionWanted();
}

}  // namespace

DisclosureSection::DisclosureSection(const QString& name, const QList<QWidget*>& header,
                                     QWidget* content, Start start, QWidget* parent)
    : QWidget(parent), button_(name, header, this), clip_(this), content_(content) {
    content_->setParent(&clip_);
    QSizePolicy policy(QSizePolicy::Preferred, QSizePolicy::Preferred);
    policy.setHeightForWidth(true);
    setSizePolicy(policy);
    motion_.setEasingCurve(QEasingCurve::InOutQuad);
    connect(&motion_, &QVariantAnimation::valueChanged, this,
            [this](const QVariant& share) { showOpening(share.toDouble()); });
    connect(&button_, &DisclosureButton::clicked, this, [this] { setOpen(!isOpen()); });
    clip_.installEventFilter(this);
    content_->installEventFilter(this);

    // Starts the query to the desktop, so that the answer has arrived before the first press.
    (void)isMotionWanted();

    const bool open = start == Start::open;
    button_.setOpen(open);
    opening_ = open ? 1 : 0;
    showOpening(opening_);
}

void DisclosureSection::setOpen(bool open) {
    if (open == isOpen()) return;
    button_.setOpen(open);
    motion_.stop();
    motion_.setStartValue(opening_);
    motion_.setEndValue(open ? 1.0 : 0.0);
    motion_.setDuration(isMotionWanted() ? openingDuration : 0);
    motion_.start();
}

void DisclosureSection::showOpening(double share) {
    opening_ = share;
    button_.showOpening(share);
    clip_.setVisible(share > 0);
    updateGeometry();
    layOut();
}

/// Of the open content in a section of this width.
int DisclosureSection::contentHeight(int width) const {
    return content_->hasHeightForWidth() ? content_->heightForWidth(width - contentIndent)
                                         : content_->sizeHint().height();
}

/// Of the part that is seen.
int DisclosureSection::clipHeight(int width) const {
    return int(std::lround(opening_ * contentHeight(width)));
}

int DisclosureSection::heightForWidth(int width) const {
    return button_.heightForWidth(width) + clipHeight(width);
}

QSize DisclosureSection::sizeHint() const {
    const QSize header = button_.sizeHint();
    const QSize content = content_->sizeHint();
    const int width = std::max(header.width(), content.width() + contentIndent);
    return {width, heightForWidth(width)};
}

QSize DisclosureSection::minimumSizeHint() const {
    const int content = content_->minimumSizeHint().width() + contentIndent;
    return {std::max(button_.minimumSizeHint().width(), content),
            button_.minimumSizeHint().height()};
}

void DisclosureSection::layOut() {
    const int header = button_.heightForWidth(width());
    button_.setGeometry(0, 0, width(), header);
    const QRect place(contentIndent, header, width() - contentIndent, clipHeight(width()));
    clip_.setGeometry(QStyle::visualRect(layoutDirection(), rect(), place));
    content_->setGeometry(0, 0, place.width(), contentHeight(width()));
}

void DisclosureSection::resizeEvent(QResizeEvent*) { layOut(); }

bool DisclosureSection::event(QEvent* event) {
    // The button's size has changed.
    if (event->type() == QEvent::LayoutRequest) updateGeometry();
    if (event->type() == QEvent::LayoutRequest || event->type() == QEvent::LayoutDirectionChange)
        layOut();
    return QWidget::event(event);
}

bool DisclosureSection::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::LayoutRequest) {
        updateGeometry();
        layOut();
    }
    return QWidget::eventFilter(watched, event);
}

}  // namespace marlevo
