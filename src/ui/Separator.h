#pragma once

#include <QWidget>

namespace marlevo {

/// A line between sections: 1 point high, with 2 points of room above and below.
class Separator final : public QWidget {
    Q_OBJECT

public:
    explicit Separator(QWidget* parent = nullptr);

protected:
    void paintEvent(QPaintEvent* event) override;
};

}  // namespace marlevo
