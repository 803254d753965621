#pragma once

#include "model/Follower.h"
#include "ui/controls/TextLabel.h"

namespace marlevo {

class DrawingDocument;

/// The number of layers, on a capsule beside the section's title.
class LayerCount final : public TextLabel {
    Q_OBJECT

public:
    /// The document must outlive the label.
    explicit LayerCount(DrawingDocument& document, QWidget* parent = nullptr);

    QSize minimumSizeHint() const override { return sizeHint(); }

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    Follower follower_;
};

}  // namespace marlevo
