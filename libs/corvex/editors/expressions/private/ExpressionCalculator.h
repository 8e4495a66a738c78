// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/editors/expressions/private/ExpressionScope.h"

#include <QHash>
#include <QJSValue>

#include <functional>
#include <memory>

class QJSEngine;

namespace Halvane::Corvex::Preview {
class Watchdog;
}

namespace Halvane::Corvex::Designer {

//! Runs the code of expressions, with values that the caller gives, in an engine that reaches nothing else.
//! Long code and endless work are refused.
class ExpressionCalculator
{
public:
    //! One for everybody, for as long as somebody has it.
    static std::shared_ptr<ExpressionCalculator> shared();
    ~ExpressionCalculator();
    Q_DISABLE_COPY_MOVE(ExpressionCalculator)

    struct Result
    {
        QString value;   //!< in the readable form; empty if it is unknown
        QString text;    //!< the value as the device shows it in a text
        QString problem; //!< why there is no value, for the user

        //! One line with the type, such as "= 72.5 (number)".
        QString described(const QString &type) const;
    };
    //! The names in \a given have these values, all others those of the project. \a wrap may add to the code.
    Result valueOf(const ExpressionScope &scope, const GeneralDataList &terms,
                   const ExpressionPurpose &purpose, const QHash<QString, QString> &given = {},
                   const std::function<QString(const QString &)> &wrap = {});

private:
    ExpressionCalculator();
    Result run(const QString &code, const QVariantMap &variables, const QVariantMap &elements);

    std::unique_ptr<QJSEngine> m_engine;
    QJSValue m_makeViewer;
    QJSValue m_device;
    std::unique_ptr<Preview::Watchdog> m_watchdog;
};

} // namespace Halvane::Corvex::Designer
