// SPDX-License-Identifier: MIT
#include "elements/function/DataLogging.h"

#include "corvex/core/QmlText.h"
#include "corvex/core/properties/LinkProperty.h"
#include "corvex/variables/LogVariable.h"

#include "elements/Rows.h"
#include "elements/Statements.h"
#include "elements/Validators.h"

using namespace Halvane::Corvex::Designer;

namespace Halvane::Corvex::Elements {

namespace {

//! The name and the sampling settings of the log. No configuration file contains them, because the element
//! does the sampling.
QmlBindings logToQml(const DesignerProperty *property)
{
    QmlBindings bindings = linkNameToQml(property);
    const auto *link = propertyCast<LinkProperty>(property);
    if (const auto *log = link ? link->connectLinkTo<LogVariable>() : nullptr) {
        for (const QString &id : {QStringLiteral("autoStart"), QStringLiteral("interval"),
                                  QStringLiteral("maxDataPoints"), QStringLiteral("startDelay")}) {
            for (const QmlBinding &binding : log->getProperty(id)->qmlBindings()) {
                bindings.add(binding.name, binding.code); // the property with the log's name is the source
            }
        }
        bindings.add(QStringLiteral("behavior"),
                     QmlText::quoted(log->getProperty(u"behavior")->valueString()));
    }
    return bindings;
}

} // namespace

bool DataLogging::initializeProperties()
{
    static const PropertyTable table{
        projectLinkRow("variable", "Log Variable", "The log variable whose value is recorded at each sample.",
                       "LogVariable")
            .rank(1)
            .validator(&linkTargetValidator)
            .qml(&logToQml),
    };
    return FunctionElement::initializeProperties() && addProperties(table);
}

} // namespace Halvane::Corvex::Elements
