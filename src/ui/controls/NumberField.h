#pragma once

#include <QLineEdit>

namespace marlevo {

/// A field for a decimal number as the user's locale writes it; any finite number. It tells of each
/// number typed at once; text that is none changes nothing and is replaced when the field is left.
class NumberField final : public QLineEdit {
    Q_OBJECT

public:
    /// `name` is the accessible name.
    explicit NumberField(const QString& name, QWidget* parent = nullptr);

    /// Emits nothing, and leaves text alone that already reads as this number.
    void showValue(double value);

Q_SIGNALS:
    void valueTyped(double value);

protected:
    void changeEvent(QEvent* event) override;

private:
    void rewrite();

    double value_ = 0;
};

}  // namespace marlevo
