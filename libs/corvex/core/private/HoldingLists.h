// SPDX-License-Identifier: MIT
// Private to the sources of DesignerObject; not installed.
#pragma once

#include <QList>

namespace Halvane::Corvex::Designer {

class DesignerProperty;

//! The lists that contain an object, in the size of a pointer. A single list is stored as its address.
//! Several lists, which are rare, are stored as the address of a QList, marked by its lowest bit.
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
    //! Ignores a list that is already included.
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
