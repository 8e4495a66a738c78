// SPDX-License-Identifier: MIT
#pragma once

#include <QJSValue>
#include <QObject>
#include <QVariant>

#include <functional>

namespace Halvane::Corvex::Preview {

class Panel;
class Variable;

//! Provides the object "qmlViewer", whose functions generated code calls, to the engine of a panel. viewer.js
//! implements the functions; this object does what a script cannot.
class Viewer : public QObject
{
    Q_OBJECT

public:
    //! \a locate returns the element at a line of a file.
    Viewer(Panel &panel, std::function<QString(const QString &file, int line)> locate);

    Q_INVOKABLE void report(const QString &message, const QString &stack);
    Q_INVOKABLE bool setVariable(const QString &name, const QVariant &value);
    Q_INVOKABLE QString text(const QVariant &value) const;
    // Undefined if the value does not fit the type.
    Q_INVOKABLE QJSValue converted(const QVariant &value, int type) const;
    Q_INVOKABLE QJSValue color(const QVariant &name) const;

    Q_INVOKABLE double logValue(const QString &name, int index) const;
    Q_INVOKABLE int logCount(const QString &name) const;
    Q_INVOKABLE double logMaximum(const QString &name) const;
    Q_INVOKABLE double logMinimum(const QString &name) const;
    Q_INVOKABLE double logAverage(const QString &name) const;

private:
    void show(Variable *variable);
    QJSValue toScript(const QVariant &value) const;

    Panel &m_panel;
    std::function<QString(const QString &, int)> m_locate;
    QJSValue m_cells;
    QJSValue m_logs;
};

} // namespace Halvane::Corvex::Preview
