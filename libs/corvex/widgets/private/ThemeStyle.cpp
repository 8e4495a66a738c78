// SPDX-License-Identifier: MIT
#include "corvex/widgets/private/ThemeStyle.h"

#include "corvex/widgets/Theme.h"

#include <QPainter>
#include <QStyleOption>

using namespace Qt::StringLiterals;

namespace Halvane::Corvex::Designer {

ThemeStyle::ThemeStyle()
    : QProxyStyle(u"Fusion"_s)
{ }

void ThemeStyle::drawPrimitive(PrimitiveElement element, const QStyleOption *option, QPainter *painter,
                               const QWidget *widget) const
{
    QProxyStyle::drawPrimitive(element, option, painter, widget);
    const bool isFrame = element == PE_FrameLineEdit || element == PE_IndicatorCheckBox
                         || element == PE_IndicatorItemViewItemCheck || element == PE_Frame;
    const bool hasFocus = element == PE_FrameLineEdit && option->state & State_HasFocus;
    if (!isFrame || hasFocus || !Theme::isDark(option->palette)) {
        return;
    }
    painter->save();
    painter->setRenderHint(QPainter::Antialiasing, element == PE_FrameLineEdit);
    painter->setPen(Theme::frame(option->palette));
    painter->setBrush(Qt::NoBrush);
    const double radius = element == PE_FrameLineEdit ? 2 : 0;
    painter->drawRoundedRect(QRectF(option->rect).adjusted(0.5, 0.5, -0.5, -0.5), radius, radius);
    painter->restore();
}

} // namespace Halvane::Corvex::Designer
