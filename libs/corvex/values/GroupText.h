// SPDX-License-Identifier: MIT
#pragma once

#include <QLatin1StringView>
#include <QString>
#include <QStringTokenizer>
#include <QStringView>

//! The group form, "color: #FF000000; width: 2;": the form of most values that have several fields.
namespace Halvane::Corvex::Designer::GroupText {

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
    for (QStringView item : qTokenize(text.trimmed(), u';', Qt::SkipEmptyParts)) {
        anyItem = true;
        item = item.trimmed();
        if (item.isEmpty())
            continue;
        const qsizetype colon = item.indexOf(u':');
        const qsizetype second = colon < 0 ? -1 : item.indexOf(u':', colon + 1);
        const QStringView key = colon < 0 ? item : item.first(colon).trimmed();
        if (second >= 0 && key.compare(QLatin1StringView("valueString"), Qt::CaseInsensitive) == 0) {
            const qsizetype third = item.indexOf(u':', second + 1);
            appendPiece(item.first(third < 0 ? item.size() : third).sliced(colon + 1));
        } else if (inValueString) {
            appendPiece(item);
        } else if (colon < 0 || second >= 0 || !entry(key, item.sliced(colon + 1).trimmed())) {
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
void appendEntry(QString &group, QStringView key, QStringView value);

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
