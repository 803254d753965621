#include "ui/ControlRow.h"

#include <QCheckBox>
#include <QLabel>
#include <QPushButton>
#include <QSignalBlocker>
#include <QSlider>
#include <QToolButton>

#include <utility>

namespace marlevo {

namespace {

constexpr int sliderWidth = 100;
constexpr int labelSpacing = 12;

}  // namespace

ControlRow::ControlRow(const QString& title, DrawingDocument& document, QWidget* parent)
    : QToolBar(title, parent), document_(document) {
    setMovable(false);
    setContextMenuPolicy(Qt::PreventContextMenu);
}

void ControlRow::addButton(const QString& name, Command press) {
    auto* button = new QPushButton(name, this);
    connect(button, &QPushButton::clicked, this,
            [this, press = std::move(press)] { press(document_); });
    addWidget(button);
}

void ControlRow::addChoice(const QString& name, Read<bool> isChosen, Command choose) {
    auto* button = new QToolButton(this);
    button->setText(name);
    button->setAccessibleName(name);
    button->setCheckable(true);
    Follower& follower =
        followers_.emplace_back(document_, [this, button, isChosen = std::move(isChosen)] {
            const QSignalBlocker quiet(button);
            button->setChecked(isChosen(document_));
        });
    // Toggled, not clicked: that is all that assistive technology makes a checkable button say.
    connect(button, &QToolButton::toggled, this, [this, choose = std::move(choose), &follower] {
        choose(document_);
        follower.refresh();
    });
    addWidget(button);
}

void ControlRow::addCheckBox(const QString& name, Read<bool> read, Write<bool> write) {
    auto* box = new QCheckBox(name, this);
    box->setAccessibleName(name);
    followers_.emplace_back(document_, [this, box, read = std::move(read)] {
        const QSignalBlocker quiet(box);
        box->setChecked(read(document_));
    });
    connect(box, &QCheckBox::toggled, this,
            [this, write = std::move(write)](bool on) { write(document_, on); });
    addWidget(box);
}

void ControlRow::addColorButton(const QString& name, ColorButton::Opacity opacity, Read<Color> read,
                                Write<Color> write) {
    auto* button = new ColorButton(name, opacity, this);
    followers_.emplace_back(
        document_, [this, button, read = std::move(read)] { button->setColor(read(document_)); });
    connect(button, &ColorButton::colorChosen, this,
            [this, write = std::move(write)](const Color& color) { write(document_, color); });
    addWidget(button);
}

void ControlRow::addSlider(const QString& name, const QString& unit, int least, int most,
                           Read<double> read, Write<double> write) {
    const auto inWords = [name, unit](int value) {
        return tr("%1: %2%3").arg(name).arg(value).arg(unit);
    };
    auto* label = new QLabel(this);
    label->setFixedWidth(label->fontMetrics().horizontalAdvance(inWords(most)) + labelSpacing);
    auto* slider = new QSlider(Qt::Horizontal, this);
    slider->setAccessibleName(name);
    slider->setRange(least, most);
    slider->setFixedWidth(sliderWidth);

    followers_.emplace_back(document_, [this, label, slider, inWords, read = std::move(read)] {
        const QSignalBlocker quiet(slider);
        const int value = static_cast<int>(read(document_));
        slider->setValue(value);
        label->setText(inWords(value));
    });
    connect(slider, &QSlider::valueChanged, this,
            [this, write = std::move(write)](int value) { write(document_, value); });
    addWidget(label);
    addWidget(slider);
}

}  // namespace marlevo
