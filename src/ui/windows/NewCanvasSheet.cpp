#include "ui/windows/NewCanvasSheet.h"

#include "io/NumberText.h"
#include "model/DrawingDocument.h"
#include "platform/Preferences.h"
#include "ui/canvas/CanvasTexts.h"
#include "ui/controls/ControlAccessibility.h"
#include "ui/controls/IconLabel.h"
#include "ui/controls/Separator.h"
#include "ui/windows/PresetRow.h"

#include <QDialogButtonBox>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QScrollArea>
#include <QVBoxLayout>

#include <algorithm>
#include <utility>

namespace marlevo {

namespace {

// View points.
constexpr QSize preferredSize(420, 520);
constexpr int padding = 16;
constexpr int rowSpacing = 4;
constexpr int listPadding = 8;
constexpr int itemSpacing = 8;
constexpr int fieldWidth = 100;
constexpr int shownRowsAtLeast = 2;

constexpr double mostPixels = 10000;

constexpr TextLabel::Look title{TypeStyle::title3, QFont::DemiBold};

bool isAllowed(double side) { return side > 0 && side <= mostPixels; }

/// The text proposed for a default size; empty for a side that is not above 0 or beyond 64 bits.
QString proposal(double side) {
    return side > 0 && side < 0x1p63 ? QString::number(static_cast<qint64>(side)) : QString();
}

QAccessibleInterface* makeSheetInterface(const QString& className, QObject* object) {
    auto* const sheet = accessibleAs<NewCanvasSheet>(className, object);
    // The toolkit's cache owns the interface.
    return sheet ? new QAccessibleWidget(sheet, QAccessible::Dialog) : nullptr;
}

/// Makes the order of the buttons for Tab and for assistive technology that of their layout.
void orderAsShown(QDialogButtonBox& box) {
    QWidget* previous = nullptr;
    for (int i = 0; i < box.layout()->count(); ++i) {
        QWidget* const button = box.layout()->itemAt(i)->widget();
        if (button == nullptr) continue;
        button->raise();
        if (previous) QWidget::setTabOrder(previous, button);
        previous = button;
    }
}

}  // namespace

NewCanvasSheet::NewCanvasSheet(DrawingDocument& document, std::function<void()> dismiss)
    : document_(document), dismiss_(std::move(dismiss)), useCustom_(tr("Custom size")),
      preview_({}, textlook::caption), create_(tr("Create Canvas")) {
    QAccessible::installFactory(makeSheetInterface);
    setAccessibleName(tr("New Canvas"));
    setFocusPolicy(Qt::NoFocus);

    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(0);
    column->addLayout(makeHeader());
    column->addWidget(new Separator);
    column->addWidget(makePresetList(), 1);
    column->addWidget(new Separator);
    column->addLayout(makeCustomSection());
    column->addWidget(new Separator);
    column->addLayout(makeFooter());

    rowFocus_.setMembers({rows_.begin(), rows_.end()});
    proposeDefaultSize();
    showState();
}

std::optional<CanvasSize> NewCanvasSheet::resolveSize() const {
    if (!useCustom_.isChecked()) {
        const auto& presets = CanvasSize::presets();
        const auto chosen =
            std::find_if(presets.begin(), presets.end(), [&](const CanvasSize::Preset& preset) {
                return preset.id == selectedPresetID_;
            });
        return chosen != presets.end() ? std::optional(chosen->size) : std::nullopt;
    }
    const auto width = parseNumber(customW_.text().toStdString());
    const auto height = parseNumber(customH_.text().toStdString());
    if (!width || !height || !isAllowed(*width) || !isAllowed(*height)) return std::nullopt;
    return CanvasSize{*width, *height};
}

QSize NewCanvasSheet::sizeHint() const { return preferredSize.expandedTo(minimumSizeHint()); }

void NewCanvasSheet::keyPressEvent(QKeyEvent* event) {
    if (event->key() == Qt::Key_Escape)
        dismiss_();
    else
        QWidget::keyPressEvent(event);
}

void NewCanvasSheet::focusInEvent(QFocusEvent*) { rowFocus_.moveFocusTo(*rows_.front()); }

QLayout* NewCanvasSheet::makeHeader() {
    auto* header = new QHBoxLayout;
    header->setContentsMargins(padding, padding, padding, padding);
    header->setSpacing(itemSpacing);
    header->addWidget(new IconLabel(Icon::palette, TypeStyle::title3, SemanticColor::blue));
    header->addWidget(new TextLabel(tr("New Canvas"), title), 1);
    return header;
}

QWidget* NewCanvasSheet::makePresetList() {
    auto* list = new QWidget;
    auto* column = new QVBoxLayout(list);
    column->setContentsMargins(listPadding, listPadding, listPadding, listPadding);
    column->setSpacing(rowSpacing);
    for (const CanvasSize::Preset& preset : CanvasSize::presets()) {
        auto* row = new PresetRow(preset);
        connect(row, &PresetRow::toggled, this, [this, id = preset.id] { choosePreset(id); });
        column->addWidget(row);
        rows_.push_back(row);
    }
    column->addStretch(1);

    auto* scroll = new QScrollArea;
    scroll->setFrameShape(QFrame::NoFrame);
    scroll->setWidgetResizable(true);
    scroll->setFocusPolicy(Qt::NoFocus);
    scroll->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    scroll->setWidget(list);
    list->setAutoFillBackground(false);
    scroll->viewport()->setAutoFillBackground(false);
    scroll->setMinimumWidth(list->minimumSizeHint().width());
    scroll->setMinimumHeight(shownRowsAtLeast * (rows_.front()->sizeHint().height() + rowSpacing));
    return scroll;
}

QLayout* NewCanvasSheet::makeCustomSection() {
    connect(&useCustom_, &QCheckBox::toggled, this, &NewCanvasSheet::setUseCustom);

    auto* fields = new QHBoxLayout;
    fields->setSpacing(itemSpacing);
    // The fields are aligned with the box of the checkbox.
    fields->addSpacing(CheckBox::focusRoom);
    const auto addField = [&](QLineEdit& field, const QString& name) {
        field.setPlaceholderText(name);
        field.setAccessibleName(name);
        field.setFixedWidth(fieldWidth);
        connect(&field, &QLineEdit::textChanged, this, &NewCanvasSheet::showState);
        fields->addWidget(&field);
    };
    addField(customW_, tr("Width"));
    fields->addWidget(new TextLabel(QStringLiteral("×"), textlook::bodyUnit));
    addField(customH_, tr("Height"));
    fields->addWidget(new TextLabel(tr("px"), textlook::caption));
    fields->addStretch(1);

    auto* section = new QVBoxLayout;
    const int sides = padding - CheckBox::focusRoom;
    section->setContentsMargins(sides, padding, sides, padding);
    section->setSpacing(itemSpacing);
    section->addWidget(&useCustom_);
    section->addLayout(fields);
    return section;
}

QLayout* NewCanvasSheet::makeFooter() {
    auto* cancel = new QPushButton(tr("Cancel"));
    cancel->setShortcut(QKeySequence(Qt::CTRL | Qt::Key_Escape));
    cancel->setAutoDefault(true);
    connect(cancel, &QPushButton::clicked, this, [this] { dismiss_(); });
    create_.setDefault(true);
    connect(&create_, &QPushButton::clicked, this, &NewCanvasSheet::createCanvas);

    // In the desktop's order. A child of the sheet at once, because the order of two buttons alone,
    // which is a circle, cannot be changed.
    auto* buttons = new QDialogButtonBox(this);
    buttons->addButton(&create_, QDialogButtonBox::AcceptRole);
    buttons->addButton(cancel, QDialogButtonBox::RejectRole);
    // With the proxy that the box sets, Tab would reach one of the buttons only.
    buttons->setFocusProxy(nullptr);
    orderAsShown(*buttons);

    auto* footer = new QHBoxLayout;
    footer->setContentsMargins(padding, padding, padding, padding);
    footer->setSpacing(itemSpacing);
    footer->addWidget(&preview_);
    footer->addStretch(1);
    footer->addWidget(buttons);
    return footer;
}

void NewCanvasSheet::proposeDefaultSize() {
    const Preferences* const preferences = document_.services().preferences;
    if (preferences == nullptr) return;
    customW_.setText(proposal(preferences->get(preference::defaultCanvasWidth)));
    customH_.setText(proposal(preferences->get(preference::defaultCanvasHeight)));
}

void NewCanvasSheet::choosePreset(const Uuid& id) {
    selectedPresetID_ = id;
    useCustom_.setChecked(false);
    showState();
}

void NewCanvasSheet::setUseCustom(bool useCustom) {
    if (useCustom) selectedPresetID_.reset();
    showState();
}

void NewCanvasSheet::showState() {
    const bool useCustom = useCustom_.isChecked();
    for (PresetRow* const row : rows_)
        row->showChosen(!useCustom && row->preset().id == selectedPresetID_);
    customW_.setEnabled(useCustom);
    customH_.setEnabled(useCustom);

    const auto size = resolveSize();
    preview_.setVisible(size.has_value());
    if (size)
        preview_.setText(tr("%1 × %2 px").arg(wholePixels(size->width), wholePixels(size->height)));
    create_.setEnabled(size.has_value());
}

void NewCanvasSheet::createCanvas() {
    const auto size = resolveSize();
    if (!size) return;
    document_.canvasSize = *size;
    dismiss_();
}

}  // namespace marlevo
