#pragma once

#include <QProxyStyle>

namespace marlevo {

/// Paints the controls of all windows, including the toolkit's panels and questions: flat buttons
/// and fields, rounded menus, narrow scroll bars, and the colours of SemanticColors.h for the
/// desktop's light or dark appearance.
class MarlevoStyle final : public QProxyStyle {
    Q_OBJECT

public:
    MarlevoStyle();

    using QProxyStyle::polish;
    void polish(QPalette& palette) override;
    void polish(QWidget* widget) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

    void drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                       const QWidget* widget) const override;
    void drawControl(ControlElement element, const QStyleOption* option, QPainter* painter,
                     const QWidget* widget) const override;
    void drawComplexControl(ComplexControl control, const QStyleOptionComplex* option,
                            QPainter* painter, const QWidget* widget) const override;
    QRect subControlRect(ComplexControl control, const QStyleOptionComplex* option, SubControl part,
                         const QWidget* widget) const override;
    QSize sizeFromContents(ContentsType type, const QStyleOption* option, const QSize& contents,
                           const QWidget* widget) const override;
    QRect subElementRect(SubElement element, const QStyleOption* option,
                         const QWidget* widget) const override;
    int pixelMetric(PixelMetric metric, const QStyleOption* option,
                    const QWidget* widget) const override;
    int styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                  QStyleHintReturn* returned) const override;
    QIcon standardIcon(StandardPixmap icon, const QStyleOption* option,
                       const QWidget* widget) const override;
};

}  // namespace marlevo
