#include "tools/PointerGesture.h"

#include "tools/EyeDropper.h"
#include "tools/FillTool.h"
#include "tools/Selection.h"
#include "tools/StrokeCapture.h"

#include <utility>

namespace marlevo {

void PointerGesture::begin(Point at) {
    interrupt();
    if (document_.isSelectTool)
        state_ = Selecting{};
    else if (document_.isFillTool || document_.isEyeDropper)
        state_ = Pressing{};
    else
        state_ = Drawing{};
    move({at, {}});
}

void PointerGesture::move(const Sample& sample) {
    if (std::holds_alternative<Drawing>(state_))
        draw(sample.at);
    else if (std::holds_alternative<Selecting>(state_))
        startMove(sample);
    else if (std::holds_alternative<Moving>(state_))
        updateSelectDrag(document_, sample.sincePress);
}

void PointerGesture::end(Point at, Click click) {
    if (!isActive()) return;
    finish();
    if (click == Click::yes) this->click(at);
}

void PointerGesture::interrupt() { finish(); }

void PointerGesture::finish() {
    const auto ended = std::exchange(state_, Idle{});
    if (std::holds_alternative<Drawing>(ended))
        endStroke(document_);
    else if (std::holds_alternative<Moving>(ended))
        endSelectDrag(document_);
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
        state_ = Pressing{};
        return;
    }
    if (!document_.selectedStrokeIndex->has_value()) selectStroke(document_, sample.at);
    if (!document_.selectionDragStartPositions->has_value()) beginSelectDrag(document_);
    // Absent if nothing is selected, or if the selection names a stroke that is gone.
    if (!document_.selectionDragStartPositions->has_value()) return;
    state_ = Moving{};
    updateSelectDrag(document_, sample.sincePress);
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
