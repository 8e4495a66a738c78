// SPDX-License-Identifier: MIT
#include "corvex/preview/script/PreviewScript.h"

#include "corvex/preview/PreviewSession.h"
#include "corvex/preview/script/PanelWindow.h"

#include <QColor>
#include <QQmlProperty>

#include <cmath>

using namespace Qt::StringLiterals;

namespace Halvane::Corvex::Preview {

namespace {

//! Takes a word, or a text in double quotes with the escapes \" and \\. The rest remains in \a line.
QString takeWord(QStringView &line)
{
    line = line.trimmed();
    if (!line.startsWith(u'"')) {
        const qsizetype end = line.indexOf(u' ');
        const QString word = line.first(end < 0 ? line.size() : end).toString();
        line = line.sliced(word.size());
        return word;
    }
    QString word;
    qsizetype i = 1;
    for (; i < line.size() && line.at(i) != u'"'; ++i) {
        if (line.at(i) == u'\\' && i + 1 < line.size()) {
            ++i;
        }
        word += line.at(i);
    }
    line = line.sliced(std::min(i + 1, line.size()));
    return word;
}

//! A quoted text, or the rest of the line.
QString takeValue(QStringView line)
{
    line = line.trimmed();
    return line.startsWith(u'"') ? takeWord(line) : line.toString();
}

bool isEqual(const QVariant &value, const QString &expected)
{
    if (value.metaType() == QMetaType::fromType<QColor>()) {
        return value.value<QColor>() == QColor(expected);
    }
    bool isNumber = false;
    const double number = expected.toDouble(&isNumber);
    bool hasNumber = false;
    const double actual = value.toDouble(&hasNumber);
    if (isNumber && hasNumber && value.metaType() != QMetaType::fromType<bool>()) {
        return std::abs(number - actual) <= 1e-9 * std::max(1.0, std::abs(number));
    }
    return Variable::textOf(value) == expected;
}

} // namespace

PreviewScript::PreviewScript(PreviewSession &session, PanelWindow &window,
                             std::function<bool(const QString &)> shoot)
    : m_session(session)
    , m_window(window)
    , m_shoot(std::move(shoot))
{ }

QStringList PreviewScript::run(const QString &text)
{
    QStringList failures;
    m_session.settle();
    int number = 0;
    const auto noteProblems = [this, &number] {
        m_problemLines.resize(m_session.panel().problems().problems().size(), number);
    };
    noteProblems();
    for (const QString &line : text.split(u'\n')) {
        ++number;
        const QString failure = runLine(line.trimmed());
        noteProblems();
        if (!failure.isEmpty()) {
            failures.append(u"%1: %2"_s.arg(QString::number(number), failure));
        }
    }
    return failures;
}

QString PreviewScript::runLine(const QString &line)
{
    using Command = QString (PreviewScript::*)(const QString &, const QString &);
    struct Entry
    {
        Command command;
        bool hasName;
        bool hasValue;
    };
    static const QHash<QString, Entry> commands{
        {u"show"_s, {&PreviewScript::show, true, false}},
        {u"press"_s, {&PreviewScript::press, true, false}},
        {u"hold"_s, {&PreviewScript::hold, true, false}},
        {u"release"_s, {&PreviewScript::release, false, false}},
        {u"set"_s, {&PreviewScript::set, true, true}},
        {u"wait"_s, {&PreviewScript::wait, true, false}},
        {u"expect"_s, {&PreviewScript::expect, true, true}},
        {u"shot"_s, {&PreviewScript::shot, true, false}},
    };
    if (line.isEmpty() || line.startsWith(u'#')) {
        return {};
    }
    if (line.contains(QChar::Null)) {
        return u"The line contains a NUL character."_s;
    }
    QStringView rest = line;
    const QString word = takeWord(rest);
    const auto entry = commands.constFind(word);
    if (entry == commands.cend()) {
        return u"There is no command \"%1\"."_s.arg(word);
    }
    const QString name = entry->hasName ? takeWord(rest) : QString();
    if ((entry->hasName && name.isEmpty()) || (entry->hasValue && rest.trimmed().isEmpty())) {
        return u"\"%1\" needs %2."_s.arg(word, entry->hasValue ? u"a name and a value"_s : u"a name"_s);
    }
    if (!entry->hasValue && !rest.trimmed().isEmpty()) {
        return u"Remove \"%1\" from the end of the line."_s.arg(rest.trimmed());
    }
    const QString failure = (this->*entry->command)(name, takeValue(rest));
    m_session.settle();
    return failure;
}

QString PreviewScript::show(const QString &name, const QString &)
{
    return m_session.showScreen(name) ? QString() : u"The screen \"%1\" cannot be shown."_s.arg(name);
}

QString PreviewScript::findElement(const QString &name, QObject **element) const
{
    *element = m_session.find(name);
    return *element ? QString()
                    : u"There is no \"%1\" on the current screen, \"%2\"."_s.arg(name, m_session.screen());
}

QString PreviewScript::findProperty(const QString &name, QQmlProperty *property) const
{
    const qsizetype dot = name.lastIndexOf(u'.');
    if (dot < 1) {
        return u"There is no variable \"%1\"."_s.arg(name);
    }
    QObject *element = nullptr;
    const QString failure = findElement(name.first(dot), &element);
    if (!failure.isEmpty()) {
        return failure;
    }
    *property = QQmlProperty(element, name.sliced(dot + 1), &m_session.panel().engine());
    return property->isProperty()
               ? QString()
               : u"\"%1\" has no property \"%2\"."_s.arg(name.first(dot), name.sliced(dot + 1));
}

QString PreviewScript::hold(const QString &name, const QString &)
{
    QObject *element = nullptr;
    const QString failure = findElement(name, &element);
    if (!failure.isEmpty()) {
        return failure;
    }
    QQuickItem *target = m_session.touchedItem(element);
    if (!target || !target->isVisible()) {
        return u"\"%1\" is not visible, so it cannot be pressed."_s.arg(name);
    }
    const QQuickItem *touched = m_window.touch(m_session.middleOf(target));
    if (!touched) {
        return u"Nothing reacts to a touch on \"%1\"."_s.arg(name);
    }
    return touched == target ? QString()
                             : u"\"%1\" receives the touch on \"%2\". Press that instead."_s.arg(
                                 Panel::pathOf(touched), name);
}

QString PreviewScript::release(const QString &, const QString &)
{
    m_window.letGo();
    return {};
}

QString PreviewScript::press(const QString &name, const QString &value)
{
    const QString failure = hold(name, value);
    if (failure.isEmpty()) {
        m_session.settle();
        m_window.letGo();
    }
    return failure;
}

QString PreviewScript::set(const QString &name, const QString &value)
{
    const ScriptScope scope(m_session.panel(), name);
    if (Variable *variable = m_session.panel().variables().find(name)) {
        return variable->setValue(value) ? QString()
                                         : u"\"%1\" is not a valid value for \"%2\", which is a %3."_s.arg(
                                             value, name, Variable::nameOf(variable->type()));
    }
    QQmlProperty property;
    const QString failure = findProperty(name, &property);
    if (!failure.isEmpty()) {
        return failure;
    }
    return property.write(value) ? QString() : u"\"%1\" cannot be set to \"%2\"."_s.arg(name, value);
}

QString PreviewScript::wait(const QString &name, const QString &)
{
    bool ok = false;
    const int milliseconds = name.toInt(&ok);
    if (!ok || milliseconds < 0) {
        return u"\"%1\" is not a number of milliseconds."_s.arg(name);
    }
    m_session.panel().clock().advance(milliseconds);
    return {};
}

QString PreviewScript::valueOf(const QString &name, QVariant *value) const
{
    if (name == "screen"_L1) {
        *value = m_session.screen();
        return {};
    }
    if (const Variable *variable = m_session.panel().variables().find(name)) {
        *value = variable->value();
        return {};
    }
    QQmlProperty property;
    const QString failure = findProperty(name, &property);
    if (failure.isEmpty()) {
        *value = property.read();
    }
    return failure;
}

QString PreviewScript::expect(const QString &name, const QString &expected)
{
    QVariant value;
    const QString failure = valueOf(name, &value);
    if (!failure.isEmpty()) {
        return failure;
    }
    return isEqual(value, expected)
               ? QString()
               : u"expected %1 \"%2\", but it is \"%3\""_s.arg(name, expected, Variable::textOf(value));
}

QString PreviewScript::shot(const QString &name, const QString &)
{
    return m_shoot(name) ? QString() : u"The picture \"%1\" cannot be written."_s.arg(name);
}

} // namespace Halvane::Corvex::Preview
