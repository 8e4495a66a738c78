// SPDX-License-Identifier: MIT
#include "corvex/values/runtime/PropertyInfo.h"

#include "corvex/values/text/GroupText.h"
#include "corvex/values/text/NestedText.h"

namespace Halvane::Corvex::Designer {

using namespace Qt::StringLiterals;

PropertyInfo::PropertyInfo(const QString &propName, const QString &propValue)
    : m_propName(propName)
    , m_propValue(propValue)
{ }

PropertyInfo::PropertyInfo(const QString &text, bool *ok)
{
    PropertyInfo info;
    const auto read = [&info](bool isValue, QStringView field) {
        (isValue ? info.m_propValue : info.m_propName) = NestedText::fromField(field);
        return true;
    };
    const bool parsed =
        GroupText::readTwo(text, "propName"_L1, "propValue"_L1, GroupText::Repeated::LastCounts, read);
    if (parsed) {
        *this = info;
    }
    if (ok) {
        *ok = parsed;
    }
}

QString PropertyInfo::toString() const
{
    QString text;
    GroupText::appendEntry(text, u"propName", NestedText::toField(m_propName));
    GroupText::appendEntry(text, u"propValue", NestedText::toField(m_propValue));
    return text;
}

} // namespace Halvane::Corvex::Designer
