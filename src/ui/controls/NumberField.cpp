#include "ui/controls/NumberField.h"

#include <QFocusEvent>
#include <QKeyEvent>
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
    connect(this, &QLineEdit::editingFinished, this, &NumberField::finish);
}

void NumberField::showValue(double value) {
    value_ = value;
    if (!isEdited()) rewrite();
}

void NumberField::changeEvent(QEvent* event) {
    if (event->type() == QEvent::LocaleChange) rewrite();
    QLineEdit::changeEvent(event);
}

void NumberField::keyPressEvent(QKeyEvent* event) {
    // Without an edit, Escape is left to the window.
    if (event->key() == Qt::Key_Escape && isEdited())
        rewrite();
    else
        QLineEdit::keyPressEvent(event);
}

void NumberField::focusOutEvent(QFocusEvent* event) {
    // Another window may use the number. An unfinished text can be finished after the return.
    if (event->reason() == Qt::ActiveWindowFocusReason) takeNumber();
    QLineEdit::focusOutEvent(event);
}

// When a window closes, the field loses the focus without editingFinished().
void NumberField::hideEvent(QHideEvent* event) {
    finish();
    QLineEdit::hideEvent(event);
}

void NumberField::finish() {
    takeNumber();
    if (isEdited()) rewrite();
}

void NumberField::takeNumber() {
    if (!isEdited()) return;
    const auto number = parse(locale(), text());
    if (!number) return;
    value_ = *number;
    rewrite();
    Q_EMIT valueEntered(value_);
}

void NumberField::rewrite() {
    written_ = numberLocale(locale()).toString(value_, 'f', QLocale::FloatingPointShortest);
    setText(written_);
}

}  // namespace marlevo
