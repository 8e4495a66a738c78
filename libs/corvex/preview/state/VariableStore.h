// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/preview/state/DataLog.h"
#include "corvex/preview/state/Variable.h"

#include <QHash>
#include <QList>
#include <QObject>

namespace Halvane::Corvex::Preview {

//! All variables of a panel, and the points of the logs.
class VariableStore : public QObject
{
    Q_OBJECT

public:
    using QObject::QObject;

    //! Null if there is a variable with that name already.
    Variable *add(const QString &name, Variable::Type type, bool isPersistent);
    //! Adds a variable of type log, unless it exists; its points are logOf(name).
    void addLog(const QString &name);

    Variable *find(const QString &name) const { return m_byName.value(name); }
    DataLog *logOf(const QString &name) const { return m_logs.value(name); }
    //! In order of addition.
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
