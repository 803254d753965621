#pragma once

#include <QLineEdit>

namespace marlevo {

/// A field for a decimal number as the user's locale writes it; any finite number. A number is
/// entered by Return, and when the field loses the focus or is hidden. Text that is not a number is
/// then replaced by the value. Escape discards an edit.
class NumberField final : public QLineEdit {
    Q_OBJECT

public:
    /// `name` is the accessible name.
    explicit NumberField(const QString& name, QWidget* parent = nullptr);

    /// Emits nothing. The text of an edit stays.
    void showValue(double value);

Q_SIGNALS:
    void valueEntered(double value);

protected:
    void changeEvent(QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;
    void hideEvent(QHideEvent* event) override;

private:
    bool isEdited() const { return text() != written_; }
    void finish();
    void takeNumber();
    void rewrite();

    double value_ = 0;
    QString written_;  ///< the text of the value
};

}  // namespace marlevo
