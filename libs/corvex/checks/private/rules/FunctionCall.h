// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/common/Export.h"
#include "corvex/values/expressions/GeneralDataList.h"

#include <optional>

namespace Halvane::Corvex::Designer {

//! A function call in an expression, with the arguments that the function accepts.
struct CORVEX_EXPORT FunctionCall
{
    QString name;
    qsizetype fewest = 0; //!< the minimum number of arguments
    qsizetype most = 0;
    bool takesLog = false; //!< as its first argument
    qsizetype argumentCount = 0;
    std::optional<GeneralDataInfo> onlyFirst = {}; //!< the first argument, if it is a single term

    bool hasGoodCount() const { return argumentCount >= fewest && argumentCount <= most; }
    //! "2 arguments", "1 to 3 arguments". Translated.
    QString wanted() const;

    //! The calls of a translatable expression, outer calls before inner ones.
    static QList<FunctionCall> of(const GeneralDataList &expression);
};

} // namespace Halvane::Corvex::Designer
