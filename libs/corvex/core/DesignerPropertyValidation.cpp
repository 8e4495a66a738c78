// SPDX-License-Identifier: MIT
// Checks whether the value of a property, or a text for it, is valid.
#include "corvex/common/LocalizationHelper.h"
#include "corvex/core/DesignerObject.h"
#include "corvex/core/EditorView.h"
#include "corvex/core/private/DesignerPropertyState.h"
#include "corvex/core/properties/FormText.h"
#include "corvex/core/xml/XmlText.h"

using namespace Qt::StringLiterals;

namespace Halvane::Corvex::Designer {

namespace {

//! A message quotes at most this much of a text.
constexpr qsizetype longestQuote = 80;

} // namespace

QString DesignerProperty::errorString() const
{
    return m_hasState ? m_state->error : QString();
}

bool DesignerProperty::validate()
{
    setOutcome(findOutcome());
    return isValid();
}

DesignerProperty::Outcome DesignerProperty::findOutcome() const
{
    Outcome outcome;
    outcome.failure = findFailure(outcome.reason);
    if (outcome.failure == Failure::None) {
        outcome.reason.clear();
    }
    return outcome;
}

void DesignerProperty::setOutcome(const Outcome &outcome)
{
    const bool isChanged = outcome.failure != failure() || (!isValid() && outcome.reason != errorString());
    m_failure = quint8(outcome.failure);
    setErrorString(outcome.reason);
    if (EditorView *editor = editorWidget()) {
        editor->setErrorString(errorString());
    }
    if (isChanged) {
        announceValidity();
    }
}

//! The first step that fails. A step may disable validation, which skips the following ones.
DesignerProperty::Failure DesignerProperty::findFailure(QString &error) const
{
    const DesignerObject *parent = parentObject();
    const auto enabled = [parent] { return !parent || !parent->disabledValidation(); };
    // The callback accesses the model through the parent, which may be deleted before the property.
    if (parent && enabled() && descriptor().valueValidator && !descriptor().valueValidator(this, error)) {
        return Failure::Validator;
    }
    if (!enabled()) {
        return Failure::None;
    }
    if (isList() || isObject()) {
        const bool isGood = isList() ? validateListItems(error) : validateObjectValue(error);
        return isGood ? Failure::None : Failure::Children;
    }
    return !validateValue(error) ? Failure::Kind : isInRange(error) ? Failure::None : Failure::Range;
}

bool DesignerProperty::isInRange(QString &error) const
{
    // The value of a row is always in the range of the row.
    if (m_isInitial || descriptor().range.contains(number())) {
        return true;
    }
    const NumberRange &range = descriptor().range;
    error = Common::LocalizationHelper::coreString(range.choices.isEmpty() ? u"%1 takes numbers %2, not %3."_s
                                                                           : u"%1 takes %2, not %3."_s)
                .arg(id(), range.toString(), convertToValueString());
    return false;
}

double DesignerProperty::number() const
{
    return std::numeric_limits<double>::quiet_NaN();
}

bool DesignerProperty::canRead(const QString &text)
{
    Outcome outcome;
    return validateText(text, outcome);
}

QString DesignerProperty::refusalOf(const QString &text)
{
    if (const QString problem = XmlText::storageProblem(text); !problem.isEmpty()) {
        return problem;
    }
    Outcome outcome;
    const bool isRead = validateText(text, outcome);
    validate(); // A refused change may have left its reason; restore that of the value.
    if (isRead) {
        return outcome.reason;
    }
    return Common::LocalizationHelper::coreString(u"%1 takes %2, not \"%3\"."_s)
        .arg(id(), acceptedForm(), text.size() > longestQuote ? text.first(longestQuote) + u'\u2026' : text);
}

QString DesignerProperty::acceptedForm() const
{
    const NumberRange &range = descriptor().range;
    if (!range.choices.isEmpty()) {
        return range.toString();
    }
    const QString limits = range.toString();
    const QString unit = editorParameter(u"suffix"_s).toString().trimmed();
    const QString form = limits.isEmpty() ? formText() : u"%1 %2"_s.arg(formText(), limits);
    return unit.isEmpty() ? form : Common::LocalizationHelper::coreString(u"%1, in %2"_s).arg(form, unit);
}

QString DesignerProperty::formText() const
{
    const QString example = editorParameter(u"example"_s).toString();
    const QString initial = example.isEmpty() ? descriptor().initialText : example;
    return FormText::example(initial.isEmpty() ? convertToValueString() : initial);
}

bool DesignerProperty::validateText(const QString &text, Outcome &outcome)
{
    const bool wasInitial = m_isInitial;
    m_isInitial = false;
    const bool isRead = tryValue(text, outcome);
    m_isInitial = wasInitial;
    return isRead;
}

bool DesignerProperty::validateObjectValue(QString &error) const
{
    if (objectValue() && !objectValue()->isValid()) {
        error =
            Common::LocalizationHelper::coreString(u"One or more of the object's properties are invalid."_s);
        return false;
    }
    return true;
}

bool DesignerProperty::validateListItems(QString &error) const
{
    if (itemList() && itemList()->invalidCount > 0) {
        error = Common::LocalizationHelper::coreString(u"One or more of the list's items are invalid."_s);
        return false;
    }
    return true;
}

bool DesignerProperty::tryValue(const QString &text, Outcome &outcome)
{
    const QString held = convertToValueString();
    if (!convertToValue(text)) {
        return false;
    }
    outcome = findOutcome();
    convertToValue(held);
    return true;
}

void DesignerProperty::setErrorString(const QString &error)
{
    if (m_hasState) {
        m_state->error = error;
    } else if (!error.isEmpty()) {
        state().error = error;
    }
}

} // namespace Halvane::Corvex::Designer
