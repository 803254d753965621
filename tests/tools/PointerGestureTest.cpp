#include "tools/PointerGesture.h"

#include "tests/support/Drawing.h"
#include "tools/Selection.h"

#include <gtest/gtest.h>

#include <optional>
#include <ostream>
#include <string>
#include <utility>
#include <vector>

using namespace marlevo;

namespace {

struct Tool {
    const char* name;
    bool draws;
    void (*choose)(DrawingDocument&, bool isChosen);
};
template <auto flag>
void set(DrawingDocument& document, bool isChosen) {
    document.*flag = isChosen;
}
const Tool brush{"brush", true, [](DrawingDocument&, bool) {}};
const Tool eraser{"eraser", true, set<&DrawingDocument::isEraser>};
const Tool shape{"shape", true, set<&DrawingDocument::isShapeTool>};
const Tool fill{"fill", false, set<&DrawingDocument::isFillTool>};
const Tool eyeDropper{"eyedropper", false, set<&DrawingDocument::isEyeDropper>};
const Tool select{"select", false, set<&DrawingDocument::isSelectTool>};
const std::vector<Tool> tools{brush, eraser, shape, fill, eyeDropper, select};

enum class Ending { none, drag, click, interrupt };
const std::vector<Ending> endings{Ending::drag, Ending::click, Ending::interrupt};

/// The change of the document by a gesture.
struct Outcome {
    std::vector<std::vector<Point>> newStrokes = {};  ///< of the lowest layer
    int newLayers = 0;
    int undoSteps = 0;
    bool isDrawing = false;
    bool isMoving = false;
    bool isColorPicked = false;
    std::optional<std::int64_t> selected = {};
    Size moved = {};  ///< the way of the first stroke

    friend bool operator==(const Outcome&, const Outcome&) = default;
    friend std::ostream& operator<<(std::ostream& out, const Outcome& o) {
        for (const auto& stroke : o.newStrokes)
            out << "stroke of " << stroke.size() << ", ";
        return out << o.newLayers << " layers, " << o.undoSteps << " undo steps, drawing "
                   << o.isDrawing << ", moving " << o.isMoving << ", picked " << o.isColorPicked
                   << ", selected " << o.selected.value_or(-1) << ", moved " << o.moved.width << " "
                   << o.moved.height;
    }
};

constexpr Point start{20, 20};  // on the first stroke
constexpr Point middle{25, 22};
constexpr Point last{40, 30};
constexpr Point empty{40, 90};
constexpr Point onSecond{65, 65};

/// A document with two rectangles, and a pointer.
struct Hand {
    DrawingDocument document;
    PointerGesture gesture{document};

    Hand() {
        document.canvasSize = {100, 100};
        document.backgroundColor = Color{1, 0, 0, 1};
        document.ensureLayers();
        for (const double at : {15.0, 60.0})
            addStroke(document,
                      makeStroke({{at, at}, {at + 10, at + 10}}, 3, Stroke::ShapeType::rect));
    }

    void choose(const Tool& tool) {
        for (const Tool& each : tools)
            each.choose(document, false);
        tool.choose(document, true);
    }

    void moveTo(Point at) { gesture.move({at, {at.x - start.x, at.y - start.y}}); }
    void finish(Ending ending) {
        switch (ending) {
        case Ending::none:
            break;
        case Ending::click:
            gesture.end(start, Click::yes);
            break;
        case Ending::drag:
            moveTo(last);
            gesture.end(last, Click::no);
            break;
        case Ending::interrupt:
            moveTo(last);
            gesture.interrupt();
            break;
        }
    }

    const StrokeList& strokes() const { return document.layers->front().strokes; }
    Point corner(std::size_t stroke) const { return strokes()[stroke].points[0]; }

    /// Undoes everything, so it is called last.
    Outcome outcome() {
        Outcome result;
        for (std::size_t i = 2; i < strokes().size(); ++i) {
            const PointList points = strokes()[i].points;
            result.newStrokes.emplace_back(points.begin(), points.end());
        }
        result.newLayers = static_cast<int>(document.layers->size()) - 1;
        result.isDrawing = document.currentStroke->has_value();
        result.isMoving = document.selectionDragStartPositions->has_value();
        result.isColorPicked = *document.selectedColor == Color{1, 0, 0, 1};
        result.selected = document.selectedStrokeIndex;
        result.moved = {corner(0).x - 15, corner(0).y - 15};
        for (; document.canUndo(); document.undo())
            ++result.undoSteps;
        return result;
    }
};

TEST(PointerGesture, DoesWithEachToolWhatAPressADragAClickAndAnInterruptionMean) {
    const std::vector<Point> line{start, last};
    const std::vector<Point> dot{start, start};
    const Size way{20, 10};
    const struct {
        std::vector<Tool> tools;
        Ending ending;
        Outcome expected;
    } cases[] = {
        {{brush, eraser, shape}, Ending::none, {.undoSteps = 1, .isDrawing = true}},
        {{brush, eraser, shape}, Ending::drag, {.newStrokes = {line}, .undoSteps = 1}},
        {{brush, eraser, shape}, Ending::interrupt, {.newStrokes = {line}, .undoSteps = 1}},
        {{brush, eraser}, Ending::click, {.undoSteps = 1}},
        {{shape}, Ending::click, {.newStrokes = {dot}, .undoSteps = 1}},
        {{fill, eyeDropper}, Ending::none, {}},
        {{fill, eyeDropper}, Ending::drag, {}},
        {{fill, eyeDropper}, Ending::interrupt, {}},
        {{fill}, Ending::click, {.newLayers = 1, .undoSteps = 1}},
        {{eyeDropper}, Ending::click, {.isColorPicked = true}},
        {{select}, Ending::none, {.undoSteps = 1, .isMoving = true, .selected = 0}},
        {{select}, Ending::drag, {.undoSteps = 1, .selected = 0, .moved = way}},
        {{select}, Ending::click, {.undoSteps = 1, .selected = 0}},
        {{select}, Ending::interrupt, {.undoSteps = 1, .selected = 0, .moved = way}},
    };
    for (const auto& [usedTools, ending, expected] : cases) {
        for (const Tool& tool : usedTools) {
            SCOPED_TRACE(std::string(tool.name) + ", ending " + std::to_string(int(ending)));
            Hand hand;
            hand.choose(tool);
            hand.gesture.begin(start);
            hand.finish(ending);
            EXPECT_EQ(hand.gesture.isActive(), ending == Ending::none);
            EXPECT_EQ(hand.outcome(), expected);
        }
    }
}

TEST(PointerGesture, EndsWhatThePressBeganWhicheverToolIsChosenByThen) {
    for (const Tool& began : tools) {
        for (const Tool& chosen : tools) {
            for (const Ending ending : endings) {
                SCOPED_TRACE(std::string(began.name) + " to " + chosen.name + ", ending " +
                             std::to_string(int(ending)));
                Hand hand;
                hand.choose(began);
                hand.gesture.begin(start);
                hand.moveTo(middle);
                hand.choose(chosen);
                hand.finish(ending);
                EXPECT_FALSE(hand.document.currentStroke->has_value());
                EXPECT_FALSE(hand.document.selectionDragStartPositions->has_value());
                EXPECT_EQ(hand.strokes().size(), began.draws ? 3u : 2u);

                hand.choose(select);
                hand.gesture.begin(onSecond);
                hand.gesture.end(onSecond, Click::yes);
                EXPECT_EQ(hand.corner(1), (Point{60, 60}));
            }
        }
    }
}

void eraseFirstStroke(Hand& hand) {
    hand.document.layers.modifyAndPublish([](LayerList& all) { all[0].strokes.erase(0); });
}

TEST(PointerGesture, EndsAMoveWithWhatItMovesAndLeavesTheNextStrokeAlone) {
    const std::vector<std::pair<const char*, void (*)(Hand&)>> interruptions{
        {"another tool", [](Hand& h) { h.choose(fill); }},
        {"deselection", [](Hand& h) { h.document.selectedLayerID = std::nullopt; }},
        {"another selection", [](Hand& h) { selectStroke(h.document, onSecond); }},
        {"deletion", [](Hand& h) { deleteSelectedStroke(h.document); }},
        {"clearing", [](Hand& h) { h.document.clearActiveLayer(); }},
        {"undo", [](Hand& h) { h.document.undo(); }},
        {"another layer", [](Hand& h) { h.document.addLayer(); }},
        {"the next stroke in its place", eraseFirstStroke},
        {"the same after a movement that failed",
         [](Hand& h) {
             {
                 Reader reader(h.document.changeRegistry(), [](DocumentProperty) { throw 0; });
                 reader.observe([&] { (void)*h.document.layers; });
                 EXPECT_ANY_THROW(h.moveTo(middle));
             }
             eraseFirstStroke(h);
         }},
        {"another picture", [](Hand& h) { h.document.layers = LayerList{Layer("Other")}; }},
    };
    for (const auto& [name, interrupt] : interruptions) {
        for (const bool hasMoved : {false, true}) {
            for (const Ending ending : endings) {
                SCOPED_TRACE(std::string(name) + (hasMoved ? ", moved" : ", pressed") +
                             ", ending " + std::to_string(int(ending)));
                Hand hand;
                hand.choose(select);
                hand.gesture.begin(start);
                if (hasMoved) hand.moveTo(middle);
                interrupt(hand);
                EXPECT_FALSE(hand.document.selectionDragStartPositions->has_value());
                const LayerList left = hand.document.layers;
                const auto selected = hand.document.selectedStrokeIndex.get();
                hand.finish(ending);
                EXPECT_FALSE(hand.gesture.isActive());
                EXPECT_EQ(hand.document.layers->size(), left.size()) << "filled";
                EXPECT_EQ(hand.document.selectedStrokeIndex.get(), selected);
                for (std::size_t i = 0; i < left.front().strokes.size(); ++i)
                    EXPECT_EQ(hand.strokes()[i].points, left.front().strokes[i].points);
            }
        }
    }
}

TEST(PointerGesture, AMoveContinuesWhileItsLayerIsHidden) {
    Hand hand;
    hand.choose(select);
    hand.gesture.begin(start);
    hand.moveTo(middle);
    hand.document.toggleLayerVisibility(0);
    hand.finish(Ending::drag);
    EXPECT_EQ(hand.corner(0), (Point{35, 25}));
}

TEST(PointerGesture, UndoLeavesTheStrokeInProgressAlone) {
    Hand hand;
    hand.gesture.begin(start);
    hand.moveTo(middle);
    hand.document.undo();
    hand.document.redo();
    hand.document.undo();
    hand.finish(Ending::drag);
    EXPECT_EQ(hand.outcome(), (Outcome{.newStrokes = {{start, middle, last}}}));
}

TEST(PointerGesture, KeepsEveryPositionAndTheReleaseAddsNone) {
    Hand hand;
    hand.gesture.begin({1, 2});
    hand.moveTo({3, 4});
    hand.moveTo({3, 4});
    hand.moveTo({-30, -40.5});
    hand.gesture.end({7, 7}, Click::no);
    hand.moveTo({9, 9});
    hand.gesture.end({9, 9}, Click::yes);
    const std::vector<Point> expected{{1, 2}, {3, 4}, {3, 4}, {-30, -40.5}};
    EXPECT_EQ(hand.outcome(), (Outcome{.newStrokes = {expected}, .undoSteps = 1}));
}

TEST(PointerGesture, MovesWhatIsSelectedByTheWayOfTheView) {
    Hand hand;
    hand.choose(select);
    selectStroke(hand.document, start);
    hand.gesture.begin(empty);
    hand.gesture.move({onSecond, {3, 4}});
    hand.gesture.end(onSecond, Click::no);
    EXPECT_EQ(hand.corner(0), (Point{18, 19}));
    hand.gesture.begin(empty);
    hand.gesture.end(empty, Click::yes);
    EXPECT_FALSE(hand.document.selectedStrokeIndex->has_value());
}

TEST(PointerGesture, APressBesideEveryStrokeSelectsTheFirstOneItReaches) {
    Hand hand;
    hand.choose(select);
    hand.gesture.begin(empty);
    EXPECT_FALSE(hand.document.canUndo());
    hand.gesture.move({start, {-20, -70}});
    hand.gesture.move({onSecond, {25, -25}});
    hand.gesture.end(onSecond, Click::no);
    EXPECT_EQ(hand.outcome(), (Outcome{.undoSteps = 1, .selected = 0, .moved = {25, -25}}));

    Hand other;
    other.choose(select);
    other.gesture.begin(empty);
    other.choose(brush);
    other.gesture.move({start, {-20, -70}});
    other.gesture.end(start, Click::no);
    EXPECT_EQ(other.outcome(), Outcome{}) << "unless another tool is chosen by then";
}

TEST(PointerGesture, ReadsSeveralFlagsInOneOrderForADragAndInAnotherForAClick) {
    for (const Ending ending : endings) {
        Hand hand;
        for (const Tool& tool : {eraser, fill, eyeDropper, select})
            tool.choose(hand.document, true);
        hand.gesture.begin(start);
        hand.finish(ending);
        EXPECT_EQ(hand.document.layers->size(), ending == Ending::click ? 2u : 1u);
        EXPECT_EQ(hand.corner(0), (ending == Ending::click ? Point{15, 15} : Point{35, 25}));
    }
    Hand hand;
    hand.choose(select);
    hand.document.isEyeDropper = true;
    hand.gesture.begin(empty);
    hand.finish(Ending::click);
    EXPECT_TRUE(hand.outcome().isColorPicked);
}

TEST(PointerGesture, APressWithoutAReleaseIsInterruptedByTheNextOne) {
    Hand hand;
    hand.gesture.begin(start);
    hand.moveTo(last);
    hand.gesture.begin(onSecond);
    hand.gesture.interrupt();
    hand.moveTo(last);
    hand.gesture.end(onSecond, Click::yes);
    EXPECT_EQ(hand.outcome(), (Outcome{.newStrokes = {{start, last}}, .undoSteps = 2}));
}

TEST(ClickDetector, APressThatStaysNearIsAClickAndTheWayBackMakesNone) {
    ClickDetector detector;
    detector.press({10, 10});
    detector.move({12, 13});
    EXPECT_EQ(detector.sincePress({12, 13}), (Size{2, 3}));
    EXPECT_EQ(detector.release({13.9, 10}), Click::yes);
    EXPECT_EQ(detector.release({10, 10}), Click::no) << "without a press";

    detector.press({10, 10});
    detector.move({14.1, 10});
    EXPECT_EQ(detector.release({10, 10}), Click::no);

    detector.press({10, 10});
    EXPECT_EQ(detector.release({10, 14.1}), Click::no);
}

}  // namespace
