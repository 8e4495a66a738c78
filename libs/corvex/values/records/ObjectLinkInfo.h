// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/common/Export.h"

#include <QList>
#include <QString>
#include <QStringList>

namespace Halvane::Corvex::Designer {

class DesignerObject;

//! A reference to an object by its identifier, with the scope to search and the accepted classes.
class CORVEX_EXPORT ObjectLinkInfo
{
public:
    ObjectLinkInfo() = default;
    ObjectLinkInfo(const QString &objectId, const QString &scopeType, const QString &filterType);
    ObjectLinkInfo(const QString &objectId, const QString &scopeType, const QStringList &filterType);
    //! "filterType: Text | Image; objectId: label1; scopeType: Screen;". Each of the three may be absent.
    explicit ObjectLinkInfo(const QString &text, bool *ok = nullptr);

    const QString &scopeType() const { return m_scopeType; }
    void setScopeType(const QString &scopeType) { m_scopeType = scopeType; }
    const QStringList &filterType() const { return m_filterType; }
    //! Accepts only this class. An empty name clears the filter.
    void setFilterType(const QString &className);
    void setFilterType(const QStringList &classNames) { m_filterType = classNames; }
    const QString &objectId() const { return m_objectId; }
    void setObjectId(const QString &objectId) { m_objectId = objectId; }

    //! Always contains the filter and the identifier, and the scope if there is one.
    QString toString() const;
    //! The identifier is not empty.
    bool isValid() const { return !m_objectId.isEmpty(); }

    //! The objects that the link can mean if \a from holds it: those of its scope and classes with its
    //! identifier or, with \a anyObject, all of its scope and classes.
    QList<DesignerObject *> findLinks(const DesignerObject *from, bool anyObject) const;

    friend bool operator==(const ObjectLinkInfo &, const ObjectLinkInfo &) = default;

private:
    QString m_scopeType;
    QStringList m_filterType;
    QString m_objectId;
};

} // namespace Halvane::Corvex::Designer
