#include "ui/controls/NumberField.h"

#include <QEvent>
#include <QLocale>

#include <cmath>
#include <optional>

namespace marlevo {

namespace {

QLocale numberLocale(const QLocale& user) {
    QLocale locale = user;
    locale.setNumberOptions(QLocale::OmitGroupSeparator);
    return locale;
}

std::optional<double> parse(const QLocale& locale, const QString& text) {
    bool isNumber = false;
    const double number = locale.toDouble(text, &isNumber);
    return isNumber && std::isfinite(number) ? std::optional(number) : std::nullopt;
}

}  // namespace

NumberField::NumberField(const QString& name, QWidget* parent) : QLineEdit(parent) {
    setAccessibleName(name);
    rewrite();
    connect(this, &QLineEdit::textEdited, this, [this](const QString& text) {
        const auto number = parse(locale(), text);
        if (!number) return;
        value_ = *number;
        Q_EMIT valueTyped(value_);
    });
    connect(this, &QLineEdit::editingFinished, this, &NumberField::rewrite);
}

void NumberField::showValue(double value) {
    value_ = value;
    if (parse(locale(), text()) != value) rewrite();
}

void NumberField::changeEvent(QEvent* event) {
    if (event->type() == QEvent::LocaleChange) rewrite();
    QLineEdit::changeEvent(event);
}

void NumberField::rewrite() {
    setText(numberLocale(locale()).toString(value_, 'f', QLocale::FloatingPointShortest));
}

}  // namespace marlevo
