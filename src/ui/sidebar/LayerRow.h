#pragma once

#include "ui/controls/ChoiceButton.h"
#include "ui/controls/TextLabel.h"
#include "ui/sidebar/LayerThumbnailView.h"

namespace marlevo {

/// The button with an eye that shows and hides a layer.
class EyeButton final : public ToolButton {
    Q_OBJECT

public:
    explicit EyeButton(QWidget* parent = nullptr);

    void showLayer(const Layer& layer);

private:
    QString layerName_;
    bool isLayerVisible_ = true;
};

/// One layer in the list of layers; pressing it makes the layer the active one. The name is beside
/// the thumbnail, or below it where only a few letters would have room. A long name is elided.
class LayerRow final : public ChoiceButton {
    Q_OBJECT

public:
    /// The services and the cache must outlive the row.
    LayerRow(const Services& services, ImageCache& images, const Uuid& layerID,
             QWidget* parent = nullptr);

    const Uuid& layerID() const { return layerID_; }

    void showLayer(const Layer& layer, CanvasSize canvas);

    /// Marks the layer as the active one, or not.
    void showActive(bool isActive);

    /// Puts the row and its eye button after `previous`, if not null, in the order of Tab. Returns
    /// the last of them.
    QWidget* followInTabOrder(QWidget* previous);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;
    int heightForWidth(int width) const override;

Q_SIGNALS:
    void visibilityToggled();

protected:
    bool event(QEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    int roomBesideThumbnail(int width) const;
    bool isNameBelow(int width) const;
    void layOut();

    Uuid layerID_;
    LayerThumbnailView thumbnail_;
    TextLabel name_;
    EyeButton eye_;
    QRect dot_;  ///< before mirroring
};

}  // namespace marlevo
