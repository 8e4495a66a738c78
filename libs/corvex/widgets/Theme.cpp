// SPDX-License-Identifier: MIT
#include "corvex/widgets/Theme.h"

#include "corvex/widgets/private/ThemeStyle.h"

#include <QApplication>
#include <QEvent>
#include <QWidget>

using namespace Qt::StringLiterals;

namespace Halvane::Corvex::Designer {

namespace {

struct Shade
{
    QPalette::ColorRole role;
    QRgb light;
    QRgb dark;
};

constexpr Shade shades[] = {
    {QPalette::Window, 0xF4F5F7, 0x25282C},
    {QPalette::WindowText, 0x1B1F24, 0xE4E7EB},
    {QPalette::Base, 0xFFFFFF, 0x1B1D20},
    {QPalette::AlternateBase, 0xEEF0F3, 0x212428},
    {QPalette::Text, 0x1B1F24, 0xE4E7EB},
    {QPalette::PlaceholderText, 0x66707B, 0x98A2AD},
    {QPalette::Button, 0xE9EBEF, 0x33373C},
    {QPalette::ButtonText, 0x1B1F24, 0xE4E7EB},
    {QPalette::BrightText, 0xFFFFFF, 0xFFFFFF},
    {QPalette::ToolTipBase, 0xFFFFFF, 0x33373C},
    {QPalette::ToolTipText, 0x1B1F24, 0xE4E7EB},
    {QPalette::Highlight, 0x1F6FD1, 0x3D7FD0},
    {QPalette::HighlightedText, 0xFFFFFF, 0xFFFFFF},
    {QPalette::Link, 0x175CB0, 0x7FB4F5},
    {QPalette::LinkVisited, 0x6A3FA0, 0xB99AE6},
    {QPalette::Light, 0xFFFFFF, 0x4A4F56},
    {QPalette::Midlight, 0xF0F1F4, 0x3C4046},
    {QPalette::Mid, 0xC3C9D1, 0x1F2226},
    {QPalette::Dark, 0xA2A9B3, 0x15171A},
    {QPalette::Shadow, 0x6B727B, 0x0B0C0E},
};

constexpr Shade disabledShades[] = {
    {QPalette::WindowText, 0x858D97, 0x7C858F}, {QPalette::Text, 0x858D97, 0x7C858F},
    {QPalette::ButtonText, 0x858D97, 0x7C858F}, {QPalette::Base, 0xF4F5F7, 0x25282C},
    {QPalette::Highlight, 0xC3C9D1, 0x4A4F56},
};

QColor chosen(const QPalette &palette, QRgb light, QRgb dark)
{
    return QColor::fromRgb(Theme::isDark(palette) ? dark : light);
}

//! Sets the color again when the palette of the application changes.
class TextColor : public QObject
{
public:
    TextColor(QWidget *widget, Theme::Role role)
        : QObject(widget)
        , m_widget(widget)
        , m_role(role)
    {
        widget->installEventFilter(this);
        update();
    }

    bool eventFilter(QObject *, QEvent *event) override
    {
        if (event->type() == QEvent::PaletteChange) {
            update();
        }
        return false;
    }

private:
    void update()
    {
        const QColor color = m_role(QApplication::palette(m_widget));
        if (color == m_color) {
            return;
        }
        m_color = color;
        QPalette palette;
        palette.setColor(QPalette::WindowText, color);
        palette.setColor(QPalette::Text, color);
        m_widget->setPalette(palette);
    }

    QWidget *m_widget;
    Theme::Role m_role;
    QColor m_color;
};

} // namespace

QPalette Theme::palette(Kind kind)
{
    QPalette palette;
    const auto shadeOf = [kind](const Shade &shade) {
        return QColor::fromRgb(kind == Dark ? shade.dark : shade.light);
    };
    for (const Shade &shade : shades) {
        palette.setColor(shade.role, shadeOf(shade));
    }
    for (const Shade &shade : disabledShades) {
        palette.setColor(QPalette::Disabled, shade.role, shadeOf(shade));
    }
    return palette;
}

void Theme::apply(Kind kind)
{
    QApplication::setStyle(new ThemeStyle); // owned by the application
    QApplication::setPalette(palette(kind));
}

bool Theme::isDark(const QPalette &palette)
{
    return palette.color(QPalette::Window).lightness() < palette.color(QPalette::WindowText).lightness();
}

QColor Theme::error(const QPalette &palette)
{
    return chosen(palette, 0xB3261E, 0xF59A93);
}

QColor Theme::warning(const QPalette &palette)
{
    return chosen(palette, 0x8A5300, 0xF0B95C);
}

QColor Theme::muted(const QPalette &palette)
{
    return palette.color(QPalette::PlaceholderText);
}

QColor Theme::frame(const QPalette &palette)
{
    return chosen(palette, 0xA2A9B3, 0x5F6771);
}

QColor Theme::line(const QPalette &palette)
{
    return chosen(palette, 0xD5DAE0, 0x3C4147);
}

void Theme::setTextColor(QWidget *widget, Role role)
{
    new TextColor(widget, role);
}

int Theme::fieldHeight(const QWidget *widget)
{
    return widget->fontMetrics().height() + 8;
}

} // namespace Halvane::Corvex::Designer
