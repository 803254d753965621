#include "ui/controls/SemanticColors.h"

#include "ui/controls/ControlPainting.h"

#include <QGuiApplication>
#include <QPalette>

#include <array>

namespace marlevo {

namespace {

struct Row {
    SemanticColor color;
    QRgb light;
    QRgb dark;
};

constexpr std::array table{
    Row{SemanticColor::blue, 0xff0b66d8, 0xff2a72e5},
    Row{SemanticColor::gray, 0xff8a8a90, 0xff98989e},
    Row{SemanticColor::primary, 0xff1c1c1e, 0xfff2f2f4},
    Row{SemanticColor::secondary, 0xff5a5a60, 0xffb6b6bc},
    Row{SemanticColor::tertiary, 0xff616168, 0xffaeaeb5},
    Row{SemanticColor::quaternaryFill, 0x0f000000, 0x1affffff},
    Row{SemanticColor::separator, 0x1f000000, 0x26ffffff},
    Row{SemanticColor::controlBackground, 0xffffffff, 0xff1e1e20},
    Row{SemanticColor::windowBackground, 0xfff0f0f2, 0xff2a2a2d},
    Row{SemanticColor::outline, 0xff88888e, 0xff7a7a80},
    Row{SemanticColor::systemRed, 0xffe8352e, 0xffff5a50},
    Row{SemanticColor::systemOrange, 0xfff58a07, 0xffff9f1c},
    Row{SemanticColor::systemYellow, 0xfff7c600, 0xffffd426},
    Row{SemanticColor::systemGreen, 0xff2fb344, 0xff3cd15a},
    Row{SemanticColor::systemBlue, 0xff1273eb, 0xff3d8bff},
    Row{SemanticColor::systemPurple, 0xffa347d1, 0xffc26bf0},
};

constexpr bool isInOrder() {
    for (std::size_t i = 0; i < table.size(); ++i)
        if (std::size_t(table[i].color) != i) return false;
    return true;
}
static_assert(isInOrder(), "a colour is looked up by its place");

Appearance appearance() { return appearanceOf(QGuiApplication::palette()); }

}  // namespace

Appearance appearanceOf(const QPalette& palette) {
    return palette.color(QPalette::Window).lightnessF() < 0.5F ? Appearance::dark
                                                               : Appearance::light;
}

QColor semanticColor(SemanticColor color, Appearance appearance) {
    const Row& row = table[std::size_t(color)];
    return QColor::fromRgba(appearance == Appearance::dark ? row.dark : row.light);
}

QColor semanticColor(SemanticColor color) { return semanticColor(color, appearance()); }

QColor withOpacity(QColor color, double opacity) {
    color.setAlphaF(color.alphaF() * float(opacity));
    return color;
}

void setSemanticColors(QPalette& palette, Appearance appearance, SemanticColor background) {
    const auto color = [&](SemanticColor which) { return semanticColor(which, appearance); };
    const QColor text = color(SemanticColor::primary);
    const QColor window = color(background);
    const bool isDark = appearance == Appearance::dark;
    palette.setColor(QPalette::Window, window);
    palette.setColor(QPalette::Base, color(SemanticColor::controlBackground));
    palette.setColor(QPalette::AlternateBase, window);
    palette.setColor(QPalette::Button, isDark ? window.lighter(130) : window);
    for (const QPalette::ColorRole role :
         {QPalette::WindowText, QPalette::Text, QPalette::ButtonText}) {
        palette.setColor(role, text);
        palette.setColor(QPalette::Disabled, role, withOpacity(text, opacity::disabled));
    }
    palette.setColor(QPalette::PlaceholderText, color(SemanticColor::tertiary));
    palette.setColor(QPalette::Highlight, color(SemanticColor::blue));
    palette.setColor(QPalette::HighlightedText, Qt::white);
    palette.setColor(QPalette::Link, color(SemanticColor::blue));
    palette.setColor(QPalette::ToolTipBase, color(SemanticColor::controlBackground));
    palette.setColor(QPalette::ToolTipText, text);
    palette.setColor(QPalette::Light, window.lighter(isDark ? 160 : 150));
    palette.setColor(QPalette::Midlight, window.lighter(isDark ? 130 : 110));
    palette.setColor(QPalette::Mid, window.darker(130));
    palette.setColor(QPalette::Dark, window.darker(150));
    palette.setColor(QPalette::Shadow, Qt::black);
}

QPalette semanticPalette(SemanticColor background) {
    QPalette palette;
    setSemanticColors(palette, appearance(), background);
    return palette;
}

}  // namespace marlevo
