// SPDX-License-Identifier: MIT
#pragma once

#include <QLatin1StringView>
#include <QString>

namespace Halvane::Corvex::Designer {

class DesignerObject;
class ModelCommand;
class UndoCommand;

//! A kind of object that users add, rename and delete, with the commands for it. A missing operation is null.
struct EditedKind
{
    QLatin1StringView className;
    ModelCommand *(*deletion)(DesignerObject *object, UndoCommand *parent);
    ModelCommand *(*renaming)(DesignerObject *object, const QString &name);
    //! Adds \a copy, which already has its name, to the list of \a original.
    ModelCommand *(*addition)(DesignerObject *copy, DesignerObject *original, UndoCommand *parent);

    //! Null if the object is of another kind.
    static const EditedKind *of(const DesignerObject *object);
};

} // namespace Halvane::Corvex::Designer
