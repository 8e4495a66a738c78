// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/common/Export.h"

#include <QList>
#include <QSharedPointer>
#include <QString>

namespace Halvane::Corvex::Designer {

class DesignerProperty;

//! An object, by its identifier, and the properties that depend on it.
class CORVEX_EXPORT DependentInfo
{
public:
    DependentInfo() = default;
    DependentInfo(const QString &objectId, const QList<QSharedPointer<DesignerProperty>> &properties)
        : m_objectId(objectId)
        , m_properties(properties)
    { }

    const QString &objectId() const { return m_objectId; }
    void setObjectId(const QString &objectId) { m_objectId = objectId; }
    const QList<QSharedPointer<DesignerProperty>> &properties() const { return m_properties; }
    void setProperties(const QList<QSharedPointer<DesignerProperty>> &properties)
    {
        m_properties = properties;
    }

    //! Takes the name from the identifier \a text and drops the properties whose objects have left the
    //! project.
    void updateProperties(const QString &text);

    friend bool operator==(const DependentInfo &, const DependentInfo &) = default;

private:
    QString m_objectId;
    QList<QSharedPointer<DesignerProperty>> m_properties;
};

} // namespace Halvane::Corvex::Designer
