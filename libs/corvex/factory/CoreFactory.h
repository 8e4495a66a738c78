// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/common/Export.h"
#include "corvex/core/TableFactory.h"

#include <QObject>

namespace Halvane::Corvex::Designer {

//! The factory of the library's own classes, editors and canvas items.
class CORVEX_EXPORT CoreFactory
    : public QObject
    , public TableFactory
{
    Q_OBJECT
    Q_INTERFACES(Halvane::Corvex::Designer::IDesignerFactory)

public:
    explicit CoreFactory(QObject *parent = nullptr);

    PropertyEditor *createEditor(const QString &editorName, QWidget *parent) override;
    Template *createTemplate(const QString &className, QObject *parent) override;

    QStringList editorNames() const override;
    QStringList templateNames() const override;
    QStringList wizardNames() const override;
};

} // namespace Halvane::Corvex::Designer
