// SPDX-License-Identifier: MIT
#pragma once

#include <QLatin1StringView>
#include <QString>

namespace Halvane::Corvex::Designer {

class DesignerObject;
class ModelCommand;
class UndoCommand;

/*! A kind of object that users add, rename and delete, with the commands that do it. An operation is null
    where the kind has none. */
struct EditedKind
{
    QLatin1StringView className;
    ModelCommand *(*deletion)(DesignerObject *object, UndoCommand *parent);
    ModelCommand *(*renaming)(DesignerObject *object, const QString &name);
    //! Adds \a copy, which has its name already, to the list of \a original.
    ModelCommand *(*addition)(DesignerObject *copy, DesignerObject *original, UndoCommand *parent);

    //! Null for an object of no such kind.
    static const EditedKind *of(const DesignerObject *object);
};

} // namespace Halvane::Corvex::Designer
