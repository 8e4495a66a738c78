// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/common/Export.h"

#include <QLatin1StringView>
#include <QString>
#include <QStringView>

#include <algorithm>

//! The group form, "color: #FF000000; width: 2;": the form of most values that have several fields.
namespace Halvane::Corvex::Designer::GroupText {

//! \a text without the blanks at its ends. The texts of this form are short: this is a few steps in place.
inline QStringView withoutBlanks(QStringView text)
{
    const QChar *first = text.begin();
    const QChar *last = text.end();
    while (first != last && first->isSpace())
        ++first;
    while (last != first && (last - 1)->isSpace())
        --last;
    return {first, last};
}

//! What lies between two semicolons, with the places of its first colons; -1 for one that is not there.
struct CORVEX_EXPORT Item
{
    QStringView text;
    qsizetype colons[3] = {-1, -1, -1};

    //! Takes the first item off \a rest.
    static Item takeFrom(QStringView &rest)
    {
        qsizetype start = 0;
        while (start < rest.size() && rest[start].isSpace())
            ++start;
        Item item;
        qsizetype count = 0;
        qsizetype i = start;
        for (; i < rest.size() && rest[i] != u';'; ++i) {
            if (rest[i] == u':' && count < 3)
                item.colons[count++] = i - start;
        }
        item.text = withoutBlanks(rest.sliced(start, i - start));
        rest = rest.sliced(std::min(i + 1, rest.size()));
        return item;
    }
};

//! Calls entry(key, value) for each entry, in the order of the text; the views are valid during the call. An
//! entry that returns false ends the reading. False when the text is blank, holds nothing but semicolons, has
//! an item that is not "key: value", or when an entry was refused.
//!
//! An item "valueString: a: b" swallows all that follows: its first two fields behind the key and each later
//! item, joined with "; " and closed with ";", are one value, told last, under the key "valueString".
template<class Entry>
bool forEachEntry(QStringView text, Entry &&entry)
{
    bool anyItem = false;
    bool inValueString = false;
    QString valueString;
    const auto appendPiece = [&](QStringView piece) {
        if (inValueString)
            valueString.append(QLatin1StringView("; "));
        valueString.append(piece);
        inValueString = true;
    };
    QStringView rest = withoutBlanks(text);
    while (!rest.isEmpty()) {
        const bool isNothing = rest.front() == u';';
        const Item item = Item::takeFrom(rest);
        anyItem = anyItem || !isNothing;
        if (item.text.isEmpty())
            continue;
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
    if (!inValueString)
        return anyItem;
    valueString.append(u';');
    return entry(QStringView(u"valueString"), QStringView(valueString));
}

//! Appends "key: value;", behind a blank when it is not the first entry. Entries are written in the order of
//! their keys.
CORVEX_EXPORT void appendEntry(QString &group, QStringView key, QStringView value);

//! What becomes of a text that has a key twice.
enum class Repeated { LastCounts, Refused };

//! Reads a text that consists of exactly the entries \a first and \a second, in any order, by handing each
//! value to \a read(isSecond, value), which tells whether it could be read. Of a key that is repeated the
//! last value counts, unless \a once refuses it.
template<class Read>
bool readTwo(QStringView text, QLatin1StringView first, QLatin1StringView second, Repeated repeated,
             Read &&read)
{
    unsigned seen = 0;
    unsigned good = 0;
    const bool parsed = forEachEntry(text, [&](QStringView key, QStringView value) {
        const unsigned bit = key == first ? 1U : key == second ? 2U : 0U;
        if (bit == 0 || (repeated == Repeated::Refused && (seen & bit) != 0))
            return false;
        seen |= bit;
        good = read(bit == 2, value) ? good | bit : good & ~bit;
        return true;
    });
    return parsed && good == 3;
}

} // namespace Halvane::Corvex::Designer::GroupText
