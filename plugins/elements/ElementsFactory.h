// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/core/TableFactory.h"

#include <QObject>

namespace Halvane::Corvex::Elements {

//! The root object of the plug-in: creates the standard elements and their editors.
class ElementsFactory
    : public QObject
    , public Designer::TableFactory
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID "halvane.corvex.designer.IDesignerFactory/1.0")
    Q_INTERFACES(Halvane::Corvex::Designer::IDesignerFactory)

public:
    ElementsFactory();

    Designer::PropertyEditor *createEditor(const QString &editorName, QWidget *parent) override;
    QStringList editorNames() const override;
};

} // namespace Halvane::Corvex::Elements
