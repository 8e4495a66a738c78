// SPDX-License-Identifier: MIT
#include "corvex/preview/QmlOutline.h"

using namespace Qt::StringLiterals;

namespace Halvane::Corvex::Preview {

namespace {

//! Scans the text once for braces, the names before them, and "name:" at the start of a line.
class Scanner
{
public:
    Scanner(const QString &text, QList<QmlOutline::Object> &objects)
        : m_text(text)
        , m_objects(objects)
    { }

    void scan();

private:
    static constexpr qsizetype noObject = -1;

    struct Level
    {
        QChar opening;
        qsizetype object;
    };

    QChar at(qsizetype index) const { return index < m_text.size() ? m_text.at(index) : QChar(); }
    void skipComment();
    QString string();
    void name();
    void open(QChar bracket);
    void close();
    //! The object that directly contains the position; noObject inside a handler or an expression.
    qsizetype current() const { return m_levels.isEmpty() ? noObject : m_levels.last().object; }
    qsizetype enclosing() const;
    void takeString(const QString &value);

    const QString &m_text;
    QList<QmlOutline::Object> &m_objects;
    QList<Level> m_levels;
    qsizetype m_place = 0;
    int m_line = 1;
    bool m_isAtStart = true; //!< at the start of a line or a statement
    QString m_name;          //!< the last name, with only blanks after it
    QString m_property;      //!< of the current line
};

void Scanner::skipComment()
{
    const bool isLine = at(m_place + 1) == u'/';
    const qsizetype end = isLine ? m_text.indexOf(u'\n', m_place) : m_text.indexOf("*/"_L1, m_place + 2);
    const qsizetype next = end < 0 ? m_text.size() : isLine ? end : end + 2;
    m_line += int(QStringView(m_text).sliced(m_place, next - m_place).count(u'\n'));
    m_place = next;
}

QString Scanner::string()
{
    const QChar quote = at(m_place++);
    QString value;
    while (m_place < m_text.size() && at(m_place) != quote && at(m_place) != u'\n') {
        if (at(m_place) == u'\\') {
            ++m_place;
        }
        value += at(m_place++);
    }
    if (at(m_place) == quote) {
        ++m_place;
    }
    return value;
}

void Scanner::name()
{
    const qsizetype first = m_place;
    while (at(m_place).isLetterOrNumber() || at(m_place) == u'_' || at(m_place) == u'.') {
        ++m_place;
    }
    m_name = m_text.sliced(first, m_place - first);
    qsizetype next = m_place;
    while (at(next) == u' ' || at(next) == u'\t') {
        ++next;
    }
    if (m_isAtStart && at(next) == u':' && current() != noObject) {
        m_property = m_name;
        m_objects[current()].properties.append(m_name);
        m_place = next + 1;
        while (at(m_place) == u' ') {
            ++m_place;
        }
        if (at(m_place) == u'[') {
            m_objects[current()].lists.append(m_name);
        }
        m_name.clear();
    }
    m_isAtStart = false;
}

qsizetype Scanner::enclosing() const
{
    for (qsizetype i = m_levels.size() - 1; i >= 0; --i) {
        if (m_levels.at(i).object != noObject) {
            return m_levels.at(i).object;
        }
    }
    return noObject;
}

void Scanner::open(QChar bracket)
{
    const QString className = m_name.sliced(m_name.lastIndexOf(u'.') + 1);
    if (bracket == u'{' && !className.isEmpty() && className.at(0).isUpper()) {
        const qsizetype outer = enclosing();
        m_objects.append(
            {className, outer < 0 ? QString() : m_objects.at(outer).path, m_line, m_line, {}, {}, {}});
        m_levels.append({bracket, m_objects.size() - 1});
    } else {
        m_levels.append({bracket, noObject});
    }
}

void Scanner::close()
{
    if (m_levels.isEmpty()) {
        return;
    }
    if (const qsizetype object = m_levels.takeLast().object; object != noObject) {
        m_objects[object].lastLine = m_line;
    }
}

void Scanner::takeString(const QString &value)
{
    if (current() == noObject) {
        return;
    }
    QmlOutline::Object &object = m_objects[current()];
    if (m_property == "objectName"_L1) {
        object.path += (object.path.isEmpty() ? QString() : u"."_s) + value;
    } else if (m_property == "variable"_L1) {
        object.variable = value;
    }
}

void Scanner::scan()
{
    while (m_place < m_text.size()) {
        const QChar c = at(m_place);
        if (c == u'/' && (at(m_place + 1) == u'/' || at(m_place + 1) == u'*')) {
            skipComment();
        } else if (c == u'"' || c == u'\'' || c == u'`') {
            takeString(string());
            m_name.clear();
        } else if (c.isLetter() || c == u'_') {
            name();
        } else {
            ++m_place;
            if (c == u'\n') {
                ++m_line;
            } else if (c == u'{' || c == u'[' || c == u'(') {
                open(c);
            } else if (c == u'}' || c == u']' || c == u')') {
                close();
            }
            if (c == u'\n' || c == u'{' || c == u';') {
                m_isAtStart = true;
                m_property.clear();
            }
            if (!c.isSpace()) {
                m_name.clear();
            }
        }
    }
    for (const Level &level : std::as_const(m_levels)) {
        if (level.object != noObject) {
            m_objects[level.object].lastLine = m_line;
        }
    }
}

} // namespace

QmlOutline::QmlOutline(const QString &text)
{
    Scanner(text, m_objects).scan();
}

QString QmlOutline::pathAt(int line) const
{
    for (qsizetype i = m_objects.size() - 1; i >= 0; --i) {
        const Object &object = m_objects.at(i);
        if (object.firstLine <= line && line <= object.lastLine) {
            return object.path;
        }
    }
    return {};
}

} // namespace Halvane::Corvex::Preview
