// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/common/Export.h"

#include <QtGlobal>

#include <memory>

namespace Halvane::Corvex::Designer {

class UndoStack;

//! Keeps the history that would end when a project is saved.
class CORVEX_EXPORT HistoryKeeper
{
    Q_DISABLE_COPY_MOVE(HistoryKeeper)

public:
    virtual ~HistoryKeeper() = default;

    //! The project is about to be written: the files that only an undo needs are to be kept elsewhere.
    virtual void aboutToSave() = 0;
    //! The project has been saved. The empty history that begins, of which index 0 is saved.
    virtual std::shared_ptr<UndoStack> historyAfterSave() = 0;
    //! What could be undone is forgotten: the project was loaded, or made at another place.
    virtual void historyForgotten() = 0;

protected:
    HistoryKeeper() = default;
};

} // namespace Halvane::Corvex::Designer
