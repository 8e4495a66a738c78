// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/common/Export.h"
#include "corvex/core/IDesignerFactory.h"

#include <QObject>

namespace Halvane::Corvex::Designer {

//! The factory of the library's own classes, editors and canvas items.
class CORVEX_EXPORT CoreFactory
    : public QObject
    , public IDesignerFactory
{
    Q_OBJECT
    Q_INTERFACES(Halvane::Corvex::Designer::IDesignerFactory)

public:
    explicit CoreFactory(QObject *parent = nullptr);

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
};

} // namespace Halvane::Corvex::Designer
