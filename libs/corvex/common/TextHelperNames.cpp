// SPDX-License-Identifier: MIT
#include "corvex/common/TextHelper.h"

#include <QSet>

using namespace Qt::StringLiterals;

namespace Halvane::Corvex::Common {

const QStringList &TextHelper::reservedWords()
{
    static const QStringList words = [] {
        constexpr auto all =
            // Keywords, and the words reserved for the future by this and the third edition of ECMAScript.
            "break case catch continue debugger default delete do else finally for function if in "
            "instanceof new return switch this throw try typeof var void while with "
            "class const enum export extends import super "
            "implements interface let package private protected public static yield "
            "abstract boolean byte char double final float goto int long native short synchronized "
            "throws transient volatile "
            "null true false "
            // Global values, functions and objects.
            "NaN Infinity undefined eval parseInt parseFloat isNaN isFinite decodeURI decodeURIComponent "
            "encodeURI encodeURIComponent escape unescape "
            "Object Function Array String Boolean Number Date RegExp Error EvalError RangeError "
            "ReferenceError SyntaxError TypeError URIError Math JSON "
            // Objects that the device adds.
            "Qt console print qmlViewer"_L1;
        QStringList list = QString(all).split(u' ');
        list.sort();
        return list;
    }();
    return words;
}

bool TextHelper::isReservedWord(const QString &name)
{
    static const QSet<QString> words(reservedWords().cbegin(), reservedWords().cend());
    return words.contains(name);
}

qint64 TextHelper::numberFromString(QStringView name, QString *stem)
{
    constexpr qsizetype mostDigits = 18;
    const auto isDigit = [](QChar c) { return c >= u'0' && c <= u'9'; };
    qsizetype begin = name.size();
    while (begin > 0 && name.size() - begin < mostDigits && isDigit(name[begin - 1])) {
        --begin;
    }
    while (begin + 1 < name.size() && name[begin] == u'0') {
        ++begin;
    }
    if (stem) {
        *stem = name.first(begin).toString();
    }
    return begin == name.size() ? -1 : name.sliced(begin).toLongLong();
}

bool TextHelper::isReservedDeviceName(QStringView fileName)
{
    const qsizetype dot = fileName.indexOf(u'.');
    const QString name = (dot < 0 ? fileName : fileName.first(dot)).toString().toUpper();
    if (name.size() == 4 && (name.startsWith("COM"_L1) || name.startsWith("LPT"_L1))) {
        return name.at(3) >= u'1' && name.at(3) <= u'9';
    }
    return name == "AUX"_L1 || name == "CON"_L1 || name == "NUL"_L1 || name == "PRN"_L1;
}

QStringList TextHelper::forbiddenFileNameCharacters(QStringView name)
{
    static const QString punctuation = u" ~`!@#$%&'()-_+={}[],."_s;
    QStringList forbidden;
    for (qsizetype i = 0; i < name.size(); ++i) {
        const bool pair = name[i].isHighSurrogate() && i + 1 < name.size() && name[i + 1].isLowSurrogate();
        const char32_t c = pair ? QChar::surrogateToUcs4(name[i], name[i + 1]) : char32_t(name[i].unicode());
        const QString written = name.sliced(i, pair ? 2 : 1).toString();
        i += pair ? 1 : 0;
        const bool allowed = QChar::isLetter(c) || QChar::isMark(c) || QChar::isDigit(c)
                             || (!pair && punctuation.contains(QChar(char16_t(c))));
        if (!allowed && !forbidden.contains(written)) {
            forbidden.append(written);
        }
    }
    return forbidden;
}

bool TextHelper::isValidFileNameFormat(QStringView name)
{
    return name.size() >= 2 && name.front() != u' ' && name.front() != u'.'
           && forbiddenFileNameCharacters(name).isEmpty();
}

} // namespace Halvane::Corvex::Common
