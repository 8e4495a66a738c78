// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/common/Export.h"
#include "corvex/editing/commands/ModelCommand.h"

#include <QStringList>

#include <memory>

namespace Halvane::Corvex::Designer {

//! A command that is ready to push, or the reason why the edit is impossible.
struct PlannedCommand
{
    std::unique_ptr<ModelCommand> command; //!< null if the edit is impossible
    QString reason;                        //!< for the user; empty if there is a command, or nothing to do
    QStringList notes;                     //!< what the user must know about the edit

    explicit operator bool() const { return command != nullptr; }
};

//! A new value for a property.
struct RequestedValue
{
    SharedProperty property;
    QString text;
};

/*! Deletes, renames, duplicates and moves objects of any kind: screens, elements, groups, filters, variables
    and images. A project can be renamed. Values of any objects change in one step.

    Each function plans one step of the history for the current state of the project and changes nothing. Push
    the command before you plan the next one. New names and values are tried on the properties, so planning
    them asks the gate of the history, as an edit does.
*/
class CORVEX_EXPORT Commands
{
public:
    //! Deletes the object and all references to it.
    static PlannedCommand deletionOf(DesignerObject *object);
    //! Deletes all objects in one step. Filters that only list deleted elements are deleted, too.
    static PlannedCommand deletionOf(const QList<DesignerObject *> &objects);
    //! Renames the object and updates all references to it.
    static PlannedCommand renameOf(DesignerObject *object, const QString &name);
    /*! Copies the objects, with everything in them, to the end of their lists, in list order. Objects inside
        others of \a objects are copied once.

        Every copy, including members of groups, gets the stem of the original's name and the first free
        number. References between copied objects refer to the copies; all other references are unchanged. An
        image gets a file of its own.
    */
    static PlannedCommand duplicationOf(const QList<DesignerObject *> &objects);
    //! Copies one object, with everything in it, under a new name.
    static PlannedCommand copyOf(DesignerObject *object, const QString &name);
    /*! Moves the objects, in list order, into a list of the same project, before its item \a index; -1 means
        the end. Items that the list sorts keep their sorted places.

        Refused if an object would be moved into itself, or if its name is in use at the new place.
    */
    static PlannedCommand moveOf(const QList<DesignerObject *> &objects, const SharedProperty &list,
                                 qsizetype index);
    //! Sets values of properties, with all consequences. Values that do not change are skipped. Refused if a
    //! property does not accept its value. A name must be changed separately.
    static PlannedCommand changeOf(const QList<RequestedValue> &values);

private:
    static PlannedCommand copies(const QList<DesignerObject *> &objects, const QString &name);
};

} // namespace Halvane::Corvex::Designer
