#pragma once

#include <QWidget>

namespace marlevo {

/// A horizontal slider over a closed range of real numbers, without steps. It only shows its value:
/// a value beyond the range or between two pixels stays what it is until the user moves the knob.
class ContinuousSlider final : public QWidget {
    Q_OBJECT

public:
    struct Range {
        double least;
        double most;
        double keyStep;  ///< of one press of an arrow key; ten of them are a page
    };

    enum class Knob : unsigned char { regular, small };

    /// `name` is the accessible name.
    ContinuousSlider(const QString& name, Range range, QWidget* parent = nullptr,
                     Knob knob = Knob::regular);

    double value() const { return value_; }
    const Range& range() const { return range_; }

    /// The value as it reads, for assistive technology.
    const QString& valueInWords() const { return inWords_; }

    /// Shows a value; emits nothing.
    void showValue(double value, const QString& inWords);

    /// As if the user had moved the knob there; values beyond the range are clamped.
    void moveTo(double value);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

Q_SIGNALS:
    /// The user wants this value, within the range.
    void moved(double value);

protected:
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    double knobCenter() const;
    double valueAt(double x) const;
    double afterSteps(double count) const;

    Range range_;
    int knobSize_;
    double value_;
    QString inWords_;
    double grabOffset_ = 0;  ///< from the pointer to the knob's centre
    bool isGrabbed_ = false;
};

}  // namespace marlevo
