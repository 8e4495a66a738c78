// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/core/DesignerFactory.h"
#include "corvex/core/DesignerObject.h"
#include "corvex/core/PropertyTable.h"
#include "corvex/core/TableFactory.h"
#include "corvex/core/properties/ObjectListProperty.h"
#include "corvex/core/properties/ObjectProperty.h"
#include "corvex/core/properties/TypedProperty.h"

#include <QCoreApplication>

namespace Halvane::Corvex::Designer::Test {

//! A number that is valid from 0 to 100.
class PercentValue : public TypedProperty<int>
{
    CORVEX_CLASS_NAMES(PercentValue, DesignerProperty)

public:
    PercentValue(DesignerObject *parent, const QString &id, const QString &name, const int &value)
        : TypedProperty(parent, id, name, value)
    {
        setFlags(OrdinaryFlags);
    }

    bool validateValue(QString &error) const override
    {
        error = QStringLiteral("Out of range.");
        return value() >= 0 && value() <= 100;
    }

protected:
    using TypedProperty::TypedProperty;
};

class TextValue : public TypedProperty<QString>
{
    CORVEX_CLASS_NAMES(TextValue, DesignerProperty)

public:
    TextValue(DesignerObject *parent, const QString &id, const QString &name, const QString &value)
        : TypedProperty(parent, id, name, value)
    {
        setFlags(OrdinaryFlags);
    }

protected:
    using TypedProperty::TypedProperty;
};

//! An object with a property of every kind that records the calls of the protocol in order. Hooks veto the
//! changes named in `veto`.
class Node : public DesignerObject
{
    Q_OBJECT
    CORVEX_CLASS_NAMES(Node, DesignerObject)

public:
    explicit Node(QObject *parent = nullptr)
        : DesignerObject(parent)
    {
        connect(this, &DesignerObject::propertyValueChanged, this,
                [this](const SharedProperty &property, const QString &previous) {
                    log.append(QStringLiteral("changed %1 from %2").arg(property->id(), previous));
                });
        connect(this, &DesignerObject::propertyListItemAdded, this,
                [this](const SharedProperty &, DesignerObject *item) {
                    log.append(QStringLiteral("added %1").arg(item->getIdName()));
                });
        connect(this, &DesignerObject::propertyListItemRemoved, this,
                [this](const SharedProperty &, DesignerObject *item) {
                    log.append(QStringLiteral("removed %1").arg(item->getIdName()));
                });
        connect(this, &DesignerObject::idNameChanged, this, [this](const QString &from, const QString &to) {
            log.append(QStringLiteral("renamed %1 to %2").arg(from, to));
        });
        connect(this, &DesignerObject::validationError, this,
                [this] { log.append(QStringLiteral("invalid")); });
        connect(this, &DesignerObject::resetValidationError, this,
                [this] { log.append(QStringLiteral("valid")); });
    }

    static Node *create(const QString &name)
    {
        auto *node = new Node;
        node->initialize();
        node->setIdName(name);
        node->log.clear();
        return node;
    }

    QString baseName() const override { return QStringLiteral("node"); }
    SharedProperty property(const char *id) const { return getProperty(QString::fromLatin1(id)); }
    bool set(const char *id, const QString &value) { return changePropertyValue(property(id), value); }
    QString value(const char *id) const { return property(id)->valueString(); }

    QStringList log;
    QString veto;

protected:
    ObjectView *createGraphicsItem() override { return nullptr; }

    bool initializeProperties() override
    {
        static const PropertyTable table{
            row<PercentValue>("percent", "Percent", 50).rank(1),
            row<PercentValue>("loose", "Loose", 50).rank(2).allowInvalid(),
            row<TextValue>("text", "Text", QStringLiteral("abc")),
            row<TextValue>("note", "Note", QStringLiteral("none")),
            row<TextValue>("secret", "Secret", QString()).flags(RuntimeFlag),
            row<ObjectListProperty>("nodes", "Nodes", OrderRule::InsertionOrder).filter({"Node"}),
            row<ObjectListProperty>("sorted", "Sorted", OrderRule::NaturalOrder),
            row<ObjectProperty>("child", "Child", nullptr).flags(ObjectFlag),
        };
        return DesignerObject::initializeProperties() && addProperties(table);
    }

    bool mayGoOn(const QString &step)
    {
        log.append(step);
        return veto != step;
    }
    bool beforePropertyChanged(const DesignerProperty *property, const QString &newValue) override
    {
        return mayGoOn(QStringLiteral("before %1 %2").arg(property->id(), newValue));
    }
    bool beforeListItemAdded(const DesignerProperty *, const DesignerObject *item) override
    {
        return mayGoOn(QStringLiteral("before adding %1").arg(item->getIdName()));
    }
    bool beforeListItemRemoved(const DesignerProperty *, const DesignerObject *item) override
    {
        return mayGoOn(QStringLiteral("before removing %1").arg(item->getIdName()));
    }
    void afterPropertyChanged(const DesignerProperty *property, const QString &previousValue) override
    {
        log.append(QStringLiteral("after %1 %2").arg(property->id(), previousValue));
    }
    void afterListItemAdded(const DesignerProperty *, const DesignerObject *item) override
    {
        log.append(QStringLiteral("after adding %1").arg(item->getIdName()));
    }
    void afterListItemRemoved(const DesignerProperty *, const DesignerObject *item) override
    {
        log.append(QStringLiteral("after removing %1").arg(item->getIdName()));
    }
};

//! A plug-in with the class Node.
class NodeFactory : public TableFactory
{
public:
    NodeFactory()
        : TableFactory(classes)
    { }

private:
    static constexpr ClassRow classes[] = {{"Node", &makeObject<Node>, "node", "A Node"}};
};

//! Creates the process-wide factory again, with the class Node in addition to the library's own.
inline void makeFactory()
{
    static NodeFactory nodes;
    DesignerFactory::createInstance(QCoreApplication::applicationDirPath());
    DesignerFactory::instance()->registerFactory(&nodes);
}

} // namespace Halvane::Corvex::Designer::Test
