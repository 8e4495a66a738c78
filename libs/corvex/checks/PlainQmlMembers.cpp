// SPDX-License-Identifier: MIT
#include "corvex/checks/PlainQmlMembers.h"

#include <QList>
#include <QSet>

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

bool isPlainValue(QStringView value)
{
    return isPlainText(value) || isPlainNumber(value) || value == "true"_L1 || value == "false"_L1
           || isEnumerator(value);
}

/*! Whether the next line cannot be the rest of this expression when it looks like a member. Where it is wrong
    otherwise, as with an operator at its end, no line behind it makes it right. */
bool isWhole(QStringView expression)
{
    qsizetype open = 0;
    for (const QChar c : expression) {
        if (c == u'?' || c == u'`' || c == u'*') {
            return false;
        }
        open += (c == u'(' || c == u'[' || c == u'{') ? 1 : (c == u')' || c == u']' || c == u'}') ? -1 : 0;
    }
    return open == 0;
}

//! "Text {"
bool opensObject(QStringView line)
{
    const qsizetype type = nameLength(line);
    return type > 0 && isUpper(line.front()) && line.sliced(type) == " {"_L1;
}

/*! Goes through the lines. A line that looks like a member may as well be the rest of a longer expression: it
    is taken for a member only where nothing but members was since the opening of an object. */
class Emptier
{
public:
    explicit Emptier(qsizetype size) { m_kept.reserve(size / 4); }

    void add(QStringView line)
    {
        if (!isSettled(line.trimmed())) {
            m_kept.append(line);
        }
        m_kept += u'\n';
    }

    QString take()
    {
        m_kept.chop(1);
        return std::move(m_kept);
    }
    //! Whether an object has two members of one name, which only a reader of all lines can complain of.
    bool hasRepeatedMember() const { return m_hasRepeatedMember; }

private:
    //! Whether the line needs not be read. Has to hear of every line, to know where members stand.
    bool isSettled(QStringView line)
    {
        const qsizetype colon = m_isBetweenMembers ? line.indexOf(u':') : -1;
        if (colon > 0) {
            const QStringView value = line.sliced(colon + 1).trimmed();
            const bool isPlain = isPlainValue(value);
            if (isPlain || isWhole(value)) {
                return isSettledName(line.first(colon).trimmed()) && isPlain;
            }
        }
        m_isBetweenMembers = opensObject(line) || (m_isBetweenMembers && (line.isEmpty() || line == "}"_L1));
        m_members.clear();
        return false;
    }

    bool isSettledName(QStringView name)
    {
        m_hasRepeatedMember = m_hasRepeatedMember || m_members.contains(name);
        m_members.append(name);
        const bool isKnown = m_known.contains(name);
        if (!isKnown) {
            m_known.insert(name);
        }
        return isKnown;
    }

    QString m_kept;
    QSet<QStringView> m_known;    //!< the names that a line was kept for
    QList<QStringView> m_members; //!< those of the members right before the line
    bool m_isBetweenMembers = false;
    bool m_hasRepeatedMember = false;
};

} // namespace

QString qmlWithoutPlainMembers(const QString &qml)
{
    Emptier emptier(qml.size());
    for (const QStringView line : QStringView(qml).tokenize(u'\n')) {
        emptier.add(line);
    }
    return emptier.hasRepeatedMember() ? qml : emptier.take();
}

} // namespace Halvane::Corvex::Designer
