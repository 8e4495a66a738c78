// SPDX-License-Identifier: MIT
#include "corvex/core/properties/FormText.h"

#include "corvex/common/LocalizationHelper.h"
#include "corvex/values/expressions/UpdateObjectList.h"

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

QString of(const RangeInfo &)
{
    return LocalizationHelper::coreString(u"a range such as 0 to 100"_s);
}

QString of(const BorderInfo &)
{
    return LocalizationHelper::coreString(u"a width and a color such as 2 #C62828"_s);
}

QString of(const ListInfo &)
{
    return LocalizationHelper::coreString(u"names such as pump1 | pump2"_s);
}

QString of(const MapInfo &)
{
    return LocalizationHelper::coreString(u"keys and values such as \"key: 1; value: On;\""_s);
}

QString of(const UpdateObjectList &)
{
    return LocalizationHelper::coreString(u"values such as { lamp.color: #C62828; lamp.visible: true }"_s);
}

QString of(const PropertyList &)
{
    return of(UpdateObjectList());
}

QString oneOf(const QStringList &words)
{
    return LocalizationHelper::coreString(u"one of %1"_s).arg(words.join(u", "_s));
}

QString example(const QString &text)
{
    return text.isEmpty() ? LocalizationHelper::coreString(u"a text in the expected format"_s)
                          : LocalizationHelper::coreString(u"a text such as \"%1\""_s).arg(text);
}

} // namespace Halvane::Corvex::Designer::FormText
