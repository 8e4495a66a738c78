// SPDX-License-Identifier: MIT
#include "corvex/checks/private/CodeCheck.h"

#include "corvex/checks/private/CodeReader.h"
#include "corvex/checks/private/PlainQml.h"
#include "corvex/core/DesignerObject.h"

using namespace Qt::StringLiterals;

namespace Halvane::Corvex::Designer {

namespace {

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
    // Plain values are always correct. Whether the language takes the name is to be seen once.
    return !property.writesPlainQml() || !m_plainNames.contains(property.id());
}

void CodeCheck::look(const DesignerProperty &property)
{
    // An invalid value has its own problem.
    const bool isPlain = property.writesPlainQml();
    if (!property.isValid() || (isPlain && m_plainNames.contains(property.id()))) {
        return;
    }
    if (isPlain) {
        m_plainNames.insert(property.id());
    }
    const QString qml = property.toQml(0);
    if (!qml.isEmpty() && (isPlain || !isPlainQml(qml))) {
        m_uses.append({&property, numberOf(qmlShape(qml)), isPlain});
    }
}

qsizetype CodeCheck::numberOf(const QString &shape)
{
    const auto known = m_numbers.constFind(shape);
    if (known != m_numbers.cend()) {
        return *known;
    }
    m_shapes.append(shape);
    return *m_numbers.insert(shape, m_shapes.size() - 1);
}

void CodeCheck::join(Check &later)
{
    const auto &other = static_cast<const CodeCheck &>(later);
    QList<qsizetype> numbers;
    for (const QString &shape : other.m_shapes) {
        numbers.append(numberOf(shape));
    }
    for (const auto &[property, shape, isPlain] : other.m_uses) {
        if (!isPlain || !m_plainNames.contains(property->id())) {
            m_uses.append({property, numbers.at(shape), isPlain});
        }
    }
    m_plainNames += other.m_plainNames;
}

void CodeCheck::finish(const Project &)
{
    const QHash<qsizetype, QString> wrongShapes = CodeReader::errors(m_shapes);
    if (wrongShapes.isEmpty()) {
        return;
    }
    // Not each text of a wrong shape has to be wrong. Each is read for its own message.
    QHash<QString, QString> messages;
    for (const auto &[property, shape, isPlain] : std::as_const(m_uses)) {
        if (wrongShapes.contains(shape)) {
            messages.insert(property->toQml(0), QString());
        }
    }
    const QStringList texts = messages.keys();
    messages.clear();
    for (const auto &[text, message] : CodeReader::errors(texts).asKeyValueRange()) {
        messages.insert(texts.at(text), message);
    }
    for (const auto &[property, shape, isPlain] : std::as_const(m_uses)) {
        const auto message =
            wrongShapes.contains(shape) ? messages.constFind(property->toQml(0)) : messages.cend();
        if (message != messages.cend()) {
            report(sourceOf(*property), ProblemCode::CodeUnreadable, {*message});
        }
    }
}

} // namespace Halvane::Corvex::Designer
