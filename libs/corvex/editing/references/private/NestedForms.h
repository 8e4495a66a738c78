// SPDX-License-Identifier: MIT
#pragma once

#include <QSet>
#include <QString>

namespace Halvane::Corvex::Designer {

/*! Which properties of elements are links or expressions, by id only.

    A state or an action refers to an element and its new values as text. The element may have been deleted or
    be on another screen, so its class is unknown. An id counts if any class of elements has such a property;
    texts of other properties with the same id cannot be read as a link or an expression.
*/
class NestedForms
{
public:
    //! For all present classes. Valid in this thread until the next call.
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
