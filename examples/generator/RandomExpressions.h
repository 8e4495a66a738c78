// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/values/expressions/GeneralDataList.h"

#include "Random.h"

#include <QHash>
#include <QStringList>

namespace Halvane::Corvex::Examples {

//! Expressions with the variables of a project and the elements of a screen, in the form of ExpressionReader.
class RandomExpressions
{
public:
    using Kind = Designer::GeneralDataList::InfoType;

    explicit RandomExpressions(Random &random)
        : m_random(random)
    { }

    //! Offers a name of a kind: 'n' number, 'b' boolean, 's' string, 'c' colour, 'l' log, 'm' address map,
    //! 'e' visual element, 'r' visual element with a colour, 'a' action.
    void offer(char kind, const QString &name) { m_names[kind].append(name); }
    //! Removes all names of a kind.
    void withdraw(char kind) { m_names.remove(kind); }
    const QStringList &names(char kind) { return m_names[kind]; }
    const QString &oneOf(char kind) { return m_random.oneOf(names(kind)); }

    //! An expression of the kind. There must be a name for every kind in its patterns.
    QString make(Kind kind);

private:
    QString fill(QLatin1StringView pattern);

    Random &m_random;
    QHash<char, QStringList> m_names;
};

} // namespace Halvane::Corvex::Examples
