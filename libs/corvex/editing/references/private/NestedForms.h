// SPDX-License-Identifier: MIT
#pragma once

#include <QSet>
#include <QString>

namespace Halvane::Corvex::Designer {

/*! Which properties of elements are links or expressions, by the id alone.

    A state or an action names an element and its new values in text. The element may be deleted or on another
    screen, so its class is not known. An id counts if any class of elements has such a property; texts of
    other properties with the same id do not read as a link or as an expression.
*/
class NestedForms
{
public:
    //! For the classes that there are now. Valid in this thread until its next call.
    static const NestedForms &current();

    bool isLink(const QString &id) const { return m_links.contains(id); }
    bool isExpression(const QString &id) const { return m_expressions.contains(id); }

private:
    //! Creates an element of each class.
    NestedForms();

    QSet<QString> m_links;
    QSet<QString> m_expressions;
};

} // namespace Halvane::Corvex::Designer
