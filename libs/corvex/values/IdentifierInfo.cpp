// SPDX-License-Identifier: MIT
#include "corvex/values/IdentifierInfo.h"

#include "corvex/values/GroupText.h"

namespace Halvane::Corvex::Designer {

using namespace Qt::StringLiterals;

IdentifierInfo::IdentifierInfo(const QString &name, const QString &scopeType, const QString &filterType)
    : m_scopeType(scopeType)
    , m_name(name)
    , m_filterType(filterType)
{ }

IdentifierInfo::IdentifierInfo(const QString &text, bool *ok)
    : IdentifierInfo(fromText(text, IdentifierInfo(), ok))
{ }

IdentifierInfo IdentifierInfo::fromText(QStringView text, const IdentifierInfo &like, bool *ok)
{
    const auto shared = [](QStringView value, const QString &known) {
        return value == known ? known : value.toString();
    };
    IdentifierInfo identifier;
    bool hasName = false;
    const bool parsed = GroupText::forEachEntry(text, [&](QStringView key, QStringView value) {
        if (key == "name"_L1) {
            identifier.m_name = value.toString();
            hasName = true;
        } else if (key == "scopeType"_L1) {
            identifier.m_scopeType = shared(value, like.m_scopeType);
        } else if (key == "filterType"_L1) {
            identifier.m_filterType = shared(value, like.m_filterType);
        }
        return true;
    });
    if (ok)
        *ok = parsed && hasName;
    return parsed && hasName ? identifier : IdentifierInfo();
}

QString IdentifierInfo::toString() const
{
    QString text;
    text.reserve(m_filterType.size() + m_name.size() + m_scopeType.size() + 36);
    if (!m_filterType.isEmpty())
        GroupText::appendEntry(text, u"filterType", m_filterType);
    if (!m_name.isEmpty())
        GroupText::appendEntry(text, u"name", m_name);
    if (!m_scopeType.isEmpty())
        GroupText::appendEntry(text, u"scopeType", m_scopeType);
    return text;
}

QString IdentifierInfo::generateId(const QString &base, int number)
{
    return base.isEmpty() ? QString() : base + QString::number(number);
}

} // namespace Halvane::Corvex::Designer
