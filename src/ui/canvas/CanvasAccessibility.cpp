#include "ui/canvas/CanvasAccessibility.h"

#include "ui/ToolChoice.h"
#include "ui/canvas/CanvasView.h"
#include "ui/canvas/StatusBar.h"
#include "ui/controls/ControlAccessibility.h"
#include "ui/sidebar/DrawingSection.h"
#include "ui/sidebar/FormsSection.h"

#include <QCoreApplication>

#include <chrono>

namespace marlevo {

namespace {

using namespace std::chrono_literals;

// A drag of strokes changes the layers with every move of the pointer.
constexpr auto delay = 200ms;

/// As the sidebar calls them; the eraser's key leaves other tools chosen beside it.
QStringList chosenTools(const DrawingDocument& document) {
    using ShapeType = Stroke::ShapeType;
    QStringList tools;
    const auto add = [&](bool isChosen, const QString& name) {
        if (isChosen) tools << name;
    };
    add(document.isDrawingMode(), DrawingSection::tr("Draw"));
    add(document.isSelectTool, DrawingSection::tr("Select"));
    add(document.isEraser, DrawingSection::tr("Eraser"));
    add(document.isFillTool, DrawingSection::tr("Fill"));
    add(document.isEyeDropper, DrawingSection::tr("Drop"));
    add(isShapeChosen(document, ShapeType::line), FormsSection::tr("Line"));
    add(isShapeChosen(document, ShapeType::rect), FormsSection::tr("Rectangle"));
    add(isShapeChosen(document, ShapeType::ellipse), FormsSection::tr("Ellipse"));
    return tools;
}

QString descriptionOf(const DrawingDocument& document) {
    const CanvasSize size = document.canvasSize;
    return QCoreApplication::translate("CanvasAccessibility", "%1 × %2 px, %3, %4")
        .arg(wholePixels(size.width), wholePixels(size.height),
             chosenTools(document).join(QLatin1String(" + ")),
             localizedStrokeCount(strokeCount(document)));
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
    return nullptr;
}

/// Depends on what the description says without putting it together.
void touchDescription(const DrawingDocument& document) {
    const auto touch = [](const auto&... properties) { ((void)properties.get(), ...); };
    touch(document.canvasSize, document.layers, document.isEraser, document.isFillTool,
          document.isShapeTool, document.isEyeDropper, document.isSelectTool,
          document.currentShapeType);
}

}  // namespace

void installCanvasAccessibility() { QAccessible::installFactory(makeCanvasInterface); }

CanvasDescriptionChanges::CanvasDescriptionChanges(DrawingDocument& document, QWidget& canvas)
    : follower_(document, [this, &document] {
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
