#include "ui/controls/SmallButton.h"

#include "ui/controls/TypeScale.h"

namespace marlevo {

namespace {

constexpr QSize padding(16, 4);  // both sides together, view points

}  // namespace

SmallButton::SmallButton(const QString& title, QWidget* parent) : QPushButton(title, parent) {
    setAutoDefault(false);
    setFocusPolicy(Qt::TabFocus);
    setTypeStyle(*this, TypeStyle::caption);
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
}

QSize SmallButton::sizeHint() const {
    return QSize(fontMetrics().horizontalAdvance(text()), fontMetrics().height()) + padding;
}

}  // namespace marlevo
