// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/common/Export.h"
#include "corvex/core/DesignerObject.h"
#include "corvex/values/runtime/RuntimeLists.h"

namespace Halvane::Corvex::Designer {

//! Whatever stands on a screen. Concrete classes come from plug-ins; their names come from the factory's
//! tables.
class CORVEX_EXPORT Element : public DesignerObject
{
    Q_OBJECT
    CORVEX_CLASS_NAMES(Element, DesignerObject)

public:
    ~Element() override;

    QString baseName() const override;
    QString displayName() const override;
    void setScreen(Screen *screen) override;

    //! What expressions and actions can use of the element at run time.
    virtual RuntimePropertyList runtimeProperties() const;
    /*! Those of them that can be written, with the values that the device begins with: what an auto-setting
        variable can save and restore. */
    virtual RuntimeAutoSettingList runtimeAutoSettingProperties() const;

protected:
    explicit Element(QObject *parent = nullptr);

    ObjectView *createGraphicsItem() override;
    bool initializeProperties() override;
    void nameChanged(const QString &oldName) override;
};

} // namespace Halvane::Corvex::Designer
