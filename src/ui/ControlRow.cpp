#include "ui/ControlRow.h"

#include <QLabel>
#include <QPushButton>
#include <QSignalBlocker>
#include <QSlider>

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
