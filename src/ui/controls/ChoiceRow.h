#pragma once

#include <QRadioButton>

namespace marlevo {

/// One of several choices as a row of a list, with a mark at the trailing side while it is chosen.
/// A press emits toggled(true). The owner then shows with showChosen() which row is chosen. A text
/// that does not fit is elided and shown whole in a tooltip.
class ChoiceRow : public QRadioButton {
    Q_OBJECT

public:
    explicit ChoiceRow(const QString& text, QWidget* parent = nullptr);

    /// Shows a state; emits nothing.
    void showChosen(bool isChosen);
};

}  // namespace marlevo
