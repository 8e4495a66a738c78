// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/common/Export.h"
#include "corvex/values/expressions/GeneralDataInfo.h"

#include <QStringList>

namespace Halvane::Corvex::Designer {

//! In which kinds of expressions terms can be used, in the users' words.
class CORVEX_EXPORT ExpressionKinds
{
public:
    //! "number expressions (such as xBinding)". Translated.
    static QStringList of(const GeneralDataInfo &term);
};

} // namespace Halvane::Corvex::Designer
