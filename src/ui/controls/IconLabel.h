#pragma once

#include "ui/controls/Icons.h"
#include "ui/controls/SemanticColors.h"
#include "ui/controls/TypeScale.h"

#include <QWidget>

namespace marlevo {

/// Shows an icon beside text of a size.
class IconLabel final : public QWidget {
    Q_OBJECT

public:
    IconLabel(Icon icon, TypeStyle style, SemanticColor color, QWidget* parent = nullptr);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override { return sizeHint(); }

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    Icon icon_;
    TypeStyle style_;
    SemanticColor color_;
};

}  // namespace marlevo
