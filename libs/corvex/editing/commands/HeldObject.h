// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/common/Export.h"

#include <QtGlobal>

#include <memory>

namespace Halvane::Corvex::Designer {

class DesignerObject;

/*! A command's share in an object that it may take out of the model.

    All commands that hold one object share the care for it. While commands have it out of the model it
   belongs to them, and goes with the last command that holds it. An object that is back in the model by then
   stays there, and one that somebody else took out of the model belongs to that.
*/
class CORVEX_EXPORT HeldObject
{
    Q_DISABLE_COPY_MOVE(HeldObject)

public:
    //! An object that is in no model belongs to the commands from here on.
    explicit HeldObject(DesignerObject *object);
    ~HeldObject();

    //! Null for an object that somebody else deleted.
    DesignerObject *get() const;
    //! The command has taken the object out of the model, or put it in.
    void setOut(bool isOut);

private:
    struct Care;
    std::shared_ptr<Care> m_care;
};

} // namespace Halvane::Corvex::Designer
