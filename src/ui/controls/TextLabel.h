#pragma once

#include "ui/controls/SemanticColors.h"
#include "ui/controls/TypeScale.h"

#include <QLabel>
#include <QLocale>

namespace marlevo {

/// One line of text in a semantic colour. A text that does not fit is elided and shown whole in
/// a tooltip.
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

protected:
    /// The text as it is painted. Assistive technology reads text().
    virtual QString shownText() const { return text(); }

    void paintEvent(QPaintEvent* event) override;

private:
    bool isElided() const;
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

/// The title of a section of the sidebar, painted in upper case.
class SectionHeader final : public TextLabel {
    Q_OBJECT

public:
    explicit SectionHeader(const QString& title, QWidget* parent = nullptr);

protected:
    QString shownText() const override { return locale().toUpper(text()); }
};

}  // namespace marlevo
