// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/common/Export.h"

#include <QList>
#include <QString>
#include <QStringList>

namespace Halvane::Corvex::Designer {

class DesignerObject;

//! A reference to an object by its identifier: the scope in which to look and the classes that will do.
//!
//! findLinks() is defined where the model is known, in the room of the project.
class CORVEX_EXPORT ObjectLinkInfo
{
public:
    ObjectLinkInfo() = default;
    ObjectLinkInfo(const QString &objectId, const QString &scopeType, const QString &filterType);
    ObjectLinkInfo(const QString &objectId, const QString &scopeType, const QStringList &filterType);
    //! "filterType: Text | Image; objectId: label1; scopeType: Screen;", any of the three absent.
    explicit ObjectLinkInfo(const QString &text, bool *ok = nullptr);

    const QString &scopeType() const { return m_scopeType; }
    void setScopeType(const QString &scopeType) { m_scopeType = scopeType; }
    const QStringList &filterType() const { return m_filterType; }
    //! The only class that will do; none of an empty name, which leaves the filter empty.
    void setFilterType(const QString &className);
    void setFilterType(const QStringList &classNames) { m_filterType = classNames; }
    const QString &objectId() const { return m_objectId; }
    void setObjectId(const QString &objectId) { m_objectId = objectId; }

    //! Filter and identifier always, the scope when there is one.
    QString toString() const;
    //! The identifier is not empty.
    bool isValid() const { return !m_objectId.isEmpty(); }

    //! The objects that the link can mean when it is held by \a from: those of its scope and classes that
    //! have its identifier or, with \a anyObject, all of its scope and classes.
    QList<DesignerObject *> findLinks(const DesignerObject *from, bool anyObject) const;

    friend bool operator==(const ObjectLinkInfo &, const ObjectLinkInfo &) = default;

private:
    QString m_scopeType;
    QStringList m_filterType;
    QString m_objectId;
};

} // namespace Halvane::Corvex::Designer
