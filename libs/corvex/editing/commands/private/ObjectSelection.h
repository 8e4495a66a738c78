// SPDX-License-Identifier: MIT
#pragma once

#include <QList>

namespace Halvane::Corvex::Designer {

class DesignerObject;

//! What an edit makes of the objects that a user has selected.
class ObjectSelection
{
public:
    //! Those that are in a list and not inside others of them, each once.
    static QList<DesignerObject *> outermost(const QList<DesignerObject *> &objects);
    //! Objects of one list in the order of this list; the lists in the order of their first object.
    static QList<DesignerObject *> inListOrder(const QList<DesignerObject *> &objects);
};

} // namespace Halvane::Corvex::Designer
