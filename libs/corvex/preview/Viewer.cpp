// SPDX-License-Identifier: MIT
#include "corvex/preview/Viewer.h"

#include "corvex/preview/Panel.h"

#include <QFile>
#include <QRegularExpression>

using namespace Qt::StringLiterals;

namespace Halvane::Corvex::Preview {

namespace {

QJSValue shared(QJSEngine &engine, QObject *object)
{
    QJSEngine::setObjectOwnership(object, QJSEngine::CppOwnership);
    return engine.newQObject(object);
}

} // namespace

Viewer::Viewer(Panel &panel, std::function<QString(const QString &, int)> locate)
    : QObject(&panel)
    , m_panel(panel)
    , m_locate(std::move(locate))
{
    QQmlEngine &engine = panel.engine();
    // An object without a prototype, so that variables may have any name.
    m_cells = engine.evaluate(u"Object.create(null)"_s);
    m_logs = engine.evaluate(u"Object.create(null)"_s);
    QFile file(u":/corvex/preview/qml/viewer.js"_s);
    const bool isOpen = file.open(QIODevice::ReadOnly);
    Q_ASSERT(isOpen);
    const QJSValue makeViewer = engine.evaluate(QString::fromUtf8(file.readAll()), u"viewer.js"_s);
    const QJSValue viewer = makeViewer.call({m_cells, m_logs, shared(engine, this)});
    engine.globalObject().setProperty(u"qmlViewer"_s, viewer);
    for (Variable *variable : panel.variables().variables()) {
        show(variable);
    }
    connect(&panel.variables(), &VariableStore::added, this, &Viewer::show);
}

void Viewer::show(Variable *variable)
{
    m_cells.setProperty(variable->name(), shared(m_panel.engine(), variable));
    if (DataLog *log = m_panel.variables().logOf(variable->name())) {
        m_logs.setProperty(variable->name(), shared(m_panel.engine(), log));
    }
}

void Viewer::report(const QString &message, const QString &stack)
{
    // A stack line is "function@file:///path/qml_Main.qml:12".
    static const QRegularExpression place(u"@([^\\n]*qml_[^\\n/]*\\.qml):(-?\\d+)"_s);
    const QRegularExpressionMatch match = place.match(stack);
    m_panel.problems().report(
        match.hasMatch() ? m_locate(match.captured(1), match.captured(2).toInt()) : QString(), message);
}

bool Viewer::setVariable(const QString &name, const QVariant &value)
{
    Variable *variable = m_panel.variables().find(name);
    return variable && variable->setValue(value);
}

QString Viewer::text(const QVariant &value) const
{
    return Variable::textOf(value);
}

QJSValue Viewer::toScript(const QVariant &value) const
{
    return value.isValid() ? m_panel.engine().toScriptValue(value) : QJSValue();
}

QJSValue Viewer::converted(const QVariant &value, int type) const
{
    return toScript(Variable::converted(value, Variable::Type(type)));
}

QJSValue Viewer::color(const QVariant &name) const
{
    return converted(name, Common::EnumHelper::ColorVariable);
}

double Viewer::logValue(const QString &name, int index) const
{
    return m_panel.variables().logOf(name)->valueAt(index);
}

int Viewer::logCount(const QString &name) const
{
    return int(m_panel.variables().logOf(name)->count());
}

double Viewer::logMaximum(const QString &name) const
{
    return m_panel.variables().logOf(name)->maximum();
}

double Viewer::logMinimum(const QString &name) const
{
    return m_panel.variables().logOf(name)->minimum();
}

double Viewer::logAverage(const QString &name) const
{
    return m_panel.variables().logOf(name)->average();
}

} // namespace Halvane::Corvex::Preview
