// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/common/Export.h"
#include "corvex/editing/commands/ModelCommand.h"

namespace Halvane::Corvex::Designer {

class VisualElement;

//! Gives a property of several elements the value that one of them has.
class CORVEX_EXPORT ChangeVisualElements : public ModelCommand
{
public:
    //! Elements without a property of the id of \a property are left out.
    ChangeVisualElements(const SharedProperty &property, const QList<VisualElement *> &elements,
                         UndoCommand *parent = nullptr);
    //! The same with a value of its own.
    ChangeVisualElements(const SharedProperty &property, const QString &value,
                         const QList<VisualElement *> &elements, UndoCommand *parent = nullptr);
};

} // namespace Halvane::Corvex::Designer
