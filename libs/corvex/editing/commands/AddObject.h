// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/editing/commands/ModelCommand.h"

#include <QPointer>

namespace Halvane::Corvex::Designer {

//! Adds an object to a list.
class AddObject : public ModelCommand
{
public:
    AddObject(const SharedProperty &list, DesignerObject *object, bool selected,
              UndoCommand *parent = nullptr);
    //! A new object of that class; the name of its class and the first free number when \a name is empty.
    AddObject(const SharedProperty &list, const QString &className, const QString &name, bool selected,
              UndoCommand *parent = nullptr);

    DesignerObject *object() const { return m_object; }
    //! Whether a list whose items are out of order is sorted when the object has been added. It is unless
    //! switched off.
    bool sortEnabled() const { return m_isSortEnabled; }
    void setSortEnabled(bool enabled) { m_isSortEnabled = enabled; }

protected:
    bool redoOwn(QString &error) override;

private:
    void setupCommand(const SharedProperty &list);
    static DesignerObject *make(const SharedProperty &list, const QString &className, const QString &name);

    QPointer<DesignerObject> m_object;
    bool m_isSortEnabled = true;
};

} // namespace Halvane::Corvex::Designer
