#pragma once

#include "ui/controls/SemanticColors.h"
#include "ui/controls/TypeScale.h"

#include <QLabel>

namespace marlevo {

/// Text in a semantic colour. Without wordWrap(), a text that does not fit in one line is elided
/// and shown whole in a tooltip; with it, the text takes more lines (WrapText.h). The name for
/// assistive technology has no soft hyphens.
class TextLabel : public QLabel {
    Q_OBJECT

public:
    enum class Digits : unsigned char {
        proportional,
        monospaced,  ///< as wide as the widest digit, so that a changing number does not move
    };

    struct Look {
        TypeStyle style = TypeStyle::body;
        QFont::Weight weight = QFont::Normal;
        SemanticColor color = SemanticColor::primary;
        Digits digits = Digits::proportional;
    };

    TextLabel(const QString& text, Look look, QWidget* parent = nullptr);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;
    int heightForWidth(int width) const override;

protected:
    /// The text as it is painted. Assistive technology reads text().
    virtual QString shownText() const { return text(); }

    void paintEvent(QPaintEvent* event) override;

private:
    bool isElided() const;
    QString wrapped(int width) const;
    int digitWidth() const;
    int widthOf(const QString& shown) const;
    void paintCharacters(QPainter& painter, const QString& shown) const;

    Look look_;
};

// Looks that several labels share.
namespace textlook {
inline constexpr TextLabel::Look body{};
inline constexpr TextLabel::Look bodyTitle{TypeStyle::body, QFont::DemiBold};
inline constexpr TextLabel::Look bodyUnit{TypeStyle::body, QFont::Normal, SemanticColor::secondary};
inline constexpr TextLabel::Look caption{TypeStyle::caption, QFont::Normal,
                                         SemanticColor::secondary};
inline constexpr TextLabel::Look captionTitle{TypeStyle::caption, QFont::DemiBold,
                                              SemanticColor::secondary};
inline constexpr TextLabel::Look captionNumber{
    TypeStyle::caption, QFont::Normal, SemanticColor::secondary, TextLabel::Digits::monospaced};
}  // namespace textlook

}  // namespace marlevo
