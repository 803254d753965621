#include "ui/canvas/CanvasAccessibility.h"

#include "model/DrawingDocument.h"
#include "tools/ToolChoice.h"
#include "ui/canvas/CanvasScrollArea.h"
#include "ui/canvas/CanvasTexts.h"
#include "ui/canvas/CanvasView.h"
#include "ui/canvas/StatusBar.h"
#include "ui/controls/ControlAccessibility.h"
#include "ui/controls/ToolNames.h"
#include "ui/controls/WrapText.h"

#include <QCoreApplication>

#include <chrono>

namespace marlevo {

namespace {

using namespace std::chrono_literals;

// Moving a stroke changes the layers with every event of the pointer.
constexpr auto delay = 200ms;

/// Several tools can be chosen at once: the eraser's key leaves the others as they are.
QStringList chosenTools(const DrawingDocument& document) {
    using ShapeType = Stroke::ShapeType;
    const ToolNames names = toolNames();
    QStringList tools;
    const auto add = [&](bool isChosen, const QString& name) {
        if (isChosen) tools << withoutSoftHyphens(name);
    };
    add(document.isDrawingMode(), names.draw);
    add(document.isSelectTool, names.select);
    add(document.isEraser, names.eraser);
    add(document.isFillTool, names.fill);
    add(document.isEyeDropper, names.eyeDropper);
    add(isShapeChosen(document, ShapeType::line), names.line);
    add(isShapeChosen(document, ShapeType::rect), names.rectangle);
    add(isShapeChosen(document, ShapeType::ellipse), names.ellipse);
    return tools;
}

QString descriptionOf(const DrawingDocument& document) {
    const CanvasSize size = document.canvasSize;
    return QCoreApplication::translate("CanvasAccessibility", "%1 × %2 px, %3, %4")
        .arg(wholePixels(size.width), wholePixels(size.height),
             chosenTools(document).join(QLatin1String(" + ")),
             localizedStrokeCount(strokeCount(document.layers)));
}

class AccessibleCanvas final : public QAccessibleWidget {
public:
    explicit AccessibleCanvas(CanvasView* view)
        : QAccessibleWidget(view, QAccessible::Canvas), view_(*view) {}

    QString text(QAccessible::Text kind) const override {
        return kind == QAccessible::Description ? descriptionOf(view_.document())
                                                : QAccessibleWidget::text(kind);
    }

private:
    CanvasView& view_;
};

QAccessibleInterface* makeCanvasInterface(const QString& className, QObject* object) {
    // The toolkit's cache owns the interface.
    if (auto* view = accessibleAs<CanvasView>(className, object)) return new AccessibleCanvas(view);
    if (auto* bar = accessibleAs<StatusBar>(className, object))
        return new QAccessibleWidget(bar, QAccessible::StatusBar);
    if (auto* area = accessibleAs<CanvasScrollArea>(className, object))
        return new QAccessibleWidget(area, QAccessible::Pane);
    return nullptr;
}

/// Reads the properties that the description depends on, without composing the text.
void touchDescription(const DrawingDocument& document) {
    const auto touch = [](const auto&... properties) { ((void)properties.get(), ...); };
    touch(document.canvasSize, document.layers, document.isEraser, document.isFillTool,
          document.isShapeTool, document.isEyeDropper, document.isSelectTool,
          document.currentShapeType);
}

}  // namespace

void installCanvasAccessibility() { QAccessible::installFactory(makeCanvasInterface); }

CanvasDescriptionChanges::CanvasDescriptionChanges(DrawingDocument& document, QWidget& canvas)
    : follower_(document.changeRegistry(), [this, &document] {
          touchDescription(document);
          if (QAccessible::isActive() && !soon_.isActive()) soon_.start();
      }) {
    soon_.setSingleShot(true);
    soon_.setInterval(delay);
    soon_.callOnTimeout(&canvas, [&canvas] {
        QAccessibleEvent event(&canvas, QAccessible::DescriptionChanged);
        QAccessible::updateAccessibility(&event);
    });
}

}  // namespace marlevo
