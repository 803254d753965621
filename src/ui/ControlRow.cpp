#include "ui/ControlRow.h"

#include <QCheckBox>
#include <QLabel>
#include <QSignalBlocker>
#include <QSlider>
#include <QToolButton>

#include <utility>

namespace marlevo {

namespace {

constexpr int sliderWidth = 100;

}  // namespace

ControlRow::ControlRow(const QString& title, DrawingDocument& document, QWidget* parent)
    : QToolBar(title, parent), document_(document) {
    setMovable(false);
    setContextMenuPolicy(Qt::PreventContextMenu);
}

void ControlRow::addButton(const QString& name, Command press) {
    auto* button = new QToolButton(this);
    button->setText(name);
    button->setAccessibleName(name);
    button->setAutoRaise(false);
    connect(button, &QToolButton::clicked, this,
            [this, press = std::move(press)] { press(document_); });
    addWidget(button);
}

void ControlRow::addChoice(const QString& name, Read<bool> isChosen, Command choose) {
    auto* button = new QToolButton(this);
    button->setText(name);
    button->setAccessibleName(name);
    button->setCheckable(true);
    Follower& follower = followers_.emplace_back(document_, [this, button, isChosen] {
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
    auto* label = new QLabel(name + ' ', this);
    auto* slider = new QSlider(Qt::Horizontal, this);
    slider->setAccessibleName(name);
    slider->setRange(least, most);
    slider->setFixedWidth(sliderWidth);
    auto* value = new QLabel(this);
    value->setMinimumWidth(value->fontMetrics().horizontalAdvance(QString::number(most) + unit) +
                           8);
    label->setBuddy(slider);

    followers_.emplace_back(document_, [this, slider, value, unit, read = std::move(read)] {
        const QSignalBlocker quiet(slider);
        const int shown = static_cast<int>(read(document_));
        slider->setValue(shown);
        value->setText(' ' + QString::number(shown) + unit);
    });
    connect(slider, &QSlider::valueChanged, this,
            [this, write = std::move(write)](int number) { write(document_, number); });
    addWidget(label);
    addWidget(slider);
    addWidget(value);
}

}  // namespace marlevo
