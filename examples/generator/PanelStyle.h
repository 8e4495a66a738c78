// SPDX-License-Identifier: MIT
#pragma once

#include <QRgb>

//! The look of the pump station's screens: quiet greys, with strong colours for anything that needs
//! attention.
namespace Halvane::Corvex::Examples::PanelStyle {

inline constexpr int panelWidth = 800;
inline constexpr int barHeight = 56;

inline constexpr QRgb background = 0xfff0f3f5;
inline constexpr QRgb card = 0xffffffff;
inline constexpr QRgb cardBorder = 0xffc3cdd6;
inline constexpr QRgb bar = 0xff1d3040;
inline constexpr QRgb ink = 0xff22303c;
inline constexpr QRgb faint = 0xff61717f;
inline constexpr QRgb onBar = 0xffffffff;
inline constexpr QRgb accent = 0xff1f6fb2;
inline constexpr QRgb water = 0xff4a96d2;
inline constexpr QRgb running = 0xff2e8b57;
inline constexpr QRgb stopped = 0xff8a97a3;
inline constexpr QRgb warning = 0xffe0a11b;
inline constexpr QRgb alarm = 0xffc62828;

struct TextStyle
{
    int pixels;
    bool isBold;
    QRgb color;
    const char *alignment;
};

inline constexpr TextStyle title{20, true, onBar, "AlignLeft"};
inline constexpr TextStyle tab{17, true, onBar, "AlignHCenter"};
inline constexpr TextStyle label{18, false, ink, "AlignLeft"};
inline constexpr TextStyle centered{18, false, ink, "AlignHCenter"};
inline constexpr TextStyle large{26, true, ink, "AlignHCenter"};
inline constexpr TextStyle caption{17, true, onBar, "AlignHCenter"};

struct Face
{
    QRgb color;
    int borderWidth;
    QRgb borderColor;
    int radius;
};

constexpr Face plain(QRgb color, int radius = 0)
{
    return {color, 0, 0xff000000, radius};
}
inline constexpr Face tankFace{card, 2, stopped, 4};
inline constexpr Face lampFace{alarm, 2, cardBorder, 16};
inline constexpr Face darkLampFace{0xffdde4e9, 2, cardBorder, 16};

} // namespace Halvane::Corvex::Examples::PanelStyle
