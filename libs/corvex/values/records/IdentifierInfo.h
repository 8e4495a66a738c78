// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/common/Export.h"

#include <QSharedData>
#include <QString>
#include <QStringView>

namespace Halvane::Corvex::Designer {

class DesignerObject;

//! The name of an object, with the scope in which it is known ("Project", "Screen") and its class. The name
//! is stored as it is given; whether it is a good name is for the validators of the model to say.
//!
//! isUnique() and generateUniqueId() are defined where the model is known, in the room of the project.
class CORVEX_EXPORT IdentifierInfo
{
public:
    IdentifierInfo() = default;
    IdentifierInfo(const QString &name, const QString &scopeType, const QString &filterType);
    //! "filterType: NumberVariable; name: speed; scopeType: Project;". Asks for the name alone.
    explicit IdentifierInfo(const QString &text, bool *ok = nullptr);
    //! The same; a scope and a class that are those of \a like share its texts.
    static IdentifierInfo fromText(QStringView text, const IdentifierInfo &like, bool *ok);

    const QString &scopeType() const { return common().scopeType; }
    void setScopeType(const QString &scopeType) { setCommon(scopeType, filterType()); }
    const QString &name() const { return m_name; }
    void setName(const QString &name) { m_name = name; }
    const QString &filterType() const { return common().filterType; }
    void setFilterType(const QString &filterType) { setCommon(scopeType(), filterType); }

    //! The fields that are not empty; the text of an identifier without a name is not one that can be read.
    QString toString() const;
    //! The name is not empty.
    bool isValid() const { return !m_name.isEmpty(); }

    //! Whether no sibling of \a object has this name: variables among variables, screens among screens,
    //! images among images, elements among all elements of their screen.
    bool isUnique(const DesignerObject *object) const;

    //! "Label3" of "Label" and 3; nothing of an empty base.
    static QString generateId(const QString &base, int number);
    //! The first of generateId(base, number), generateId(base, number + 1), ... that no sibling of \a object
    //! has.
    static QString generateUniqueId(const DesignerObject *object, const QString &base, int number = 1);

    friend bool operator==(const IdentifierInfo &left, const IdentifierInfo &right)
    {
        return left.m_name == right.m_name
               && (left.m_common == right.m_common
                   || (left.scopeType() == right.scopeType() && left.filterType() == right.filterType()));
    }

private:
    //! What the identifiers of a class have in common. A project has thousands of each.
    struct ScopeAndClass : public QSharedData
    {
        QString scopeType;
        QString filterType;
    };

    const ScopeAndClass &common() const;
    void setCommon(const QString &scopeType, const QString &filterType);

    QString m_name;
    QExplicitlySharedDataPointer<ScopeAndClass>
        m_common; //!< never changed; null for one without scope and class
};

} // namespace Halvane::Corvex::Designer
