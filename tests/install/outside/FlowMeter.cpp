// SPDX-License-Identifier: MIT
#include "corvex/core/PropertyTable.h"
#include "corvex/core/TableFactory.h"
#include "corvex/core/properties/BasicProperties.h"
#include "corvex/core/properties/CollectionProperties.h"
#include "corvex/core/properties/ExpressionProperties.h"
#include "corvex/core/properties/LinkProperty.h"
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
            row<IntegerProperty>("litres", "Litres per Minute", 12)
                .description("The flow at which the lamp lights, in litres per minute."),
            row<LinkProperty>("visualElement", "Lamp",
                              ObjectLinkInfo(QString(), u"Screen"_s, u"VisualElement"_s))
                .flags(OrdinaryFlags.toInt())
                .parameter("scopeType", u"Screen"_s)
                .parameter("filterType", u"VisualElement"_s),
            row<UpdateObjectListProperty>("alarmState", "Alarm State", UpdateObjectList())
                .flags(StoredFlag | EditableFlag)
                .statesOf("visualElement"),
            row<ListValueProperty>("sources", "Sources", ListInfo()).references(Form::Names),
        };
        return FunctionElement::initializeProperties() && addProperties(table);
    }
};

//! Screens have a list of these elements, and a preview shows them as buttons.
constexpr ClassRow classes[] = {{.className = "FlowMeter",
                                 .make = &makeObject<FlowMeter>,
                                 .baseName = "flowMeter",
                                 .displayName = "Flow Meter",
                                 .screenList = "flowMeters",
                                 .preview = "Button",
                                 .description = "Lights a lamp at a certain flow."}};

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
