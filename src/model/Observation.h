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

/// Knows which reader depends on which property and tells readers of changes.
///
/// Single-threaded: everything happens on the thread of the document. Publishing is synchronous and
/// allocates nothing. While being told, a reader may read, change properties, register anew, vanish
/// or make others vanish; a reader that vanished is not told, one that came during a publish is
/// told from the next one on.
class ChangeRegistry {
public:
    ChangeRegistry() = default;
    ~ChangeRegistry();
    ChangeRegistry(const ChangeRegistry&) = delete;
    ChangeRegistry& operator=(const ChangeRegistry&) = delete;

    /// Makes the reader that is rendering now, if any, depend on the property.
    void noteRead(DocumentProperty property) const;

    /// Tells every reader that depends on the property.
    void publish(DocumentProperty property);

private:
    friend class Reader;
    struct Cursor;

    Reader* first_ = nullptr;
    Cursor* cursors_ = nullptr;            ///< publishes in progress, innermost first
    mutable Reader* rendering_ = nullptr;  ///< who the reads of this moment belong to
};

/// Somebody who shows parts of a document and wants to know when they change. RAII: its
/// registration ends with it; it may also outlive the registry, and then hears nothing more.
class Reader {
public:
    using Callback = std::function<void(DocumentProperty)>;

    Reader(ChangeRegistry& registry, Callback onChange);
    ~Reader();
    Reader(const Reader&) = delete;
    Reader& operator=(const Reader&) = delete;

    /// Runs `render`; from now on this reader depends on exactly the properties read meanwhile.
    /// Nested calls of other readers keep their reads to themselves.
    template <typename Render>
    decltype(auto) observe(Render&& render) {
        const RenderScope scope(*this);
        return render();
    }

private:
    friend class ChangeRegistry;

    class RenderScope {
    public:
        explicit RenderScope(Reader& reader);
        ~RenderScope();
        RenderScope(const RenderScope&) = delete;
        RenderScope& operator=(const RenderScope&) = delete;

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
    if (rendering_) rendering_->dependencies_ |= dependencyBit(property);
}

}  // namespace marlevo
