#pragma once

#include "graphics/Point.h"
#include "graphics/Size.h"
#include "model/DrawingDocument.h"
#include "tools/ClickDetector.h"

#include <utility>
#include <variant>

namespace marlevo {

/// What one press of the primary button does to a document, from its beginning to its end.
///
/// A press of the select tool moves the selected stroke and selects one first if none is selected.
/// A press of the fill tool or the eyedropper does nothing before the click. Any other press draws
/// a stroke. The end of a press ends what the press began, even if another tool has been chosen
/// since, so neither a stroke in progress nor the start positions of a move outlast the press.
///
/// Positions in canvas pixels. Used on the document's thread; calls that do not belong to a press
/// do nothing.
class PointerGesture {
public:
    struct Sample {
        Point at;         ///< canvas pixels
        Size sincePress;  ///< the distance from the press in view points, divided by the zoom
    };

    /// The document must outlive the gesture.
    explicit PointerGesture(DrawingDocument& document) : document_(document) {}
    PointerGesture(const PointerGesture&) = delete;
    PointerGesture& operator=(const PointerGesture&) = delete;

    /// Reads the tool flags to decide what the press does. Interrupts a press that has not ended.
    void begin(Point at);
    void move(const Sample& sample);

    /// Ends the press. The position adds no point. A click then fills, picks a colour or selects,
    /// depending on the tool flags at this moment.
    void end(Point at, Click click);

    /// Ends a press whose release cannot arrive: keeps what it did so far and clicks nothing.
    void interrupt();

    /// True from begin() to end() or interrupt().
    bool isActive() const { return !std::holds_alternative<Idle>(state_); }

private:
    struct Idle {};
    struct Drawing {};
    struct Selecting {};  ///< the select tool has found no stroke yet
    struct Moving {
        Moving(ChangeRegistry& registry, Reader::Callback onChange)
            : reader(registry, std::move(onChange)) {}

        Reader reader;     ///< of all that the move depends on
        PointList points;  ///< of the selected stroke, as this move has left them
    };
    struct Pressing {};  ///< fill tool or eyedropper
    struct Over {};      ///< the press has not ended but does nothing more

    void finish();
    void draw(Point at);
    void startMove(const Sample& sample);
    void updateMove(Size sincePress);
    void endMoveAfter(DocumentProperty change);
    void click(Point at);

    DrawingDocument& document_;
    std::variant<Idle, Drawing, Selecting, Moving, Pressing, Over> state_;
    bool isOwnChange_ = false;  ///< true while a move changes the layers
};

}  // namespace marlevo
