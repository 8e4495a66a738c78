// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/common/Export.h"
#include "corvex/core/IDesignerObject.h"

#include <QSharedPointer>

namespace Halvane::Corvex::Designer {

class DesignerObject;
class DesignerProperty;

//! The interface of the canvas item that shows an object. The model reports changes to it and never calls it
//! otherwise. Not owned: a view must call resetGraphicsItem() on its object before it is destroyed.
class CORVEX_EXPORT ObjectView : public IDesignerObject
{
public:
    virtual void updateGraphicsItem(const QSharedPointer<DesignerProperty> &property) = 0;
    virtual void addGraphicsItemChild(const QSharedPointer<DesignerProperty> &property,
                                      DesignerObject *child) = 0;
    virtual void removeGraphicsItemChild(const QSharedPointer<DesignerProperty> &property,
                                         DesignerObject *child) = 0;
    //! Children of a list have changed places.
    virtual void orderGraphicsItemChildren(const QSharedPointer<DesignerProperty> &property) = 0;
    //! The object is being deleted; delete what shows it.
    virtual void objectGone() = 0;
};

} // namespace Halvane::Corvex::Designer
