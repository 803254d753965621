#include "ui/windows/PreferencesView.h"

#include "ui/controls/TextLabel.h"

#include <QHBoxLayout>
#include <QSignalBlocker>
#include <QVBoxLayout>

namespace marlevo {

namespace {

// View points.
constexpr QSize leastSize(380, 200);
constexpr int padding = 20;
constexpr int titleSpacing = 8;
constexpr int sectionSpacing = 20;
constexpr int itemSpacing = 8;
constexpr int fieldWidth = 80;

}  // namespace

PreferencesView::PreferencesView(Preferences& preferences, QWidget* parent)
    : QWidget(parent), preferences_(preferences), width_(tr("Default width")),
      height_(tr("Default height")), autoSave_(tr("Auto-save every 30 seconds")),
      changes_(preferences.observe([this] { showValues(); })) {
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(padding, padding, padding, padding);
    column->setSpacing(titleSpacing);
    column->addStretch(1);
    column->addWidget(new TextLabel(tr("Default Canvas Size"), textlook::bodyTitle));
    column->addLayout(makeSizeRow());
    column->addSpacing(sectionSpacing - titleSpacing);
    column->addWidget(new TextLabel(tr("Auto-Save"), textlook::bodyTitle));
    column->addWidget(&autoSave_);
    column->addStretch(1);

    connect(&width_, &NumberField::valueEntered, this,
            [this](double value) { preferences_.set(preference::defaultCanvasWidth, value); });
    connect(&height_, &NumberField::valueEntered, this,
            [this](double value) { preferences_.set(preference::defaultCanvasHeight, value); });
    connect(&autoSave_, &Switch::toggled, this,
            [this](bool on) { preferences_.set(preference::autoSaveEnabled, on); });
    showValues();
}

QSize PreferencesView::sizeHint() const { return leastSize.expandedTo(QWidget::sizeHint()); }

QLayout* PreferencesView::makeSizeRow() {
    for (NumberField* const field : {&width_, &height_}) {
        field->setFixedWidth(fieldWidth);
    }
    auto* row = new QHBoxLayout;
    row->setSpacing(itemSpacing);
    row->addWidget(new TextLabel(tr("Width:"), textlook::body));
    row->addWidget(&width_);
    row->addWidget(new TextLabel(QStringLiteral("×"), textlook::bodyUnit));
    row->addWidget(&height_);
    row->addWidget(new TextLabel(tr("px"), textlook::bodyUnit));
    row->addStretch(1);
    return row;
}

void PreferencesView::showValues() {
    width_.showValue(preferences_.get(preference::defaultCanvasWidth));
    height_.showValue(preferences_.get(preference::defaultCanvasHeight));
    const QSignalBlocker quiet(autoSave_);
    autoSave_.setChecked(preferences_.get(preference::autoSaveEnabled));
}

}  // namespace marlevo
