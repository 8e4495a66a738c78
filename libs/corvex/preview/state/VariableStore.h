// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/preview/state/DataLog.h"
#include "corvex/preview/state/Variable.h"

#include <QHash>
#include <QList>
#include <QObject>

namespace Halvane::Corvex::Preview {

//! All variables of a panel, and the points of those that are logs.
class VariableStore : public QObject
{
    Q_OBJECT

public:
    using QObject::QObject;

    //! Null when there is one of that name already.
    Variable *add(const QString &name, Variable::Type type, bool isPersistent);
    //! A variable of type log, made when there is none; its points are logOf(name).
    void addLog(const QString &name);

    Variable *find(const QString &name) const { return m_byName.value(name); }
    DataLog *logOf(const QString &name) const { return m_logs.value(name); }
    //! In the order in which they were added.
    const QList<Variable *> &variables() const { return m_variables; }

signals:
    void added(Variable *variable);
    void changed(Variable *variable);

private:
    QList<Variable *> m_variables;
    QHash<QString, Variable *> m_byName;
    QHash<QString, DataLog *> m_logs;
};

} // namespace Halvane::Corvex::Preview
