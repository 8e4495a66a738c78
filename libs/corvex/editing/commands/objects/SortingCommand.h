// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/common/Export.h"
#include "corvex/editing/commands/ModelCommand.h"

namespace Halvane::Corvex::Designer {

//! A command that adds to the list of its property, in the order of the list unless that is switched off.
class CORVEX_EXPORT SortingCommand : public ModelCommand
{
public:
    //! Whether the list is sorted when the object has been added. Otherwise the object comes last, and the
    //! next change of the list sorts it.
    bool sortEnabled() const { return m_isSortEnabled; }
    void setSortEnabled(bool enabled) { m_isSortEnabled = enabled; }

protected:
    using ModelCommand::ModelCommand;
    bool redoOwn(QString &error) override;
    bool undoOwn() override;

private:
    bool m_isSortEnabled = true;
};

} // namespace Halvane::Corvex::Designer
