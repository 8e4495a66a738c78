// SPDX-License-Identifier: MIT
#pragma once

#include <QProxyStyle>

namespace Halvane::Corvex::Designer {

//! Fusion with frames that are visible in dark windows. Fusion darkens the color of the window for them.
class ThemeStyle : public QProxyStyle
{
public:
    ThemeStyle();

    void drawPrimitive(PrimitiveElement element, const QStyleOption *option, QPainter *painter,
                       const QWidget *widget) const override;
};

} // namespace Halvane::Corvex::Designer
