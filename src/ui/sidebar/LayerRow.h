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

    void showLayer(const QString& name, bool isVisible);

private:
    QString layerName_;
    bool isLayerVisible_ = true;
};

/// One layer in the list of layers; pressing it makes the layer the active one.
class LayerRow final : public ChoiceButton {
    Q_OBJECT

public:
    /// The services and the cache must outlive the row.
    LayerRow(const Services& services, ImageCache& images, const Uuid& layerID,
             QWidget* parent = nullptr);

    const Uuid& layerID() const { return layerID_; }

    void showLayer(const Layer& layer, CanvasSize canvas, bool isActive);

    /// Puts the row and its eye button after `previous`, if not null, in the order of Tab. Returns
    /// the last of them.
    QWidget* followInTabOrder(QWidget* previous);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

Q_SIGNALS:
    void visibilityToggled();

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    Uuid layerID_;
    LayerThumbnailView thumbnail_;
    TextLabel name_;
    EyeButton eye_;
};

}  // namespace marlevo
