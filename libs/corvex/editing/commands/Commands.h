// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/common/Export.h"
#include "corvex/editing/commands/ModelCommand.h"

#include <QStringList>

#include <memory>

namespace Halvane::Corvex::Designer {

//! A command that is ready to push, or the reason why the edit cannot be made.
struct PlannedCommand
{
    std::unique_ptr<ModelCommand> command; //!< null when the edit cannot be made
    QString reason;                        //!< for the user; empty when there is a command, or nothing to do
    QStringList notes;                     //!< what the user has to know about the edit

    explicit operator bool() const { return command != nullptr; }
};

//! A value that a property is to have.
struct RequestedValue
{
    SharedProperty property;
    QString text;
};

/*! Deletes, renames, duplicates and moves objects of any kind: screens, elements, groups, filters, variables
    and images. A project can be renamed. Values of any objects change in one step.

    Each function plans one step of the history for the project as it is now and changes nothing. Push the
    command before you plan the next one. */
class CORVEX_EXPORT Commands
{
public:
    //! Deletes the object and all references to it.
    static PlannedCommand deletionOf(DesignerObject *object);
    //! Deletes all of them in one step. Filters that list nothing but deleted elements are deleted, too.
    static PlannedCommand deletionOf(const QList<DesignerObject *> &objects);
    //! References to the object get the new name.
    static PlannedCommand renameOf(DesignerObject *object, const QString &name);
    /*! Copies the objects, with all that is in them, to the end of the lists that hold them, in the order of
        these lists. Objects inside others of \a objects are copied once.

        Every copy gets the stem of the original's name and the first free number; members of groups, too.
        References of the copies to objects that are copied lead to their copies; all others stay as they are.
        An image gets a file of its own. */
    static PlannedCommand duplicationOf(const QList<DesignerObject *> &objects);
    /*! Moves the objects, in the order of their lists, into a list of the same project, before its item
        \a index; -1 is the end. Items that the list sorts by itself stay where they are in it.

        Refused if an object would get inside itself, or if something at the new place has its name. */
    static PlannedCommand moveOf(const QList<DesignerObject *> &objects, const SharedProperty &list,
                                 qsizetype index);
    /*! Gives properties other values, with all that follows from it. Values that the properties have are left
        out. Refused if a property does not take its value. A name changes only by itself. */
    static PlannedCommand changeOf(const QList<RequestedValue> &values);
};

} // namespace Halvane::Corvex::Designer
