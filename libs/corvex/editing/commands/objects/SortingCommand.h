// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/common/Export.h"
#include "corvex/editing/commands/ModelCommand.h"

namespace Halvane::Corvex::Designer {

//! A command that adds to the list of its property, sorted unless that is disabled.
class CORVEX_EXPORT SortingCommand : public ModelCommand
{
public:
    //! Whether the list is sorted when the object is added. Otherwise the object is added at the end, and the
    //! next change of the list sorts it.
    bool sortEnabled() const { return m_isSortEnabled; }
    void setSortEnabled(bool enabled) { m_isSortEnabled = enabled; }

protected:
    using ModelCommand::ModelCommand;
    bool redoOwn(QString &error) override;
    bool undoOwn(QString &error) override;

private:
    bool m_isSortEnabled = true;
};

} // namespace Halvane::Corvex::Designer
