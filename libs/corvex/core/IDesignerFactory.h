// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/common/Export.h"

#include <QMap>
#include <QString>
#include <QStringList>
#include <QtPlugin>

class QWidget;

namespace Halvane::Corvex::Designer {

class DesignerObject;
class GraphicsItem;
class PropertyEditor;
class Template;
class Wizard;

//! The interface of a plug-in with object classes, editors and canvas items. Each list of names contains what
//! the create operation next to it accepts.
class CORVEX_EXPORT IDesignerFactory
{
public:
    virtual ~IDesignerFactory() = default;

    //! A new object that is not initialised yet; null if the name is not in creatableNames(). Checks and
    //! builds call it from several threads at once.
    virtual DesignerObject *createObject(const QString &className, QObject *parent) = 0;
    virtual GraphicsItem *createGraphicsItem(const QString &className, DesignerObject *object) = 0;
    virtual PropertyEditor *createEditor(const QString &editorName, QWidget *parent) = 0;
    virtual Template *createTemplate(const QString &className, QObject *parent) = 0;
    virtual Wizard *createWizard(const QString &wizardName) = 0;

    //! The classes that have a base name and a display name, including abstract ones.
    virtual QStringList objectNames() const = 0;
    virtual QMap<QString, QString> classBaseNames() const = 0;
    virtual QMap<QString, QString> classDisplayNames() const = 0;
    //! The classes that createObject() accepts.
    virtual QStringList creatableNames() const = 0;
    virtual QStringList graphicsItemNames() const = 0;
    virtual QStringList editorNames() const = 0;
    virtual QStringList templateNames() const = 0;
    virtual QStringList wizardNames() const = 0;
};

} // namespace Halvane::Corvex::Designer

Q_DECLARE_INTERFACE(Halvane::Corvex::Designer::IDesignerFactory,
                    "halvane.corvex.designer.IDesignerFactory/1.0")
