#pragma once

#include <QSlider>

namespace marlevo {

/// A horizontal slider over a closed range of real numbers, without steps for the pointer. The
/// slider only shows its value: a value beyond the range stays as it is until the user moves the
/// knob. The wheel does not move it, so that the wheel can scroll what surrounds it.
class ContinuousSlider final : public QSlider {
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

    /// The value as shown last; value() is its position on the scale of whole numbers.
    double realValue() const { return realValue_; }
    const Range& range() const { return range_; }

    /// The value as text, for assistive technology.
    const QString& valueInWords() const { return inWords_; }

    /// The diameter, in view points. It grows with the text.
    int knobSize() const;

    /// Shows a value; emits nothing.
    void showValue(double value, const QString& inWords);

    /// Emits moved() as if the user had moved the knob there; clamps values beyond the range.
    void moveTo(double value);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

Q_SIGNALS:
    /// The user moved the knob to this value, which lies within the range.
    void moved(double value);

protected:
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;

private:
    void performAction(int action);
    double knobCenter() const;
    double valueAt(double x) const;
    double afterSteps(double count) const;

    Range range_;
    int knobSize_;
    double realValue_;
    QString inWords_;
    double grabOffset_ = 0;  ///< from the pointer to the knob's centre
};

}  // namespace marlevo
