#include "ui/sidebar/SectionHeader.h"

#include <QLocale>
#include <QVBoxLayout>

namespace marlevo {

namespace {

// View points.
constexpr int spacing = 10;
constexpr int padding = 4;

}  // namespace

SectionHeader::SectionHeader(const QString& title, QWidget* parent)
    : TextLabel(title, textlook::captionTitle, parent) {
    setWordWrap(true);
}

QVBoxLayout* makeSectionColumn(QWidget& section, const QString& title) {
    auto* column = new QVBoxLayout(&section);
    column->setContentsMargins(0, padding, 0, padding);
    column->setSpacing(spacing);
    column->addWidget(new SectionHeader(title));
    return column;
}

}  // namespace marlevo
