// SPDX-License-Identifier: MIT
#include "corvex/values/expressions/PropertyChangeInfo.h"

#include "corvex/common/TextHelper.h"
#include "corvex/values/text/GroupText.h"
#include "corvex/values/text/NestedText.h"

namespace Halvane::Corvex::Designer {

using namespace Qt::StringLiterals;

PropertyChangeInfo::PropertyChangeInfo(const QString &elementName, const QString &propertyName,
                                       const QString &valueString)
    : m_elementName(elementName)
    , m_propertyName(propertyName)
    , m_valueString(valueString)
{ }

PropertyChangeInfo::PropertyChangeInfo(const QString &text, bool *ok)
{
    PropertyChangeInfo change;
    unsigned seen = 0;
    bool parsed = GroupText::forEachEntry(text, [&](QStringView key, QStringView value) {
        bool valueOk = true;
        if (key == "elementName"_L1) {
            change.m_elementName = NestedText::fromField(value);
            seen |= 1;
        } else if (key == "propertyName"_L1) {
            change.m_propertyName = NestedText::fromField(value);
            seen |= 2;
        } else if (key == "valueString"_L1) {
            change.m_valueString = Common::TextHelper::convertFromBase64(value.toString(), &valueOk);
            seen |= 4;
        } else {
            return false;
        }
        return valueOk;
    });
    parsed = parsed && seen == 7;
    if (parsed) {
        *this = change;
    }
    if (ok) {
        *ok = parsed;
    }
}

QString PropertyChangeInfo::toString() const
{
    QString text;
    GroupText::appendEntry(text, u"elementName", NestedText::toField(m_elementName));
    GroupText::appendEntry(text, u"propertyName", NestedText::toField(m_propertyName));
    GroupText::appendEntry(text, u"valueString", Common::TextHelper::convertToBase64(m_valueString));
    return text;
}

} // namespace Halvane::Corvex::Designer
