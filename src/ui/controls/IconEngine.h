#pragma once

#include "ui/controls/Icons.h"
#include "ui/controls/SemanticColors.h"

#include <QIconEngine>

#include <optional>

namespace marlevo {

/// Lets the toolkit's controls show an `Icon`, in the colours of the current palette and sharp at
/// every scale of the screen.
class IconEngine final : public QIconEngine {
public:
    /// Without a colour, the icon has the colour of the painter's pen, or that of primary text
    /// where the toolkit asks for a pixmap.
    explicit IconEngine(Icon icon, std::optional<SemanticColor> color = {});

    void paint(QPainter* painter, const QRect& rect, QIcon::Mode mode, QIcon::State state) override;
    QPixmap pixmap(const QSize& size, QIcon::Mode mode, QIcon::State state) override;
    QIconEngine* clone() const override;

private:
    Icon icon_;
    std::optional<SemanticColor> color_;
};

/// The icon for one of the toolkit's controls; colours as above.
QIcon makeIcon(Icon icon, std::optional<SemanticColor> color = {});

}  // namespace marlevo
