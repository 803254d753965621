#pragma once

#include <QWidget>

namespace marlevo {

/// A horizontal line, one point thick, between two parts of a window.
class Separator final : public QWidget {
    Q_OBJECT

public:
    /// `padding`: the points of room above and below the line.
    explicit Separator(int padding = 0, QWidget* parent = nullptr);

protected:
    void paintEvent(QPaintEvent* event) override;
};

}  // namespace marlevo
