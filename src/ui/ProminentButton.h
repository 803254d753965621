#pragma once

#include <QPushButton>

namespace marlevo {

/// The button that carries on: white on blue while it is enabled.
class ProminentButton final : public QPushButton {
    Q_OBJECT

public:
    explicit ProminentButton(const QString& title, QWidget* parent = nullptr);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override { return sizeHint(); }

protected:
    void paintEvent(QPaintEvent* event) override;
};

}  // namespace marlevo
