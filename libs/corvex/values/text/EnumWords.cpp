// SPDX-License-Identifier: MIT
#include "corvex/values/text/EnumWords.h"

#include "corvex/common/LocalizationHelper.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace Halvane::Corvex::Designer {

namespace {

//! Keys that are no words, or that need others.
struct KeyRow
{
    QLatin1StringView key;
    QLatin1StringView words;
};

constexpr KeyRow keys[] = {
    {"AlignLeft"_L1, "Left"_L1},     {"AlignHCenter"_L1, "Center"_L1},     {"AlignRight"_L1, "Right"_L1},
    {"AlignTop"_L1, "Top"_L1},       {"AlignVCenter"_L1, "Middle"_L1},     {"AlignBottom"_L1, "Bottom"_L1},
    {"BACnetIP"_L1, "BACnet/IP"_L1}, {"BACnetMSTP"_L1, "BACnet MS/TP"_L1},
};

//! A capital letter after a small one begins a word; abbreviations stay as they are.
QString split(const QString &key)
{
    QString words;
    for (qsizetype place = 0; place < key.size(); ++place) {
        const QChar sign = key[place];
        const bool beginsWord = place > 0 && sign.isUpper() && key[place - 1].isLower();
        const bool isWord = place + 1 < key.size() && key[place + 1].isLower();
        words += beginsWord ? u" "_s : QString();
        words += sign == u'_' ? QChar(u' ') : beginsWord && isWord ? sign.toLower() : sign;
    }
    return words;
}

} // namespace

QString EnumWords::of(const QString &key)
{
    const auto *row = std::ranges::find(keys, key, &KeyRow::key);
    return Common::LocalizationHelper::coreString(row == std::end(keys) ? split(key) : QString(row->words));
}

QString EnumWords::keyOf(const QString &text, const QStringList &keys)
{
    if (keys.contains(text)) {
        return text;
    }
    const QString words = text.simplified();
    const auto key = std::ranges::find_if(keys, [&words](const QString &known) {
        return of(known).compare(words, Qt::CaseInsensitive) == 0
               || known.compare(words, Qt::CaseInsensitive) == 0;
    });
    return key == keys.cend() ? text : *key;
}

} // namespace Halvane::Corvex::Designer
