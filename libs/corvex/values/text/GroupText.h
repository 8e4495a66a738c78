// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/common/Export.h"

#include <QLatin1StringView>
#include <QString>
#include <QStringView>

#include <algorithm>

//! The group form, "color: #FF000000; width: 2;", of most values with several fields.
namespace Halvane::Corvex::Designer::GroupText {

//! \a text without surrounding whitespace. Optimized for short texts, which are usual in this form.
inline QStringView withoutBlanks(QStringView text)
{
    const QChar *first = text.begin();
    const QChar *last = text.end();
    while (first != last && first->isSpace()) {
        ++first;
    }
    while (last != first && (last - 1)->isSpace()) {
        --last;
    }
    return {first, last};
}

//! The text between two semicolons, with the positions of its first colons; -1 for a missing one.
struct CORVEX_EXPORT Item
{
    QStringView text;
    qsizetype colons[3] = {-1, -1, -1};

    //! Removes the first item from \a rest and returns it.
    static Item takeFrom(QStringView &rest)
    {
        qsizetype start = 0;
        while (start < rest.size() && rest[start].isSpace()) {
            ++start;
        }
        Item item;
        qsizetype count = 0;
        qsizetype i = start;
        for (; i < rest.size() && rest[i] != u';'; ++i) {
            if (rest[i] == u':' && count < 3) {
                item.colons[count++] = i - start;
            }
        }
        item.text = withoutBlanks(rest.sliced(start, i - start));
        rest = rest.sliced(std::min(i + 1, rest.size()));
        return item;
    }
};

/*! Calls entry(key, value) for each entry, in the order of the text. The views are valid during the call.
    Reading stops when \a entry returns false. Returns false if the text is blank or has only semicolons, if
    an item is not "key: value", or if an entry was refused.

    An item "valueString: a: b" takes everything that follows it: its first two fields after the key and all
    later items, joined with "; " and closed with ";", form one value. It is reported last, under the key
    "valueString".
*/
template<class Entry>
bool forEachEntry(QStringView text, Entry &&entry)
{
    bool anyItem = false;
    bool inValueString = false;
    QString valueString;
    const auto appendPiece = [&](QStringView piece) {
        if (inValueString) {
            valueString.append(QLatin1StringView("; "));
        }
        valueString.append(piece);
        inValueString = true;
    };
    QStringView rest = withoutBlanks(text);
    while (!rest.isEmpty()) {
        const bool isNothing = rest.front() == u';';
        const Item item = Item::takeFrom(rest);
        anyItem = anyItem || !isNothing;
        if (item.text.isEmpty()) {
            continue;
        }
        const auto [colon, second, third] = item.colons;
        const QStringView key = colon < 0 ? item.text : withoutBlanks(item.text.first(colon));
        if (second >= 0 && key.compare(QLatin1StringView("valueString"), Qt::CaseInsensitive) == 0) {
            appendPiece(item.text.first(third < 0 ? item.text.size() : third).sliced(colon + 1));
        } else if (inValueString) {
            appendPiece(item.text);
        } else if (colon < 0 || second >= 0 || !entry(key, withoutBlanks(item.text.sliced(colon + 1)))) {
            return false;
        }
    }
    if (!inValueString) {
        return anyItem;
    }
    valueString.append(u';');
    return entry(QStringView(u"valueString"), QStringView(valueString));
}

//! Appends "key: value;", with a space before it unless it is the first entry. Append entries in the order of
//! their keys.
CORVEX_EXPORT void appendEntry(QString &group, QStringView key, QStringView value);

//! How a repeated key is treated.
enum class Repeated { LastCounts, Refused };

//! Reads a text that consists of exactly the entries \a first and \a second, in any order. Passes each value
//! to \a read(isSecond, value), which returns whether it is valid. If a key is repeated, the last value
//! counts, unless \a once refuses repeated keys.
template<class Read>
bool readTwo(QStringView text, QLatin1StringView first, QLatin1StringView second, Repeated repeated,
             Read &&read)
{
    unsigned seen = 0;
    unsigned good = 0;
    const bool parsed = forEachEntry(text, [&](QStringView key, QStringView value) {
        const unsigned bit = key == first ? 1U : key == second ? 2U : 0U;
        if (bit == 0 || (repeated == Repeated::Refused && (seen & bit) != 0)) {
            return false;
        }
        seen |= bit;
        good = read(bit == 2, value) ? good | bit : good & ~bit;
        return true;
    });
    return parsed && good == 3;
}

} // namespace Halvane::Corvex::Designer::GroupText
