// SPDX-License-Identifier: MIT
#include "corvex/values/records/ObjectLinkInfo.h"

#include "corvex/values/private/ModelLookup.h"
#include "corvex/values/text/GroupText.h"

#include <QStringTokenizer>

namespace Halvane::Corvex::Designer {

using namespace Qt::StringLiterals;

namespace {

QStringList filterOf(const QString &className)
{
    return className.isEmpty() ? QStringList() : QStringList(className);
}

QStringList readFilter(QStringView text)
{
    QStringList classNames;
    for (QStringView part : qTokenize(text, u'|')) {
        part = part.trimmed();
        if (!part.isEmpty()) {
            classNames.append(part.toString());
        }
    }
    return classNames;
}

} // namespace

ObjectLinkInfo::ObjectLinkInfo(const QString &objectId, const QString &scopeType, const QString &filterType)
    : ObjectLinkInfo(objectId, scopeType, filterOf(filterType))
{ }

ObjectLinkInfo::ObjectLinkInfo(const QString &objectId, const QString &scopeType,
                               const QStringList &filterType)
    : m_scopeType(scopeType)
    , m_filterType(filterType)
    , m_objectId(objectId)
{ }

ObjectLinkInfo::ObjectLinkInfo(const QString &text, bool *ok)
{
    ObjectLinkInfo link;
    bool anyEntry = false;
    const bool parsed = GroupText::forEachEntry(text, [&](QStringView key, QStringView value) {
        anyEntry = true;
        if (key == "objectId"_L1) {
            link.m_objectId = value.toString();
        } else if (key == "filterType"_L1) {
            link.m_filterType = readFilter(value);
        } else if (key == "scopeType"_L1) {
            link.m_scopeType = value.toString();
        }
        return true;
    });
    if (parsed && anyEntry) {
        *this = link;
    }
    if (ok) {
        *ok = parsed && anyEntry;
    }
}

void ObjectLinkInfo::setFilterType(const QString &className)
{
    m_filterType = filterOf(className);
}

QString ObjectLinkInfo::toString() const
{
    QString text;
    text.reserve(m_objectId.size() + m_scopeType.size() + 24 * m_filterType.size() + 40);
    text.append("filterType: "_L1);
    for (qsizetype i = 0; i < m_filterType.size(); ++i) {
        text.append(i == 0 ? ""_L1 : " | "_L1).append(m_filterType[i]);
    }
    text.append(u';');
    GroupText::appendEntry(text, u"objectId", m_objectId);
    if (!m_scopeType.isEmpty()) {
        GroupText::appendEntry(text, u"scopeType", m_scopeType);
    }
    return text;
}

QList<DesignerObject *> ObjectLinkInfo::findLinks(const DesignerObject *from, bool anyObject) const
{
    return from ? ModelLookup::instance().targets(*this, *from, anyObject) : QList<DesignerObject *>();
}

} // namespace Halvane::Corvex::Designer
