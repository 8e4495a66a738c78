// SPDX-License-Identifier: MIT
#include "corvex/core/IDesignerFactory.h"
#include "corvex/core/PropertyTable.h"
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

public:
    explicit FlowMeter(QObject *parent)
        : FunctionElement(parent)
    { }

protected:
    bool initializeProperties() override
    {
        static const PropertyTable table{
            row<IntegerProperty>("litres", "Litres per Minute", 12).flags(15),
        };
        return FunctionElement::initializeProperties() && addProperties(table);
    }
};

class FlowFactory
    : public QObject
    , public IDesignerFactory
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID "halvane.corvex.designer.IDesignerFactory/1.0")
    Q_INTERFACES(Halvane::Corvex::Designer::IDesignerFactory)

public:
    DesignerObject *createObject(const QString &, QObject *parent) override { return new FlowMeter(parent); }
    GraphicsItem *createGraphicsItem(const QString &, DesignerObject *) override { return nullptr; }
    PropertyEditor *createEditor(const QString &, QWidget *) override { return nullptr; }
    Template *createTemplate(const QString &, QObject *) override { return nullptr; }
    Wizard *createWizard(const QString &) override { return nullptr; }

    QStringList objectNames() const override { return {u"FlowMeter"_s}; }
    QMap<QString, QString> classBaseNames() const override { return {{u"FlowMeter"_s, u"flowMeter"_s}}; }
    QMap<QString, QString> classDisplayNames() const override { return {{u"FlowMeter"_s, u"Flow Meter"_s}}; }
    QStringList creatableNames() const override { return objectNames(); }
    QStringList graphicsItemNames() const override { return {}; }
    QStringList editorNames() const override { return {}; }
    QStringList templateNames() const override { return {}; }
    QStringList wizardNames() const override { return {}; }
};

#include "FlowMeter.moc"
