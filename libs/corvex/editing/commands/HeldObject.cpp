// SPDX-License-Identifier: MIT
#include "corvex/editing/commands/HeldObject.h"

#include "corvex/core/DesignerObject.h"

#include <QPointer>

#include <unordered_map>

namespace Halvane::Corvex::Designer {

struct HeldObject::Care
{
    Q_DISABLE_COPY_MOVE(Care)

    //! Shared by all commands that hold the object.
    static std::shared_ptr<Care> of(DesignerObject *object)
    {
        std::weak_ptr<Care> &known = all()[object];
        std::shared_ptr<Care> care = known.lock();
        // The object of an older entry may have been deleted, and another one may have its address.
        if (!care || !care->object) {
            care = std::make_shared<Care>(object);
            known = care;
        }
        return care;
    }

    explicit Care(DesignerObject *held)
        : object(held)
        , key(held)
        , isOut(held && !held->parent())
    { }

    ~Care()
    {
        if (const auto known = all().find(key); known != all().end() && known->second.expired()) {
            all().erase(known);
        }
        if (isOut && object && !object->parent()) {
            delete object;
        }
    }

    QPointer<DesignerObject> object;
    const DesignerObject *key;
    bool isOut;

private:
    //! Commands only exist on the GUI thread.
    static std::unordered_map<const DesignerObject *, std::weak_ptr<Care>> &all()
    {
        static std::unordered_map<const DesignerObject *, std::weak_ptr<Care>> cares;
        return cares;
    }
};

HeldObject::HeldObject(DesignerObject *object)
    : m_care(Care::of(object))
{ }

HeldObject::~HeldObject() = default;

DesignerObject *HeldObject::get() const
{
    return m_care->object;
}

void HeldObject::setOut(bool isOut)
{
    m_care->isOut = isOut;
}

} // namespace Halvane::Corvex::Designer
