// SPDX-License-Identifier: MIT
#include "corvex/core/properties/FormText.h"

#include "corvex/common/LocalizationHelper.h"

using namespace Qt::StringLiterals;

namespace Halvane::Corvex::Designer::FormText {

using Common::LocalizationHelper;

QString of(const int &)
{
    return LocalizationHelper::coreString(u"a whole number"_s);
}

QString of(const double &)
{
    return LocalizationHelper::coreString(u"a number"_s);
}

QString of(const bool &)
{
    return LocalizationHelper::coreString(u"true or false"_s);
}

QString of(const QColor &)
{
    return LocalizationHelper::coreString(u"a color such as \"#FF8800\" or \"red\""_s);
}

QString of(const QFont &)
{
    return LocalizationHelper::coreString(u"a font with a whole size, such as bold 24px \"DejaVu Sans\""_s);
}

QString of(const QPointF &)
{
    return LocalizationHelper::coreString(u"a position such as 10, 20"_s);
}

QString of(const QSizeF &)
{
    return LocalizationHelper::coreString(u"a size such as 120 x 40"_s);
}

QString example(const QString &text)
{
    return text.isEmpty() ? LocalizationHelper::coreString(u"a text in the expected format"_s)
                          : LocalizationHelper::coreString(u"a text such as \"%1\""_s).arg(text);
}

} // namespace Halvane::Corvex::Designer::FormText
