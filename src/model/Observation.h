#pragma once

#include <cstdint>
#include <functional>
#include <memory>

namespace marlevo {

/// The document's observable properties.
enum class DocumentProperty : unsigned char {
    layers,
    activeLayerIndex,
    currentStroke,
    selectedColor,
    lineWidth,
    brushOpacity,
    isEraser,
    isFillTool,
    isShapeTool,
    isEyeDropper,
    isSelectTool,
    currentShapeType,
    selectedLayerID,
    selectedStrokeIndex,
    selectionDragStartPositions,
    backgroundColor,
    backgroundIsTransparent,
    canvasSize,
    zoom,
    showGrid,
    exportFormat,
    showExportPopover,
    currentFileURL,
    undoStack,
    redoStack,
    layerThumbnails,
};

/// The property as one bit of a set.
constexpr std::uint32_t dependencyBit(DocumentProperty property) {
    return std::uint32_t{1} << static_cast<unsigned>(property);
}

class Reader;

/// Records which reader depends on which property, and calls the readers after changes.
///
/// Used on the document's thread only. Publishing is synchronous and allocates nothing. During its
/// call a reader may read and change properties, observe again, and create and destroy readers. A
/// destroyed reader is not called. A reader created during a publish is called from the next
/// publish on.
class ChangeRegistry {
public:
    ChangeRegistry() = default;
    ~ChangeRegistry();
    ChangeRegistry(const ChangeRegistry&) = delete;
    ChangeRegistry& operator=(const ChangeRegistry&) = delete;

    /// Makes the reader that observes now, if any, depend on the property.
    void noteRead(DocumentProperty property) const;

    /// Calls every reader that depends on the property.
    void publish(DocumentProperty property);

private:
    friend class Reader;
    struct Cursor;

    Reader* first_ = nullptr;
    Cursor* cursors_ = nullptr;            ///< publishes in progress, innermost first
    mutable Reader* observing_ = nullptr;  ///< the one for which reads are recorded now
};

/// Observes the properties that were read during the last call of observe(). Unregisters itself
/// when destroyed. May outlive the registry and is then not called any more.
class Reader {
public:
    using Callback = std::function<void(DocumentProperty)>;

    Reader(ChangeRegistry& registry, Callback onChange);
    ~Reader();
    Reader(const Reader&) = delete;
    Reader& operator=(const Reader&) = delete;

    /// Runs `read`. From then on this reader depends on the properties that were read meanwhile,
    /// and on no others. Reads inside a nested call of another reader belong to that reader only.
    template <typename Read>
    decltype(auto) observe(Read&& read) {
        const ObservingScope scope(*this);
        return read();
    }

private:
    friend class ChangeRegistry;

    class ObservingScope {
    public:
        explicit ObservingScope(Reader& reader);
        ~ObservingScope();
        ObservingScope(const ObservingScope&) = delete;
        ObservingScope& operator=(const ObservingScope&) = delete;

    private:
        ChangeRegistry* registry_;
        Reader* outer_;
    };

    ChangeRegistry* registry_;
    std::shared_ptr<const Callback> onChange_;
    std::uint32_t dependencies_ = 0;
    Reader* previous_ = nullptr;
    Reader* next_ = nullptr;
};

inline void ChangeRegistry::noteRead(DocumentProperty property) const {
    if (observing_) observing_->dependencies_ |= dependencyBit(property);
}

}  // namespace marlevo
