// SPDX-License-Identifier: MIT
#include "corvex/core/PropertyTable.h"
#include "corvex/core/TableFactory.h"
#include "corvex/core/properties/BasicProperties.h"
#include "corvex/project/elements/FunctionElement.h"

#include <QObject>
#include <QtPlugin>

using namespace Qt::StringLiterals;
using namespace Halvane::Corvex::Designer;

//! An element class that the library does not know.
class FlowMeter : public FunctionElement
{
    Q_OBJECT
    CORVEX_CLASS_NAMES(FlowMeter, FunctionElement)

protected:
    using FunctionElement::FunctionElement;

    bool initializeProperties() override
    {
        static const PropertyTable table{
            row<IntegerProperty>("litres", "Litres per Minute", 12).flags(15),
        };
        return FunctionElement::initializeProperties() && addProperties(table);
    }
};

constexpr ClassRow classes[] = {{"FlowMeter", &makeObject<FlowMeter>, "flowMeter", "Flow Meter"}};

class FlowFactory
    : public QObject
    , public TableFactory
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID "halvane.corvex.designer.IDesignerFactory/1.0")
    Q_INTERFACES(Halvane::Corvex::Designer::IDesignerFactory)

public:
    FlowFactory()
        : TableFactory(classes)
    { }
};

#include "FlowMeter.moc"
