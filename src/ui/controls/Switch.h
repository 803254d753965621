#pragma once

#include <QCheckBox>

namespace marlevo {

/// A switch with its label; the knob stands at the trailing side while it is on.
class Switch final : public QCheckBox {
    Q_OBJECT

public:
    explicit Switch(const QString& label, QWidget* parent = nullptr);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override { return sizeHint(); }

protected:
    bool hitButton(const QPoint& position) const override { return rect().contains(position); }
    void paintEvent(QPaintEvent* event) override;
};

}  // namespace marlevo
