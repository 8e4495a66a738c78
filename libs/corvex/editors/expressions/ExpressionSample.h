// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/common/Export.h"
#include "corvex/core/DesignerProperty.h"

#include <QObject>

#include <functional>
#include <memory>

namespace Halvane::Corvex::Designer {

class ExpressionCalculator;

//! What an expression gives with the values of the variables in the project, to draw it.
class CORVEX_EXPORT ExpressionSample : public QObject
{
    Q_OBJECT

public:
    //! \a expression is a property with terms, of an object in a project. Create another sample when its
    //! value changes.
    explicit ExpressionSample(const SharedProperty &expression);
    ~ExpressionSample() override;

    //! Calculates the value; a null text if that is not possible. \a wrap can add to the code of the
    //! expression, for example a format.
    QString value(const std::function<QString(const QString &code)> &wrap = {}) const;

signals:
    //! One of the variables has another value.
    void changed();

private:
    SharedProperty m_expression;
    std::shared_ptr<ExpressionCalculator> m_calculator;
};

} // namespace Halvane::Corvex::Designer
