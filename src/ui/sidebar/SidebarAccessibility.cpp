#include "ui/sidebar/SidebarAccessibility.h"

#include "ui/controls/ControlAccessibility.h"
#include "ui/sidebar/LayerRows.h"
#include "ui/sidebar/SidebarView.h"

#include <algorithm>

namespace marlevo {

namespace {

/// A row of the list of layers. Its press action selects the row; its toggle action shows or hides
/// the layer.
class AccessibleLayer final : public AccessibleButton {
public:
    explicit AccessibleLayer(LayerRow* row)
        : AccessibleButton(row, QAccessible::ListItem), row_(*row) {}

    QAccessible::State state() const override {
        QAccessible::State state = AccessibleButton::state();
        state.selectable = true;
        state.selected = row_.isActive();
        return state;
    }

    QStringList actionNames() const override {
        return AccessibleButton::actionNames() << toggleAction();
    }
    void doAction(const QString& action) override {
        if (action == toggleAction())
            Q_EMIT row_.visibilityToggled();
        else
            AccessibleButton::doAction(action);
    }

private:
    LayerRow& row_;
};

/// Presents the rows in the order of the list, not in the order of their creation.
class AccessibleLayerList final : public QAccessibleWidget {
public:
    explicit AccessibleLayerList(LayerRows* list)
        : QAccessibleWidget(list, QAccessible::List), list_(*list) {}

    int childCount() const override { return int(list_.rows().size()); }

    QAccessibleInterface* child(int index) const override {
        const bool exists = index >= 0 && index < childCount();
        return exists ? QAccessible::queryAccessibleInterface(list_.rows()[index]) : nullptr;
    }

    int indexOfChild(const QAccessibleInterface* child) const override {
        const auto& rows = list_.rows();
        const auto found = std::find(rows.begin(), rows.end(), child->object());
        return found != rows.end() ? int(found - rows.begin()) : -1;
    }

private:
    LayerRows& list_;
};

QAccessibleInterface* makeSidebarInterface(const QString& className, QObject* object) {
    // The toolkit's cache owns the interface.
    if (auto* row = accessibleAs<LayerRow>(className, object)) return new AccessibleLayer(row);
    if (auto* rows = accessibleAs<LayerRows>(className, object))
        return new AccessibleLayerList(rows);
    if (auto* thumbnail = accessibleAs<LayerThumbnailView>(className, object))
        return new QAccessibleWidget(thumbnail, QAccessible::Graphic);
    if (auto* sidebar = accessibleAs<SidebarView>(className, object))
        return new QAccessibleWidget(sidebar, QAccessible::Pane);
    return nullptr;
}

}  // namespace

void installSidebarAccessibility() { QAccessible::installFactory(makeSidebarInterface); }

}  // namespace marlevo
