// SPDX-License-Identifier: MIT
#pragma once

#include <QtGlobal>

#include <iterator>

namespace Halvane::Corvex::Examples {

//! Random numbers that only depend on the seed: the same on every system and with every library.
class Random
{
public:
    explicit Random(quint64 seed)
        : m_state(seed)
    { }

    //! 0 to \a limit - 1; \a limit is above 0.
    int below(int limit) { return int(next() % quint64(limit)); }
    int between(int first, int last) { return first + below(last - first + 1); }
    bool chance(int percent) { return below(100) < percent; }
    template<class List>
    const auto &oneOf(const List &list)
    {
        return list[below(int(std::size(list)))];
    }

private:
    //! One step of the generator splitmix64.
    quint64 next()
    {
        m_state += 0x9e3779b97f4a7c15;
        quint64 bits = m_state;
        bits = (bits ^ (bits >> 30)) * 0xbf58476d1ce4e5b9;
        bits = (bits ^ (bits >> 27)) * 0x94d049bb133111eb;
        return bits ^ (bits >> 31);
    }

    quint64 m_state;
};

} // namespace Halvane::Corvex::Examples
