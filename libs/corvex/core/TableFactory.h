// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/core/IDesignerFactory.h"

#include <QHash>

#include <span>

namespace Halvane::Corvex::Designer {

//! One class that a factory brings. Texts are UTF-8; the display name is translated.
struct ClassRow
{
    using Make = DesignerObject *(*)(QObject *parent);

    const char *className;
    Make make;                      //!< null for an abstract class, which only has names; see makeObject
    const char *baseName = nullptr; //!< the stem of the names of new objects; null for a class without names
    const char *displayName = nullptr; //!< what the user calls it
};

//! One class of canvas items that a factory brings.
struct ItemRow
{
    const char *className;
    GraphicsItem *(*make)(DesignerObject *object);
};

//! Makes an object of a class whose constructor is protected, for the row of the class.
template<class Class>
DesignerObject *makeObject(QObject *parent)
{
    struct Made : public Class
    {
        explicit Made(QObject *owner)
            : Class(owner)
        { }
    };
    return new Made(parent);
}

template<class Item>
GraphicsItem *makeItem(DesignerObject *object)
{
    return new Item(object);
}

/*! A factory that is described by tables. A plug-in derives its root object from QObject and from this class,
   and hands over its tables; it overrides more only when it brings editors, templates or wizards.

    A display name or base name is translated under the keys "DISPLAYNAME:Class" and "BASENAME:Class" when a
    translation has them. */
class CORVEX_EXPORT TableFactory : public IDesignerFactory
{
public:
    DesignerObject *createObject(const QString &className, QObject *parent) override;
    GraphicsItem *createGraphicsItem(const QString &className, DesignerObject *object) override;
    PropertyEditor *createEditor(const QString &editorName, QWidget *parent) override;
    Template *createTemplate(const QString &className, QObject *parent) override;
    Wizard *createWizard(const QString &wizardName) override;

    QStringList objectNames() const override;
    QMap<QString, QString> classBaseNames() const override;
    QMap<QString, QString> classDisplayNames() const override;
    QStringList creatableNames() const override;
    QStringList graphicsItemNames() const override;
    QStringList editorNames() const override;
    QStringList templateNames() const override;
    QStringList wizardNames() const override;

protected:
    //! The tables must outlive the factory.
    explicit TableFactory(std::span<const ClassRow> classes, std::span<const ItemRow> items = {});

private:
    std::span<const ClassRow> m_classes;
    std::span<const ItemRow> m_items;
    QHash<QString, ClassRow::Make> m_makers;
};

} // namespace Halvane::Corvex::Designer
