// SPDX-License-Identifier: MIT
#include "corvex/values/records/BorderInfo.h"

#include "corvex/values/text/GroupText.h"
#include "corvex/values/text/ValueConversion.h"

namespace Halvane::Corvex::Designer {

using namespace Qt::StringLiterals;

BorderInfo::BorderInfo(int width, const QColor &color)
    : m_width(width)
    , m_color(color)
{ }

BorderInfo::BorderInfo(const QString &text, bool *ok)
{
    BorderInfo border;
    const auto read = [&border](bool isWidth, QStringView value) {
        bool valueOk = false;
        if (isWidth) {
            border.m_width = ValueConversion::toInt(value, &valueOk);
        } else {
            border.m_color = ValueConversion::toColor(value, &valueOk);
        }
        return valueOk;
    };
    const bool parsed =
        GroupText::readTwo(text, "color"_L1, "width"_L1, GroupText::Repeated::LastCounts, read);
    if (parsed) {
        *this = border;
    }
    if (ok) {
        *ok = parsed;
    }
}

QString BorderInfo::toString() const
{
    QString text;
    text.reserve(32);
    text.append("color: "_L1);
    ValueConversion::appendColor(text, m_color);
    return text.append("; width: "_L1).append(QString::number(m_width)).append(u';');
}

bool BorderInfo::isValid() const
{
    return m_width >= 0 && m_width <= 100 && m_color.isValid();
}

} // namespace Halvane::Corvex::Designer
