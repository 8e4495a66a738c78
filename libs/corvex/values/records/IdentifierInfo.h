// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/common/Export.h"

#include <QSharedData>
#include <QString>
#include <QStringView>

namespace Halvane::Corvex::Designer {

class DesignerObject;

//! The name of an object, its class, and the scope in which the name is known ("Project", "Screen"). Any name
//! can be stored; the validators of the model check it.
class CORVEX_EXPORT IdentifierInfo
{
public:
    IdentifierInfo() = default;
    IdentifierInfo(const QString &name, const QString &scopeType, const QString &filterType);
    //! "filterType: NumberVariable; name: speed; scopeType: Project;". Only the name is required.
    explicit IdentifierInfo(const QString &text, bool *ok = nullptr);
    //! The same. Shares the texts of the scope and the class with \a like if they are equal.
    static IdentifierInfo fromText(QStringView text, const IdentifierInfo &like, bool *ok);

    const QString &scopeType() const { return common().scopeType; }
    void setScopeType(const QString &scopeType) { setCommon(scopeType, filterType()); }
    const QString &name() const { return m_name; }
    void setName(const QString &name) { m_name = name; }
    const QString &filterType() const { return common().filterType; }
    void setFilterType(const QString &filterType) { setCommon(scopeType(), filterType); }

    //! All fields that are not empty. The text of an identifier without a name cannot be read back.
    QString toString() const;
    //! The name is not empty.
    bool isValid() const { return !m_name.isEmpty(); }

    //! Whether no sibling of \a object has this name. The siblings of a variable are all variables, those of
    //! a screen all screens, those of an image all images, and those of an element all elements of its
    //! screen.
    bool isUnique(const DesignerObject *object) const;

    //! "Label3" for "Label" and 3; empty for an empty base.
    static QString generateId(const QString &base, int number);
    //! The first of generateId(base, number), generateId(base, number + 1), ... that is free among the
    //! siblings of \a object.
    static QString generateUniqueId(const DesignerObject *object, const QString &base, int number = 1);

    friend bool operator==(const IdentifierInfo &left, const IdentifierInfo &right)
    {
        return left.m_name == right.m_name
               && (left.m_common == right.m_common
                   || (left.scopeType() == right.scopeType() && left.filterType() == right.filterType()));
    }

private:
    //! Shared between identifiers of the same class, of which a project has thousands.
    struct ScopeAndClass : public QSharedData
    {
        QString scopeType;
        QString filterType;
    };

    const ScopeAndClass &common() const;
    void setCommon(const QString &scopeType, const QString &filterType);

    QString m_name;
    QExplicitlySharedDataPointer<ScopeAndClass> m_common; //!< immutable; null without scope and class
};

} // namespace Halvane::Corvex::Designer
