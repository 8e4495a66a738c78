// SPDX-License-Identifier: MIT
#include "corvex/checks/private/rules/PlainQml.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace Halvane::Corvex::Designer {

namespace {

constexpr auto referenceStart = "qml_"_L1;

//! The characters of code besides names, numbers and texts. Excludes comments, regular expressions and other
//! kinds of quotes.
bool isOtherCharacter(QChar c)
{
    return QLatin1StringView(" \t\n!%&()*+,-.:;<=>?[]^{|}~").contains(c);
}

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

//! The length of the name at the start.
qsizetype nameLength(QStringView text)
{
    return std::find_if_not(text.begin(), text.end(), isNameCharacter) - text.begin();
}

//! The length of a quoted text with only the simplest escapes; 0 for any other text.
qsizetype plainTextLength(QStringView value)
{
    for (qsizetype i = 1; i < value.size(); ++i) {
        const QChar c = value[i];
        if (c == u'"') {
            return i + 1;
        }
        const bool isEscape = c == u'\\';
        i += isEscape ? 1 : 0;
        if (c < u' ' || c >= QChar(0x7f)
            || (isEscape && (i == value.size() || !u"\\\"'nrt"_s.contains(value[i])))) {
            return 0;
        }
    }
    return 0;
}

bool isPlainText(QStringView value)
{
    return value.startsWith(u'"') && plainTextLength(value) == value.size();
}

bool isPlainNumber(QStringView value)
{
    const QStringView digits = value.startsWith(u'-') ? value.sliced(1) : value;
    const qsizetype whole = std::find_if_not(digits.begin(), digits.end(), isDigit) - digits.begin();
    // A leading zero would change the number or make it invalid.
    if (whole == 0 || (whole > 1 && digits.front() == u'0')) {
        return false;
    }
    const QStringView rest = digits.sliced(whole);
    return rest.isEmpty()
           || (rest.size() > 1 && rest.front() == u'.' && std::all_of(rest.begin() + 1, rest.end(), isDigit));
}

//! For example "Item.Center".
bool isEnumerator(QStringView value)
{
    const qsizetype type = nameLength(value);
    if (type == 0 || !isUpper(value.front()) || type + 1 >= value.size() || value[type] != u'.') {
        return false;
    }
    const QStringView name = value.sliced(type + 1);
    return isUpper(name.front()) && nameLength(name) == name.size();
}

//! "qml_pump1", a reference to an object. No keyword begins like that.
bool isReference(QStringView value)
{
    return value.startsWith(referenceStart) && nameLength(value) == value.size();
}

} // namespace

bool isPlainCode(QStringView code)
{
    return isReference(code) || code == "null"_L1 || isPlainText(code) || isPlainNumber(code)
           || code == "true"_L1 || code == "false"_L1 || isEnumerator(code);
}

QString qmlShape(const QString &qml)
{
    // The shape is never longer than the code.
    QString shape(qml.size(), Qt::Uninitialized);
    QChar *end = shape.data();
    const auto append = [&end](auto text) { end = std::ranges::copy(text, end).out; };
    for (QStringView rest(qml); !rest.isEmpty();) {
        const QChar first = rest.front();
        qsizetype length = nameLength(rest);
        if (length == 0 && first != u'"') {
            if (!isOtherCharacter(first)) {
                return qml;
            }
            *end++ = first;
            length = 1;
        } else if (length == 0) {
            length = plainTextLength(rest);
            // In "use strict" the words matter.
            if (length == 0 || rest.first(length) == "\"use strict\""_L1) {
                return qml;
            }
            append(QStringView(u"\"\""));
        } else if (rest.startsWith(referenceStart)) {
            append(QStringView(u"qml_"));
        } else if (first >= u'1' && first <= u'9' && std::ranges::all_of(rest.first(length), isDigit)) {
            *end++ = u'1';
        } else {
            append(rest.first(length));
        }
        rest = rest.sliced(length);
    }
    shape.truncate(end - shape.constData());
    return shape;
}

} // namespace Halvane::Corvex::Designer
