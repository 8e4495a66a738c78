// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/common/Export.h"

#include <QtGlobal>

#include <memory>

namespace Halvane::Corvex::Designer {

class DesignerObject;

/*! A command's share in an object that it may remove from the model.

    All commands that hold the same object share its ownership. While it is out of the model because of a
    command, they own it, and the last command deletes it. An object that is back in the model stays there,
    and one that other code removed from the model belongs to that code.
*/
class CORVEX_EXPORT HeldObject
{
    Q_DISABLE_COPY_MOVE(HeldObject)

public:
    //! From here on the commands own an object that is in no model.
    explicit HeldObject(DesignerObject *object);
    ~HeldObject();

    //! Null if other code has deleted the object.
    DesignerObject *get() const;
    //! The command has removed the object from the model, or inserted it.
    void setOut(bool isOut);

private:
    struct Care;
    std::shared_ptr<Care> m_care;
};

} // namespace Halvane::Corvex::Designer
