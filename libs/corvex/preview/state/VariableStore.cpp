// SPDX-License-Identifier: MIT
#include "corvex/preview/state/VariableStore.h"

namespace Halvane::Corvex::Preview {

Variable *VariableStore::add(const QString &name, Variable::Type type, bool isPersistent)
{
    if (m_byName.contains(name)) {
        return nullptr;
    }
    auto *variable = new Variable(name, type, isPersistent, this);
    m_byName.insert(name, variable);
    m_variables.append(variable);
    connect(variable, &Variable::valueChanged, this, [this, variable] { emit changed(variable); });
    emit added(variable);
    return variable;
}

void VariableStore::addLog(const QString &name)
{
    if (!m_byName.contains(name)) {
        m_logs.insert(name, new DataLog(this));
        add(name, Common::EnumHelper::LogVariable, false);
    }
}

} // namespace Halvane::Corvex::Preview
