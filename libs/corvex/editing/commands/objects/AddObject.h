// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/common/Export.h"
#include "corvex/editing/commands/objects/SortingCommand.h"

#include <QPointer>

namespace Halvane::Corvex::Designer {

//! Adds an object to a list.
class CORVEX_EXPORT AddObject : public SortingCommand
{
public:
    AddObject(const SharedProperty &list, DesignerObject *object, bool selected,
              UndoCommand *parent = nullptr);
    //! Adds a new object of that class. If \a name is empty, it gets the name of its class and the first free
    //! number.
    AddObject(const SharedProperty &list, const QString &className, const QString &name, bool selected,
              UndoCommand *parent = nullptr);

    DesignerObject *object() const { return m_object; }

private:
    void setupCommand(const SharedProperty &list);
    static DesignerObject *make(const SharedProperty &list, const QString &className, const QString &name);

    QPointer<DesignerObject> m_object;
};

} // namespace Halvane::Corvex::Designer
