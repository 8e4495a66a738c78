// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/common/Export.h"

#include <QLatin1StringView>
#include <QList>
#include <QString>

#include <limits>

namespace Halvane::Corvex::Designer {

//! A function that expressions can call, as users know it.
struct CORVEX_EXPORT ExpressionFunction
{
    static constexpr qsizetype anyNumber = std::numeric_limits<qsizetype>::max();

    QLatin1StringView name;
    QLatin1StringView arguments; //!< names and types, as in "log: log, index: number"
    QLatin1StringView result;    //!< its type
    qsizetype fewest;            //!< arguments
    qsizetype most;
    const char16_t *sentence; //!< what it returns; not translated
    const char16_t *example;  //!< a readable expression
    const char16_t *value;    //!< of the example; empty if it depends on the device

    bool takesLog() const { return arguments.startsWith(QLatin1StringView("log:")); }
    //! "max(x: number, ...): number"
    QString signature() const;
    QString description() const; //!< translated
    //! The kinds of expressions that can call it: "number expressions (such as xBinding)". Translated.
    QString usableIn() const;

    //! All functions, those of numbers first.
    static const QList<ExpressionFunction> &all();
    //! Null if there is no such function.
    static const ExpressionFunction *find(const QString &name);
};

} // namespace Halvane::Corvex::Designer
