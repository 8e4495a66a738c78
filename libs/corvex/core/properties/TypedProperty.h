// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/core/DesignerProperty.h"
#include "corvex/core/QmlText.h"
#include "corvex/core/properties/FormText.h"
#include "corvex/core/properties/QmlForm.h"
#include "corvex/core/properties/TextForm.h"

#include <array>
#include <optional>

namespace Halvane::Corvex::Designer {

//! The value of a text that a form prints for an empty value but does not read itself.
template<class Value>
struct EmptyForm
{
    static std::optional<Value> parse(const QString &text)
    {
        // The texts of all empty values are this short; longer ones need no check.
        const bool isEmpty = text.size() <= 1 && text == TextForm<Value>::print(Value());
        return isEmpty ? std::optional(Value()) : std::nullopt;
    }
};

/*! The base of all properties with a value of the C++ type \a Value: the value, its text by TextForm<Value>
    and its QML by QmlForm<Value>.

    A text that cannot be read counts as equal to every value, so that setting it changes nothing. The text of
    an empty value ("" or "]") is read as the empty value even if the form itself refuses it, so that an undo
    can always return to empty.
*/
template<class Value>
class TypedProperty : public DesignerProperty
{
public:
    //! With the default editor and no flags.
    TypedProperty(DesignerObject *parent, const QString &id, const QString &name, const Value &initialValue)
        : DesignerProperty(parent, id, name)
        , m_value(initialValue)
    {
        if constexpr (ReferencesIn<Value> != Form::None) {
            setReferences(ReferencesIn<Value>);
        }
    }

    const Value &value() const { return m_value; }

    bool convertToValue(const QString &text) override
    {
        const std::optional<Value> &parsed = parse(text);
        if (!parsed) {
            return false;
        }
        setValue(*parsed);
        return true;
    }

    QString convertToValueString() const override { return TextForm<Value>::print(m_value); }

    // Final: override convertToBindings() instead, which objects, states and checks use.
    QString convertToQml(int indent) const final { return QmlText::print(convertToBindings(), indent); }

    QmlBindings convertToBindings() const override { return QmlForm<Value>::bindings(*this, m_value); }

    bool valueIsEqual(const QString &text) const override
    {
        const std::optional<Value> &parsed = parse(text);
        // Values that compare as equal may have different texts: 0 and -0.
        return !parsed
               || (*parsed == m_value && TextForm<Value>::print(*parsed) == TextForm<Value>::print(m_value));
    }

    bool validateValue(QString &) const override { return true; }

protected:
    TypedProperty(DesignerObject *parent, const QString &id, const QString &name, const Value &initialValue,
                  PropertyFlags flags, const char *editor = nullptr)
        : TypedProperty(parent, id, name, initialValue)
    {
        setFlags(flags);
        if (editor) {
            setEditor(QString::fromLatin1(editor));
        }
    }

    TypedProperty(DesignerObject *parent, const TypedProperty &prototype)
        : DesignerProperty(parent, prototype)
        , m_value(prototype.m_value)
    {
        setInitial(true);
    }

    double number() const override
    {
        if constexpr (std::is_same_v<Value, int> || std::is_same_v<Value, double>) {
            return m_value;
        } else {
            return DesignerProperty::number();
        }
    }

    bool hasPlainForm() const override { return WritesPlainQml<Value>; }

    QString formText() const override
    {
        if constexpr (FormText::HasForm<Value>) {
            return FormText::of(m_value);
        } else {
            return DesignerProperty::formText();
        }
    }

    // Does not use the text, which is rounded, and which an invalid value may not even have.
    bool tryValue(const QString &text, Outcome &outcome) override
    {
        std::optional<Value> value = parse(text);
        if (!value) {
            return false;
        }
        std::swap(m_value, *value);
        outcome = findOutcome();
        m_value = *std::move(value);
        return true;
    }

    void setValue(const Value &value)
    {
        m_value = value;
        setInitial(false);
    }

private:
    struct Parsed
    {
        QString text;
        std::optional<Value> value;
    };

    //! The parsed \a text, valid until the next call for a property of this type. A change looks at its text
    //! several times: to compare it, to validate it and to store it. A file contains the same few texts again
    //! and again, and its reader shares them. Only the first look parses.
    const std::optional<Value> &parse(const QString &text) const
    {
        static thread_local std::array<Parsed, 32> memory;
        const auto address = reinterpret_cast<quintptr>(text.constData());
        Parsed &known = memory[((address >> 4) ^ (address >> 10)) % memory.size()];
        const bool isKnown = known.text.constData() == text.constData() && known.text.size() == text.size();
        if (ReadsBesideCurrent<Value> || text.isEmpty() || !isKnown) {
            known.value = parseUncached(text);
            // A text without a capacity refers to foreign memory, which may change. Long texts would waste
            // memory.
            constexpr qsizetype longest = 512;
            known.text = text.capacity() > 0 && text.size() <= longest ? text : QString();
        }
        return known.value;
    }

    std::optional<Value> parseUncached(const QString &text) const
    {
        bool ok = false;
        if constexpr (ReadsBesideCurrent<Value>) {
            const Value value = TextForm<Value>::parse(text, m_value, &ok);
            return ok ? std::optional(value) : std::nullopt;
        } else if constexpr (SharesTexts<Value>) {
            Value value = TextForm<Value>::parseLike(text, m_value, &ok);
            return ok ? std::optional(std::move(value)) : EmptyForm<Value>::parse(text);
        } else {
            Value value = TextForm<Value>::parse(text, &ok);
            return ok ? std::optional(std::move(value)) : EmptyForm<Value>::parse(text);
        }
    }

    Value m_value;
};

} // namespace Halvane::Corvex::Designer
