// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/common/Export.h"
#include "corvex/core/IDesignerObject.h"

#include <QSharedPointer>

namespace Halvane::Corvex::Designer {

class DesignerObject;
class DesignerProperty;

//! What the model knows of the item that shows an object on the canvas. The model tells it of changes and
//! never asks it anything; it neither owns it nor outlives the right to call it: a view that goes resets
//! itself on its object first.
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
    //! The object is being deleted, and what shows it goes with it.
    virtual void objectGone() = 0;
};

} // namespace Halvane::Corvex::Designer
