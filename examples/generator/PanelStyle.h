// SPDX-License-Identifier: MIT
#pragma once

#include <QRgb>

//! How the screens of the pump station look: quiet greys, with strong colours for what needs attention.
namespace Halvane::Corvex::Examples::PanelStyle {

inline constexpr QRgb background = 0xffe4e9ed;
inline constexpr QRgb card = 0xffffffff;
inline constexpr QRgb cardBorder = 0xffc3cdd6;
inline constexpr QRgb bar = 0xff1d3040;
inline constexpr QRgb ink = 0xff22303c;
inline constexpr QRgb faint = 0xff61717f;
inline constexpr QRgb onBar = 0xffffffff;
inline constexpr QRgb onBarFaint = 0xff9fb3c4;
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
inline constexpr TextStyle titleRight{16, true, onBar, "AlignRight"};
inline constexpr TextStyle tab{16, false, onBarFaint, "AlignHCenter"};
inline constexpr TextStyle activeTab{16, true, onBar, "AlignHCenter"};
inline constexpr TextStyle heading{17, true, ink, "AlignLeft"};
inline constexpr TextStyle label{15, false, faint, "AlignLeft"};
inline constexpr TextStyle value{15, true, ink, "AlignRight"};
inline constexpr TextStyle valueLeft{15, true, ink, "AlignLeft"};
inline constexpr TextStyle centered{18, true, ink, "AlignHCenter"};
inline constexpr TextStyle large{30, true, ink, "AlignHCenter"};
inline constexpr TextStyle caption{16, true, onBar, "AlignHCenter"};
inline constexpr TextStyle small{12, false, faint, "AlignLeft"};

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
inline constexpr Face cardFace{card, 1, cardBorder, 6};
inline constexpr Face tankFace{0xfff4f6f8, 2, stopped, 4};
inline constexpr Face lampFace{stopped, 2, 0xffdfe5ea, 12};

} // namespace Halvane::Corvex::Examples::PanelStyle
