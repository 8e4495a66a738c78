// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/common/Export.h"
#include "corvex/values/expressions/GeneralDataList.h"

#include <optional>

namespace Halvane::Corvex::Designer {

//! A call of a function in an expression, with what the function takes.
struct CORVEX_EXPORT FunctionCall
{
    QString name;
    qsizetype fewest = 0; //!< arguments that the function takes
    qsizetype most = 0;
    bool takesLog = false; //!< as its first argument
    qsizetype argumentCount = 0;
    std::optional<GeneralDataInfo> onlyFirst = {}; //!< the first argument, when that is a single term

    bool hasGoodCount() const { return argumentCount >= fewest && argumentCount <= most; }
    //! "2 arguments", "1 to 3 arguments". Translated.
    QString wanted() const;

    //! The calls of an expression that could be translated, each before those within it.
    static QList<FunctionCall> of(const GeneralDataList &expression);
};

} // namespace Halvane::Corvex::Designer
