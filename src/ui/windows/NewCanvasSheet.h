#pragma once

#include "model/CanvasSize.h"
#include "ui/controls/CheckBox.h"
#include "ui/controls/FocusGroup.h"
#include "ui/controls/TextLabel.h"

#include <QLineEdit>
#include <QPushButton>

#include <functional>
#include <optional>
#include <vector>

class QBoxLayout;

namespace marlevo {

class DrawingDocument;
class PresetRow;

/// Asks for the size of the canvas: one of the presets, or one typed in. Confirming sets the
/// document's canvas size and nothing else.
class NewCanvasSheet final : public QWidget {
    Q_OBJECT

public:
    /// The document must outlive the sheet. `dismiss` is called when the sheet wants to close.
    NewCanvasSheet(DrawingDocument& document, std::function<void()> dismiss);

    /// The size that "Create Canvas" would apply; nothing while none is chosen, or when a side
    /// typed is no number in C notation, not above 0, or above 10000. A fraction stays as typed.
    std::optional<CanvasSize> resolveSize() const;

    QSize sizeHint() const override;

protected:
    void keyPressEvent(QKeyEvent* event) override;

private:
    QLayout* makeHeader();
    QWidget* makePresetList();
    QLayout* makeCustomSection();
    QLayout* makeFooter();

    void proposeDefaultSize();
    void choosePreset(const Uuid& id);
    void setUseCustom(bool useCustom);
    void showState();
    void createCanvas();

    DrawingDocument& document_;
    std::function<void()> dismiss_;
    std::optional<Uuid> selectedPresetID_;
    std::vector<PresetRow*> rows_;
    FocusGroup rowFocus_;
    CheckBox useCustom_;
    QLineEdit customW_;
    QLineEdit customH_;
    TextLabel preview_;
    QPushButton create_;
};

}  // namespace marlevo
