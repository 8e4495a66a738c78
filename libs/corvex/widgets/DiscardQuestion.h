// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/common/Export.h"

#include <QString>

#include <functional>

class QDialog;

namespace Halvane::Corvex::Designer {

//! Asks before a dialog discards what the user has entered.
class CORVEX_EXPORT DiscardQuestion
{
public:
    //! Opens the question and returns at once. \a discard is called if the user agrees.
    static void open(QDialog *dialog, const QString &text, const std::function<void()> &discard);
};

} // namespace Halvane::Corvex::Designer
