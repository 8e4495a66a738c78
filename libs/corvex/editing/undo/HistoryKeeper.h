// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/common/Export.h"

#include <QtGlobal>

#include <memory>

namespace Halvane::Corvex::Designer {

class UndoStack;

//! Keeps the history that would otherwise end when a project is saved.
class CORVEX_EXPORT HistoryKeeper
{
    Q_DISABLE_COPY_MOVE(HistoryKeeper)

public:
    virtual ~HistoryKeeper() = default;

    //! Called before the project is written. Moves the files that only an undo needs to a safe place.
    virtual void aboutToSave() = 0;
    //! Called after the project was saved. Returns the new, empty history, in which index 0 means saved.
    virtual std::shared_ptr<UndoStack> historyAfterSave() = 0;
    //! Called when the history is discarded because the project was loaded, or created in another place.
    virtual void historyForgotten() = 0;

protected:
    HistoryKeeper() = default;
};

} // namespace Halvane::Corvex::Designer
