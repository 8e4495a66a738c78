// SPDX-License-Identifier: MIT
#include "corvex/values/records/IdentifierInfo.h"

#include "corvex/values/private/ModelLookup.h"
#include "corvex/values/text/GroupText.h"

#include <array>

namespace Halvane::Corvex::Designer {

using namespace Qt::StringLiterals;

IdentifierInfo::IdentifierInfo(const QString &name, const QString &scopeType, const QString &filterType)
    : m_name(name)
{
    setCommon(scopeType, filterType);
}

const IdentifierInfo::ScopeAndClass &IdentifierInfo::common() const
{
    static const ScopeAndClass none;
    return m_common ? *m_common : none;
}

void IdentifierInfo::setCommon(const QString &scopeType, const QString &filterType)
{
    // A cache of the entries used last; it nearly always hits.
    static thread_local std::array<QExplicitlySharedDataPointer<ScopeAndClass>, 64> known;
    if (scopeType.isEmpty() && filterType.isEmpty()) {
        m_common.reset();
        return;
    }
    auto &entry = known[qHash(filterType, qHash(scopeType)) % known.size()];
    if (!entry || entry->scopeType != scopeType || entry->filterType != filterType) {
        entry = new ScopeAndClass;
        entry->scopeType = scopeType;
        entry->filterType = filterType;
    }
    m_common = entry;
}

IdentifierInfo::IdentifierInfo(const QString &text, bool *ok)
    : IdentifierInfo(fromText(text, IdentifierInfo(), ok))
{ }

IdentifierInfo IdentifierInfo::fromText(QStringView text, const IdentifierInfo &like, bool *ok)
{
    const auto shared = [](QStringView value, const QString &known) {
        return value == known ? known : value.toString();
    };
    IdentifierInfo identifier;
    QString scopeType;
    QString filterType;
    bool hasName = false;
    const bool parsed = GroupText::forEachEntry(text, [&](QStringView key, QStringView value) {
        if (key == "name"_L1) {
            identifier.m_name = value.toString();
            hasName = true;
        } else if (key == "scopeType"_L1) {
            scopeType = shared(value, like.scopeType());
        } else if (key == "filterType"_L1) {
            filterType = shared(value, like.filterType());
        }
        return true;
    });
    if (ok) {
        *ok = parsed && hasName;
    }
    if (!parsed || !hasName) {
        return {};
    }
    const bool isLike = scopeType == like.scopeType() && filterType == like.filterType();
    if (isLike) {
        identifier.m_common = like.m_common;
    } else {
        identifier.setCommon(scopeType, filterType);
    }
    return identifier;
}

QString IdentifierInfo::toString() const
{
    QString text;
    text.reserve(filterType().size() + m_name.size() + scopeType().size() + 36);
    if (!filterType().isEmpty()) {
        GroupText::appendEntry(text, u"filterType", filterType());
    }
    if (!m_name.isEmpty()) {
        GroupText::appendEntry(text, u"name", m_name);
    }
    if (!scopeType().isEmpty()) {
        GroupText::appendEntry(text, u"scopeType", scopeType());
    }
    return text;
}

QString IdentifierInfo::generateId(const QString &base, int number)
{
    return base.isEmpty() ? QString() : base + QString::number(number);
}

bool IdentifierInfo::isUnique(const DesignerObject *object) const
{
    return !object || ModelLookup::instance().siblingsNamed(*object, m_name) == 0;
}

QString IdentifierInfo::generateUniqueId(const DesignerObject *object, const QString &base, int number)
{
    QString name = generateId(base, number);
    while (object && !name.isEmpty() && ModelLookup::instance().siblingsNamed(*object, name) > 0) {
        name = generateId(base, ++number);
    }
    return name;
}

} // namespace Halvane::Corvex::Designer
