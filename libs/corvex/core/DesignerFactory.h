// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/common/Export.h"
#include "corvex/core/IDesignerFactory.h"

#include <QHash>
#include <QObject>
#include <QPixmap>

namespace Halvane::Corvex::Designer {

class ObjectView;

//! Creates objects, editors and canvas items by class name, through the factory that registered the name:
//! that of the library or that of a plug-in. There is one instance per process, a child of the application
//! object.
class CORVEX_EXPORT DesignerFactory : public QObject
{
    Q_OBJECT

public:
    ~DesignerFactory() override;

    //! Creates the instance and loads the plug-ins in "Plugins/DesignerObjects" below \a path. Returns false
    //! if the path does not exist, there is no application object, or the library's own factory is refused.
    static bool createInstance(const QString &path);
    //! Null before createInstance().
    static DesignerFactory *instance();

    //! Registers the names of \a factory, which is not owned. Refuses, with a warning, if its three tables of
    //! names differ in length, a name is taken, or the factory throws an exception.
    bool registerFactory(IDesignerFactory *factory);
    //! Loads every plug-in in a folder; skips files that fail, with a warning. No code of plug-ins for
    //! another interface is run.
    void loadPlugins(const QString &folder);
    //! The plug-ins that loadPlugins() skipped, one line each.
    const QStringList &pluginErrors() const { return m_pluginErrors; }

    bool canCreateObject(const QString &className) const { return m_objects.contains(className); }
    //! A new, initialised object; null, after a warning, on failure. Without \a parent the application object
    //! is the parent until the object enters a model.
    DesignerObject *createObject(const QString &className, QObject *parent = nullptr) const;
    //! The same without any parent, for a model that is being read. The caller owns the object.
    DesignerObject *createUnowned(const QString &className) const;
    //! A canvas item that is not initialised yet; null if the name is unknown or there is no object.
    GraphicsItem *createGraphicsItem(const QString &className, DesignerObject *object) const;
    //! An initialised canvas item for an object; also null without a factory. The default of
    //! DesignerObject::createGraphicsItem().
    static ObjectView *createObjectView(const QString &className, DesignerObject *object);
    PropertyEditor *createEditor(const QString &editorName, QWidget *parent = nullptr) const;
    Template *createTemplate(const QString &className, QObject *parent = nullptr) const;
    Wizard *createWizard(const QString &wizardName) const;

    //! The classes with a base and a display name, sorted. The other lists are sorted, too.
    QStringList objectNames() const;
    QStringList creatableNames() const;
    QStringList graphicsItemNames() const;
    QStringList editorNames() const;
    QStringList templateNames() const;
    QStringList wizardNames() const;

    QMap<QString, QString> classBaseNames() const { return m_baseNames; }
    QMap<QString, QString> baseClassNames() const { return m_classesByBase; }
    QString baseNameForClass(const QString &className) const { return m_baseNames.value(className); }
    QString classNameForBase(const QString &baseName) const { return m_classesByBase.value(baseName); }
    QMap<QString, QString> classDisplayNames() const { return m_displayNames; }
    QMap<QString, QString> displayClassNames() const { return m_classesByDisplay; }
    QString displayNameForClass(const QString &className) const { return m_displayNames.value(className); }
    QString classNameForDisplay(const QString &displayName) const
    {
        return m_classesByDisplay.value(displayName);
    }

    //! What objects of the class are for, in one sentence; empty if its factory does not say.
    QString descriptionForClass(const QString &className) const { return m_descriptions.value(className); }
    //! An object that shows what the class has: as createUnowned(), but also for an abstract class whose
    //! factory makes samples. Null for any other class. The caller owns it.
    DesignerObject *createSample(const QString &className) const;

    // The names of an object's class in the tables; the class name itself without a factory or an entry.
    static QString baseNameOf(const DesignerObject *object);
    static QString displayNameOf(const DesignerObject *object);

    // The data in the tables for the class of an element, or for its nearest base class with an entry; empty
    // without a factory or an entry.
    //! The list of a screen's document that contains the element.
    static QString screenListOf(const DesignerObject *element);
    //! The class that a preview shows instead.
    static QString previewOf(const DesignerObject *element);
    //! Whether any class defines one.
    static bool hasPreviews() { return instance() && !instance()->m_previews.isEmpty(); }
    //! Changes whenever classes are added or removed. Caches of data about all classes must compare it.
    static int generation();

    //! The font families that all font editors offer.
    const QStringList &fontFamilies() const { return m_fontFamilies; }
    void setFontFamilies(const QStringList &families);

    //! An icon of the class for trees and lists, 16 by 16; null without a GUI application object.
    QPixmap getObjectIcon(const QString &className) const;
    QPixmap getObjectIcon(const DesignerObject *object) const;

signals:
    void fontsChanged();

private:
    using Registry = QHash<QString, IDesignerFactory *>;

    explicit DesignerFactory(QObject *parent);
    DesignerObject *makeObject(const QString &className, QObject *parent) const;
    struct Names;
    bool areFree(const Names &names) const;
    void loadPlugin(const QString &file);
    void pluginFailed(const QString &message);
    void readClassRows(const IDesignerFactory *factory);

    Registry m_objects;
    Registry m_graphicsItems;
    Registry m_editors;
    Registry m_templates;
    Registry m_wizards;
    QMap<QString, QString> m_baseNames;
    QMap<QString, QString> m_classesByBase;
    QMap<QString, QString> m_displayNames;
    QMap<QString, QString> m_classesByDisplay;
    QHash<QString, QString> m_screenLists;                    //!< by class name
    QHash<QString, QString> m_previews;                       //!< by class name
    QHash<QString, QString> m_descriptions;                   //!< by class name
    QHash<QString, DesignerObject *(*)(QObject *)> m_samples; //!< of abstract classes, by name
    QStringList m_fontFamilies;
    QStringList m_pluginErrors;
};

} // namespace Halvane::Corvex::Designer
