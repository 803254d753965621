#pragma once

#include <QWidget>

namespace marlevo {

/// A horizontal line, one point thick, between two parts of a window.
class Divider final : public QWidget {
    Q_OBJECT

public:
    explicit Divider(QWidget* parent = nullptr);

protected:
    void paintEvent(QPaintEvent* event) override;
};

}  // namespace marlevo
