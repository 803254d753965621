#include "model/DrawingDocument.h"

#include <utility>

namespace marlevo {

void DrawingDocument::saveState() {
    undoStack.modifyAndPublish([&](std::vector<Snapshot>& stack) { stack.push_back(*layers); });
    redoStack = std::vector<Snapshot>();
    layerThumbnails = {};
}

void DrawingDocument::startNewHistory() {
    undoStack = {};
    redoStack = {};
    currentStroke = std::nullopt;
    layerThumbnails = {};
}

void DrawingDocument::undo() { stepHistory(undoStack, redoStack); }

void DrawingDocument::redo() { stepHistory(redoStack, undoStack); }

template <typename Source, typename Target>
void DrawingDocument::stepHistory(Source& source, Target& target) {
    if (source->empty()) return;
    target.modifyAndPublish([&](std::vector<Snapshot>& stack) { stack.push_back(*layers); });
    Snapshot restored;
    source.modifyAndPublish([&](std::vector<Snapshot>& stack) {
        restored = std::move(stack.back());
        stack.pop_back();
    });
    layers = std::move(restored);
    clampActiveLayerIndex();
    layerThumbnails = {};
}

}  // namespace marlevo
