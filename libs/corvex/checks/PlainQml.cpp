// SPDX-License-Identifier: MIT
#include "corvex/checks/PlainQml.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace Halvane::Corvex::Designer {

namespace {

bool isDigit(QChar c)
{
    return c >= u'0' && c <= u'9';
}

bool isUpper(QChar c)
{
    return c >= u'A' && c <= u'Z';
}

bool isNameCharacter(QChar c)
{
    return (c >= u'a' && c <= u'z') || isUpper(c) || isDigit(c) || c == u'_';
}

//! How many characters from the start on are those of a name.
qsizetype nameLength(QStringView text)
{
    return std::find_if_not(text.begin(), text.end(), isNameCharacter) - text.begin();
}

//! A text between quotes with no more than the simplest escapes.
bool isPlainText(QStringView value)
{
    if (value.size() < 2 || value.front() != u'"' || value.back() != u'"') {
        return false;
    }
    const QStringView inner = value.sliced(1, value.size() - 2);
    for (qsizetype i = 0; i < inner.size(); ++i) {
        if (inner[i] == u'\\') {
            ++i;
            if (i == inner.size() || !u"\\\"'nrt"_s.contains(inner[i])) {
                return false;
            }
        } else if (inner[i] == u'"' || inner[i] < u' ' || inner[i] >= QChar(0x7f)) {
            return false;
        }
    }
    return true;
}

bool isPlainNumber(QStringView value)
{
    const QStringView digits = value.startsWith(u'-') ? value.sliced(1) : value;
    const qsizetype whole = std::find_if_not(digits.begin(), digits.end(), isDigit) - digits.begin();
    // A zero in front makes another number of it, or none.
    if (whole == 0 || (whole > 1 && digits.front() == u'0')) {
        return false;
    }
    const QStringView rest = digits.sliced(whole);
    return rest.isEmpty()
           || (rest.size() > 1 && rest.front() == u'.' && std::all_of(rest.begin() + 1, rest.end(), isDigit));
}

//! As in "Item.Center".
bool isEnumerator(QStringView value)
{
    const qsizetype type = nameLength(value);
    if (type == 0 || !isUpper(value.front()) || type + 1 >= value.size() || value[type] != u'.') {
        return false;
    }
    const QStringView name = value.sliced(type + 1);
    return isUpper(name.front()) && nameLength(name) == name.size();
}

//! "qml_pump1", a reference to an object. No word of the language begins so.
bool isReference(QStringView value)
{
    return value.startsWith("qml_"_L1) && nameLength(value) == value.size();
}

bool isPlainValue(QStringView value)
{
    return isReference(value) || value == "null"_L1 || isPlainText(value) || isPlainNumber(value)
           || value == "true"_L1 || value == "false"_L1 || isEnumerator(value);
}

//! "x: 12"
bool isPlainMember(QStringView line)
{
    const qsizetype colon = line.indexOf(u':');
    return colon > 0 && isPlainValue(line.sliced(colon + 1).trimmed());
}

} // namespace

bool isPlainQml(QStringView members)
{
    for (const QStringView line : members.tokenize(u'\n')) {
        if (!isPlainMember(line)) {
            return false;
        }
    }
    return true;
}

} // namespace Halvane::Corvex::Designer
