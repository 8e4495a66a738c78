// SPDX-License-Identifier: MIT
#include "RandomExpressions.h"

#include <span>

using namespace Qt::StringLiterals;

namespace Halvane::Corvex::Examples {

namespace {

// "$" and a kind are replaced by a name of that kind, "$k" by a number, "$C" by a colour.
constexpr QLatin1StringView general[] = {"$c"_L1, "$r.color"_L1, "$C"_L1};
constexpr QLatin1StringView assignments[] = {
    "$n = $k"_L1,
    "$n = $n"_L1,
    "$b = true; $n = 0"_L1,
    "$b = $b; $s = 'set by hand'"_L1,
    "$c = $C; $e.visible = true"_L1,
    "$e.opacity = 0.5; $e.rotation = $n"_L1,
    "$s = $s; $n = $k; $b = false"_L1,
};
constexpr QLatin1StringView conditions[] = {
    "$b"_L1,
    "$n > $k"_L1,
    "$n >= $k && $b"_L1,
    "($n < $k || $n > $n) && $b == false"_L1,
    "$s == 'READY'"_L1,
    "$e.visible && $n != 0"_L1,
};
constexpr QLatin1StringView calculations[] = {
    "$n * $k + $n"_L1,    "max(0, min($k, $n))"_L1,           "round(sqrt(abs($n)) * 100) / 100"_L1,
    "$b ? $n : $k"_L1,    "getLogAvg($l) - getLogMin($l)"_L1, "$e.x + $k * sin($n * PI / 180)"_L1,
    "($n - $n) % 360"_L1,
};
constexpr QLatin1StringView texts[] = {
    "concat($n, ' bar')"_L1,
    "$b ? 'RUNNING' : 'STOPPED'"_L1,
    "toUpperCase(trim($s))"_L1,
    "concat($s, ': ', $n, ' of ', $n)"_L1,
    "$s"_L1,
    "replace(subString($s, 0, 12), '_', ' ')"_L1,
};

std::span<const QLatin1StringView> patternsOf(RandomExpressions::Kind kind)
{
    using List = Designer::GeneralDataList;
    switch (kind) {
    case List::AssignExpression:
        return assignments;
    case List::BoolExpression:
        return conditions;
    case List::MathExpression:
        return calculations;
    case List::StringExpression:
        return texts;
    case List::GeneralExpression:
        break;
    }
    return general;
}

} // namespace

QString RandomExpressions::make(Kind kind)
{
    return fill(m_random.oneOf(patternsOf(kind)));
}

QString RandomExpressions::fill(QLatin1StringView pattern)
{
    constexpr QLatin1StringView colors[] = {"#FF2E7D4F"_L1, "#FFC62828"_L1, "#FFE0A11B"_L1, "#FF1F6FB2"_L1};
    QString filled;
    for (qsizetype i = 0; i < pattern.size(); ++i) {
        if (pattern[i] != u'$') {
            filled += pattern[i];
            continue;
        }
        const char kind = pattern.data()[++i];
        if (kind == 'k') {
            filled += QString::number(m_random.between(1, 200));
        } else if (kind == 'C') {
            filled += m_random.oneOf(colors);
        } else {
            filled += oneOf(kind);
        }
    }
    return filled;
}

} // namespace Halvane::Corvex::Examples
