// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/core/IDesignerFactory.h"

#include <QObject>

namespace Halvane::Corvex::Elements {

//! The root of the plug-in: makes the standard elements.
class ElementsFactory
    : public QObject
    , public Designer::IDesignerFactory
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID "halvane.corvex.designer.IDesignerFactory/1.0")
    Q_INTERFACES(Halvane::Corvex::Designer::IDesignerFactory)

public:
    Designer::DesignerObject *createObject(const QString &className, QObject *parent) override;
    Designer::GraphicsItem *createGraphicsItem(const QString &className,
                                               Designer::DesignerObject *object) override;
    Designer::PropertyEditor *createEditor(const QString &editorName, QWidget *parent) override;
    Designer::Template *createTemplate(const QString &className, QObject *parent) override;
    Designer::Wizard *createWizard(const QString &wizardName) override;

    QStringList objectNames() const override;
    QMap<QString, QString> classBaseNames() const override;
    QMap<QString, QString> classDisplayNames() const override;
    QStringList creatableNames() const override;
    QStringList graphicsItemNames() const override;
    QStringList editorNames() const override;
    QStringList templateNames() const override;
    QStringList wizardNames() const override;
};

} // namespace Halvane::Corvex::Elements
