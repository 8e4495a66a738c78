// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/common/Export.h"
#include "corvex/core/DesignerObject.h"
#include "corvex/values/runtime/RuntimeLists.h"

namespace Halvane::Corvex::Designer {

//! Base class of everything on a screen. Concrete classes come from plug-ins; their names come from the
//! factory's tables.
class CORVEX_EXPORT Element : public DesignerObject
{
    Q_OBJECT
    CORVEX_CLASS_NAMES(Element, DesignerObject)

public:
    ~Element() override;

    QString baseName() const override;
    QString displayName() const override;
    void setScreen(Screen *screen) override;

    //! The properties that expressions and actions can use at run time.
    virtual RuntimePropertyList runtimeProperties() const;
    //! The writable ones among them, with their initial values on the device: the properties that an
    //! auto-setting variable can save and restore.
    virtual RuntimeAutoSettingList runtimeAutoSettingProperties() const;

protected:
    explicit Element(QObject *parent = nullptr);

    ObjectView *createGraphicsItem() override;
    bool initializeProperties() override;
    void nameChanged(const QString &oldName) override;
};

} // namespace Halvane::Corvex::Designer
