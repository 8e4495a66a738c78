// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/common/Export.h"
#include "corvex/core/NameIndex.h"

#include <QHash>
#include <QList>
#include <QMultiHash>
#include <QString>

#include <functional>
#include <set>

namespace Halvane::Corvex::Designer {

class DesignerObject;
class Element;

/*! Finds the elements of a screen, including members of groups and filters, by name and by channel.

    Elements are added and removed together with their screen, so that no name check needs to search the
    screen.
*/
class CORVEX_EXPORT ElementIndex
{
public:
    void insert(Element *element);
    void remove(Element *element);
    void rename(Element *element, const QString &oldName);
    void clear();
    //! The number of elements with each name. From this call on, the names are also counted in \a counts for
    //! the whole project; null ends that.
    using NameCounts = QHash<QString, int>;
    void countIn(NameCounts *counts);

    QList<DesignerObject *> named(const QString &name) const { return m_byName.find(name); }
    qsizetype count(const QString &name) const { return m_byName.count(name); }
    //! The first of base1, base2, ... that is neither the name of an element nor taken otherwise.
    QString freeName(const QString &base, const std::function<bool(const QString &name)> &isTaken = {});

    //! The hardware elements of that class with that channel.
    QList<DesignerObject *> withChannel(const QString &className, const QString &channel) const;
    //! Another element of the class of \a element with that channel; null if no other uses it.
    const DesignerObject *otherWithChannel(const DesignerObject *element, const QString &channel) const;
    void changeChannel(DesignerObject *element, const QString &oldChannel);

private:
    using Channels = QMultiHash<QPair<QString, QString>, DesignerObject *>; //!< by class and channel

    const Channels &channels() const;
    void nameFreed(const QString &name);
    void forgetChannelOf(Element *element);
    void count(const QString &name, int by);

    NameIndex m_byName;
    NameCounts *m_counts = nullptr; //!< of the project
    //! The numbers in use after a base.
    struct Numbers
    {
        int next = 1;       //!< all lower numbers are either used or in gaps
        std::set<int> gaps; //!< freed numbers, and numbers that were taken otherwise when they were requested
    };
    QHash<QString, Numbers> m_numbers; //!< by base
    // Built on first use, because most screens never need it, and then updated.
    mutable Channels m_byChannel;
    mutable bool m_channelsKnown = false;
};

} // namespace Halvane::Corvex::Designer
