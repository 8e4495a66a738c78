// SPDX-License-Identifier: MIT
#include "corvex/checks/private/rules/CodeCheck.h"

#include "corvex/checks/private/rules/CodeReader.h"
#include "corvex/checks/private/rules/PlainQml.h"
#include "corvex/core/DesignerObject.h"
#include "corvex/core/QmlText.h"

using namespace Qt::StringLiterals;

namespace Halvane::Corvex::Designer {

namespace {

QString textOf(const QmlBinding &binding)
{
    QString text;
    QmlText::append(text, binding, 0);
    return text;
}

//! Beyond this number the check forgets all shapes and parses them again.
constexpr qsizetype mostShapes = 20'000;

} // namespace

qsizetype CodeCheck::TextNumbers::of(const QString &text)
{
    const auto known = m_numbers.constFind(text);
    if (known != m_numbers.cend()) {
        return *known;
    }
    m_texts.append(text);
    return *m_numbers.insert(text, m_texts.size() - 1);
}

bool CodeCheck::concerns(const DesignerProperty &property)
{
    const DesignerObject *owner = property.parentObject();
    const bool isOnScreen = owner->isKindOfClass(u"Element"_s) || owner->isKindOfClass(u"Screen"_s);
    if (!isOnScreen || !property.hasFlag(RuntimeFlag) || property.isList() || property.isObject()) {
        return false;
    }
    // Plain values are always correct; their name must be checked only once.
    return !property.writesPlainQml() || !m_plainNames.contains(property.id());
}

void CodeCheck::look(const DesignerProperty &property)
{
    // An invalid value is reported separately.
    const bool isPlain = property.writesPlainQml();
    if (!property.isValid() || (isPlain && m_plainNames.contains(property.id()))) {
        return;
    }
    if (isPlain) {
        m_plainNames.insert(property.id());
    }
    int place = 0;
    for (const QmlBinding &binding : property.qmlBindings()) {
        if (isPlain || binding.name.isEmpty() || !isPlainCode(binding.code)) {
            const QString shape = qmlShape(textOf(binding));
            if (m_correctShapes.isEmpty() || !m_correctShapes.contains(digestOf(shape))) {
                m_uses.append({&property, m_shapes.of(shape), place, isPlain});
            }
        }
        ++place;
    }
}

void CodeCheck::join(Check &later)
{
    const auto &other = static_cast<const CodeCheck &>(later);
    QList<qsizetype> numbers;
    for (const QString &shape : other.m_shapes.texts()) {
        numbers.append(m_shapes.of(shape));
    }
    for (const auto &[property, shape, place, isPlain] : other.m_uses) {
        if (!isPlain || !m_plainNames.contains(property->id())) {
            m_uses.append({property, numbers.at(shape), place, isPlain});
        }
    }
    m_plainNames += other.m_plainNames;
}

void CodeCheck::finish(const Project &)
{
    const TextNumbers shapes = std::exchange(m_shapes, {});
    const QHash<qsizetype, QString> wrongShapes = CodeReader::errors(shapes.texts());
    if (m_correctShapes.size() + shapes.count() > mostShapes) {
        m_correctShapes.clear();
    }
    for (qsizetype shape = 0; shape < shapes.count(); ++shape) {
        if (!wrongShapes.contains(shape)) {
            m_correctShapes.insert(digestOf(shapes.texts().at(shape)));
        }
    }
    // Not every text of a wrong shape is wrong itself, so each is parsed for its own message.
    struct Suspect
    {
        const DesignerProperty *source;
        qsizetype text;
    };
    QList<Suspect> suspects;
    TextNumbers texts;
    for (const auto &[property, shape, place, isPlain] : std::exchange(m_uses, {})) {
        if (wrongShapes.contains(shape)) {
            // Check the next object with such a property, too, because it may be checked later.
            m_plainNames.remove(isPlain ? property->id() : QString());
            const QmlBindings bindings = property->qmlBindings();
            suspects.append({bindings.at(place).source, texts.of(textOf(bindings.at(place)))});
        }
    }
    const QHash<qsizetype, QString> messages = CodeReader::errors(texts.texts());
    const DesignerProperty *reported = nullptr; // the bindings of a property are adjacent
    for (const auto &[source, text] : std::as_const(suspects)) {
        if (source != reported && messages.contains(text)) {
            report(*source, ProblemCode::CodeUnreadable, {messages.value(text)});
            reported = source;
        }
    }
}

} // namespace Halvane::Corvex::Designer
