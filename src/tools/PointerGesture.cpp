#include "tools/PointerGesture.h"

#include "model/ScopedValue.h"
#include "tools/EyeDropper.h"
#include "tools/FillTool.h"
#include "tools/Selection.h"
#include "tools/StrokeCapture.h"

namespace marlevo {

void PointerGesture::begin(Point at) {
    interrupt();
    if (document_.isSelectTool)
        state_.emplace<Selecting>();
    else if (document_.isFillTool || document_.isEyeDropper)
        state_.emplace<Pressing>();
    else
        state_.emplace<Drawing>();
    move({at, {}});
}

void PointerGesture::move(const Sample& sample) {
    if (std::holds_alternative<Drawing>(state_))
        draw(sample.at);
    else if (std::holds_alternative<Selecting>(state_))
        startMove(sample);
    else if (std::holds_alternative<Moving>(state_))
        updateMove(sample.sincePress);
}

void PointerGesture::end(Point at, Click click) {
    if (std::holds_alternative<Idle>(state_)) return;
    const bool isOver = std::holds_alternative<Over>(state_);
    finish();
    if (isOver) return;
    if (click == Click::yes) this->click(at);
}

void PointerGesture::interrupt() { finish(); }

void PointerGesture::finish() {
    const bool wasDrawing = std::holds_alternative<Drawing>(state_);
    const bool wasMoving = std::holds_alternative<Moving>(state_);
    state_.emplace<Idle>();
    if (wasDrawing) endStroke(document_);
    if (wasMoving) endSelectDrag(document_);
}

/// The stroke may be absent in mid-press, because another drawing was opened.
void PointerGesture::draw(Point at) {
    if (document_.currentStroke->has_value())
        addPointToStroke(document_, at);
    else
        beginStroke(document_, at);
}

/// A press beside every stroke may reach one later. With a stroke selected, it moves that one,
/// wherever it is.
void PointerGesture::startMove(const Sample& sample) {
    if (!document_.isSelectTool) {
        state_.emplace<Pressing>();
        return;
    }
    if (!document_.selectedStrokeIndex->has_value()) selectStroke(document_, sample.at);
    if (!document_.selectionDragStartPositions->has_value()) beginSelectDrag(document_);
    // Nothing may be selected, or the selection may name a removed stroke.
    if (selectedStroke(document_) == nullptr) return;
    auto& moving = state_.emplace<Moving>(
        document_.changeRegistry(), [this](DocumentProperty change) { endMoveAfter(change); });
    moving.reader.observe([this] {
        (void)*document_.isSelectTool, (void)*document_.selectedLayerID;
        (void)*document_.selectedStrokeIndex, (void)*document_.selectionDragStartPositions;
        (void)*document_.layers, (void)document_.canUndo(), (void)document_.canRedo();
    });
    updateMove(sample.sincePress);
}

void PointerGesture::updateMove(Size sincePress) {
    const ScopedValue ownChange(isOwnChange_, true);
    updateSelectDrag(document_, sincePress);
    auto* const moving = std::get_if<Moving>(&state_);
    if (moving == nullptr) return;  // a reader of the document has ended the move
    if (const Stroke* const stroke = selectedStroke(document_)) moving->points = stroke->points;
}

/// Layers may change while the stroke stays where the move has put it: the move continues
/// when a layer is hidden.
void PointerGesture::endMoveAfter(DocumentProperty change) {
    if (change == DocumentProperty::layers) {
        const auto& moving = std::get<Moving>(state_);
        const Stroke* const stroke = selectedStroke(document_);
        if (isOwnChange_ || (stroke && stroke->points == moving.points)) return;
    }
    state_.emplace<Over>();
    endSelectDrag(document_);
}

/// The order differs from that of a press, which matters when several tool flags are set.
void PointerGesture::click(Point at) {
    if (document_.isFillTool)
        performFill(document_, at);
    else if (document_.isEyeDropper)
        pickColor(document_, at);
    else if (document_.isSelectTool)
        selectStroke(document_, at);
}

}  // namespace marlevo
