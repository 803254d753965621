#include "ui/sidebar/SidebarView.h"

#include "ui/controls/AppearanceNotifier.h"
#include "ui/controls/DisclosureSection.h"
#include "ui/controls/SemanticColors.h"
#include "ui/controls/Separator.h"
#include "ui/sidebar/ActionRow.h"
#include "ui/sidebar/DrawingSection.h"
#include "ui/sidebar/FormsSection.h"
#include "ui/sidebar/LayerCount.h"
#include "ui/sidebar/LayersSection.h"
#include "ui/sidebar/SectionHeader.h"
#include "ui/sidebar/SidebarAccessibility.h"
#include "ui/sidebar/ViewSection.h"

#include <QEvent>
#include <QScrollBar>
#include <QVBoxLayout>

#include <algorithm>

namespace marlevo {

namespace {

constexpr int sidePadding = 12;
constexpr int verticalPadding = 8;
constexpr int spacing = 14;
constexpr int separatorPadding = 2;

}  // namespace

SidebarView::SidebarView(DrawingDocument& document, ImageCache& images, QWidget* parent)
    : QScrollArea(parent), column_(new QWidget) {
    installSidebarAccessibility();
    setFrameShape(NoFrame);
    setWidgetResizable(true);
    setFocusPolicy(Qt::NoFocus);
    setAutoFillBackground(true);
    setAccessibleName(tr("Sidebar"));
    addSections(document, images);
    setWidget(column_);
    updateColors();
    connect(&AppearanceNotifier::instance(), &AppearanceNotifier::paletteChanged, this,
            &SidebarView::updateColors);
    verticalScrollBar()->installEventFilter(this);
    makeRoomForScrollBar();
}

void SidebarView::addSections(DrawingDocument& document, ImageCache& images) {
    using Start = DisclosureSection::Start;
    auto* column = new QVBoxLayout(column_);
    column->setSpacing(spacing);
    column->addWidget(new ActionRow(document));
    column->addWidget(new Separator(separatorPadding));
    column->addWidget(new DrawingSection(document));
    column->addWidget(new Separator(separatorPadding));
    column->addWidget(new FormsSection(document));
    column->addWidget(new Separator(separatorPadding));
    column->addWidget(new DisclosureSection(tr("View"), {new SectionHeader(tr("View"))},
                                            new ViewSection(document), Start::open));
    column->addWidget(new Separator(separatorPadding));
    column->addWidget(new DisclosureSection(
        tr("Layers"), {new SectionHeader(tr("Layers")), new LayerCount(document)},
        new LayersSection(document, images), Start::closed));
    column->addStretch(1);
}

QSize SidebarView::sizeHint() const { return {idealWidth, column_->sizeHint().height()}; }

QSize SidebarView::minimumSizeHint() const { return {leastWidth, 0}; }

void SidebarView::updateColors() { setPalette(semanticPalette(SemanticColor::controlBackground)); }

void SidebarView::makeRoomForScrollBar() {
    // The padding shrinks by the width of the scroll bar, so that the column keeps its width.
    const QScrollBar& bar = *verticalScrollBar();
    const int trailing =
        bar.isVisible() ? std::max(0, sidePadding - bar.sizeHint().width()) : sidePadding;
    column_->layout()->setContentsMargins(isRightToLeft() ? trailing : sidePadding, verticalPadding,
                                          isRightToLeft() ? sidePadding : trailing,
                                          verticalPadding);
}

bool SidebarView::event(QEvent* event) {
    if (event->type() == QEvent::LayoutDirectionChange) makeRoomForScrollBar();
    return QScrollArea::event(event);
}

bool SidebarView::eventFilter(QObject* watched, QEvent* event) {
    const bool isShownOrHidden = event->type() == QEvent::Show || event->type() == QEvent::Hide;
    if (watched == verticalScrollBar() && isShownOrHidden) makeRoomForScrollBar();
    return QScrollArea::eventFilter(watched, event);
}

}  // namespace marlevo
