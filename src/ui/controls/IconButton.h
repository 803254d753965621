#pragma once

#include "ui/controls/Icons.h"
#include "ui/controls/PaintedButton.h"
#include "ui/controls/TypeScale.h"

namespace marlevo {

/// A button that shows an icon and nothing else.
class IconButton final : public PaintedButton {
    Q_OBJECT

public:
    enum class Look : unsigned char {
        borderless,  ///< for the actions on the document: 28 × 26 points, body size
        bordered,    ///< for a list's buttons: 24 × 22 points, caption size
    };

    /// `name` is the accessible name.
    IconButton(Icon icon, const QString& name, Look look, QWidget* parent = nullptr);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override { return sizeHint(); }

protected:
    void paintContents(QPainter& painter) override;

private:
    TypeStyle iconStyle() const;

    Icon icon_;
    Look look_;
};

}  // namespace marlevo
