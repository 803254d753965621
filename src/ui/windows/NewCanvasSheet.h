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

/// A form for the size of the canvas: a preset or typed numbers. Confirming sets the document's
/// canvas size and nothing else.
class NewCanvasSheet final : public QWidget {
    Q_OBJECT

public:
    /// The document must outlive the sheet. `dismiss` must close the sheet.
    NewCanvasSheet(DrawingDocument& document, std::function<void()> dismiss);

    /// The size that "Create Canvas" applies. Nothing if no preset is chosen, or if a typed side is
    /// not a number in C notation above 0 and at most 10000. Fractions are not rounded.
    std::optional<CanvasSize> resolveSize() const;

    QSize sizeHint() const override;

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;

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
