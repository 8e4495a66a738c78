// SPDX-License-Identifier: MIT
// Private to the sources of DesignerObject; not installed.
#pragma once

#include <QList>

namespace Halvane::Corvex::Designer {

class DesignerProperty;

//! The lists that hold an object, in the size of a pointer: one list is kept as its address. The address of a
//! QList of several, which few objects have, is marked by its lowest bit.
class HoldingLists
{
    Q_DISABLE_COPY_MOVE(HoldingLists)

public:
    HoldingLists() = default;
    ~HoldingLists() { delete several(); }

    bool isEmpty() const { return m_address == 0; }
    QList<DesignerProperty *> all() const
    {
        if (const auto *lists = several()) {
            return *lists;
        }
        return isEmpty() ? QList<DesignerProperty *>()
                         : QList{reinterpret_cast<DesignerProperty *>(m_address)};
    }
    //! One that is here already is ignored.
    void add(DesignerProperty *list)
    {
        if (isEmpty()) {
            m_address = reinterpret_cast<quintptr>(list);
        } else if (QList<DesignerProperty *> lists = all(); !lists.contains(list)) {
            lists.append(list);
            set(lists);
        }
    }
    void remove(DesignerProperty *list)
    {
        if (m_address == reinterpret_cast<quintptr>(list)) {
            m_address = 0;
        } else if (QList<DesignerProperty *> lists = all(); lists.removeOne(list)) {
            set(lists);
        }
    }

private:
    static constexpr quintptr severalMark = 1;

    QList<DesignerProperty *> *several() const
    {
        return m_address & severalMark
                   ? reinterpret_cast<QList<DesignerProperty *> *>(m_address & ~severalMark)
                   : nullptr;
    }
    void set(const QList<DesignerProperty *> &lists)
    {
        delete several();
        m_address = lists.size() > 1 ? reinterpret_cast<quintptr>(new QList(lists)) | severalMark
                                     : reinterpret_cast<quintptr>(lists.value(0));
    }

    quintptr m_address = 0;
};

} // namespace Halvane::Corvex::Designer
