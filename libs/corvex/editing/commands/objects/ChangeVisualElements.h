// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/common/Export.h"
#include "corvex/editing/commands/ModelCommand.h"

namespace Halvane::Corvex::Designer {

class VisualElement;

//! Copies the value of a property from one element to others.
class CORVEX_EXPORT ChangeVisualElements : public ModelCommand
{
public:
    //! Elements without a property with the id of \a property are skipped.
    ChangeVisualElements(const SharedProperty &property, const QList<VisualElement *> &elements,
                         UndoCommand *parent = nullptr);
    //! The same with a given value.
    ChangeVisualElements(const SharedProperty &property, const QString &value,
                         const QList<VisualElement *> &elements, UndoCommand *parent = nullptr);
};

} // namespace Halvane::Corvex::Designer
