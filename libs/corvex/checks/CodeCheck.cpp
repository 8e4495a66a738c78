// SPDX-License-Identifier: MIT
#include "corvex/checks/CodeCheck.h"

#include "corvex/checks/PlainQml.h"
#include "corvex/core/DesignerObject.h"

using namespace Qt::StringLiterals;

namespace Halvane::Corvex::Designer {

namespace {

//! Texts that are read in one go.
constexpr qsizetype batchSize = 256;

//! The property that holds what the user wrote: an expression takes the place of the value that it gives.
const DesignerProperty &sourceOf(const DesignerProperty &property)
{
    const SharedProperty binding = property.parentObject()->getProperty(property.id() + u"Binding"_s);
    return binding && !binding->valueString().isEmpty() ? *binding : property;
}

} // namespace

bool CodeCheck::concerns(const DesignerProperty &property)
{
    const DesignerObject *owner = property.parentObject();
    const bool isOnScreen = owner->isKindOfClass(u"Element"_s) || owner->isKindOfClass(u"Screen"_s);
    if (!isOnScreen || !property.hasFlag(RuntimeFlag) || property.isList() || property.isObject()) {
        return false;
    }
    if (!property.writesPlainQml()) {
        return true;
    }
    // Its values are correct; that the language takes its name is to be seen once.
    if (property.isValid()) {
        add(property, property.toQml(0));
    }
    return false;
}

void CodeCheck::look(const DesignerProperty &property)
{
    // An invalid value has its own problem.
    const QString qml = property.isValid() ? property.toQml(0) : QString();
    if (!qml.isEmpty() && !isPlainQml(qml)) {
        add(property, qml);
    }
}

void CodeCheck::add(const DesignerProperty &property, const QString &qml)
{
    const auto known = m_numbers.constFind(qml);
    m_uses.append({&property, known == m_numbers.cend() ? m_numbers.size() : *known});
    if (known != m_numbers.cend()) {
        return;
    }
    m_numbers.insert(qml, m_numbers.size());
    m_pending.append(qml);
    if (m_pending.size() == batchSize) {
        readPending();
    }
}

void CodeCheck::readPending()
{
    const qsizetype first = m_numbers.size() - m_pending.size();
    m_reader.read(first, std::exchange(m_pending, {}));
}

void CodeCheck::finish(const Project &)
{
    readPending();
    const QHash<qsizetype, QString> errors = m_reader.errors();
    if (errors.isEmpty()) {
        return;
    }
    for (const auto &[property, text] : std::as_const(m_uses)) {
        if (const auto error = errors.constFind(text); error != errors.cend()) {
            report(sourceOf(*property), ProblemCode::CodeUnreadable, {*error});
        }
    }
}

} // namespace Halvane::Corvex::Designer
