// SPDX-License-Identifier: MIT
#pragma once

#include <QList>

namespace Halvane::Corvex::Designer {

class DesignerObject;

//! Prepares the user's selection for an edit.
class ObjectSelection
{
public:
    //! The objects that are in a list and not inside others of them, without duplicates.
    static QList<DesignerObject *> outermost(const QList<DesignerObject *> &objects);
    //! Objects of one list in list order; the lists are ordered by their first object.
    static QList<DesignerObject *> inListOrder(const QList<DesignerObject *> &objects);
};

} // namespace Halvane::Corvex::Designer
