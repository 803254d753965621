#pragma once

#include "render/LayerThumbnail.h"

#include <QWidget>

#include <optional>

namespace marlevo {

/// Shows a layer's thumbnail in a frame of 44 × 32 points. Renders nothing while it is hidden.
class LayerThumbnailView final : public QWidget {
    Q_OBJECT

public:
    /// The services and the cache must outlive the view.
    LayerThumbnailView(const Services& services, ImageCache& images, QWidget* parent = nullptr);

    /// To be called whenever the layer or the canvas may have changed.
    void showLayer(const Layer& layer, CanvasSize canvas);

    /// Whether the frame marks the layer as the active one.
    void setActive(bool isActive);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override { return sizeHint(); }

protected:
    void showEvent(QShowEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    LayerThumbnail thumbnail_;
    std::optional<Layer> layer_;
    CanvasSize canvas_;
    bool isActive_ = false;
};

}  // namespace marlevo
