// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/core/IDesignerFactory.h"

#include <QHash>

#include <span>

namespace Halvane::Corvex::Designer {

//! A class that a factory creates. Texts are UTF-8; the display name and the description are
//! translated.
struct ClassRow
{
    using Make = DesignerObject *(*)(QObject *parent);

    const char *className;
    Make make;                      //!< null for an abstract class, which only has names; see makeObject
    const char *baseName = nullptr; //!< the stem of the names of new objects; null for a class without names
    const char *displayName = nullptr; //!< the name of the class for users
    //! The list in a screen's document for elements of this class and of derived classes; null for the list
    //! of the base class. The classes of the device need none, see project/ScreenQml.cpp.
    const char *screenList = nullptr;
    //! A class that the preview supports ("Rectangle") and shows instead of this class and derived classes;
    //! null for that of the base class. Without any, the preview shows a labelled box.
    const char *preview = nullptr;
    //! What objects of the class are for, in one sentence for users.
    const char *description = nullptr;
    //! For an abstract class: makes an object that only describes the class.
    Make sample = nullptr;
};

//! A class of canvas items that a factory creates.
struct ItemRow
{
    const char *className;
    GraphicsItem *(*make)(DesignerObject *object);
};

//! Creates an object of a class with a protected constructor, for the row of the class.
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

/*! A factory defined by tables. The root object of a plug-in derives from QObject and from this class, and
    passes its tables to the constructor. It only overrides more if it has editors, templates or wizards.

    Display names and base names are translated under the keys "DISPLAYNAME:Class" and "BASENAME:Class", if a
    translation contains them.
*/
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

    std::span<const ClassRow> classRows() const { return m_classes; }

protected:
    //! The tables must outlive the factory.
    explicit TableFactory(std::span<const ClassRow> classes, std::span<const ItemRow> items = {});

private:
    std::span<const ClassRow> m_classes;
    std::span<const ItemRow> m_items;
    QHash<QString, ClassRow::Make> m_makers;
};

} // namespace Halvane::Corvex::Designer
