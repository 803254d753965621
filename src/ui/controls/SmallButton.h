#pragma once

#include <QPushButton>

namespace marlevo {

/// A push button with text in caption size and narrow padding. It takes the focus by Tab only.
class SmallButton final : public QPushButton {
    Q_OBJECT

public:
    explicit SmallButton(const QString& title, QWidget* parent = nullptr);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override { return sizeHint(); }
};

}  // namespace marlevo
