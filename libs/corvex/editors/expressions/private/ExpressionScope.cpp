// SPDX-License-Identifier: MIT
#include "corvex/editors/expressions/private/ExpressionScope.h"

#include "corvex/common/LocalizationHelper.h"
#include "corvex/core/QmlBinding.h"
#include "corvex/core/properties/ExpressionProperties.h"
#include "corvex/editing/words/Suggestion.h"
#include "corvex/project/Project.h"
#include "corvex/project/Screen.h"
#include "corvex/project/elements/Element.h"
#include "corvex/values/expressions/ExpressionRules.h"
#include "corvex/values/expressions/ValueCode.h"
#include "corvex/values/text/ObjectPath.h"
#include "corvex/values/text/PairList.h"
#include "corvex/variables/ProjectVariable.h"

#include <algorithm>
#include <utility>

using namespace Qt::StringLiterals;

namespace Halvane::Corvex::Designer {

namespace {

using Common::LocalizationHelper;
using Info = GeneralDataInfo;

constexpr quint32 bit(Info::DataType type)
{
    return 1U << type;
}

//! A word for types, in signatures and for users.
struct TypeWord
{
    QLatin1StringView word;
    quint32 types;
};

constexpr TypeWord typeWords[] = {
    {"boolean"_L1, bit(Info::BooleanData)},
    {"number"_L1, bit(Info::IntegerData) | bit(Info::FloatData) | bit(Info::NumberData)},
    {"text"_L1, bit(Info::StringData)},
    {"color"_L1, bit(Info::ColorData)},
    {"log"_L1, bit(Info::LogData)},
    {"device"_L1, bit(Info::DeviceData)},
    {"reference"_L1, bit(Info::ReferenceData)},
};

//! The word for the results of an expression.
QLatin1StringView resultWord(const ExpressionPurpose &purpose)
{
    if (purpose.isColor) {
        return "color"_L1;
    }
    switch (purpose.kind) {
    case GeneralDataList::BoolExpression:
        return "boolean"_L1;
    case GeneralDataList::MathExpression:
        return "number"_L1;
    case GeneralDataList::StringExpression:
        return "text"_L1;
    default:
        return {};
    }
}

//! The value of a property that only the device has, such as "width" of a size: what the code of the element
//! sets it to, if that is a number or a truth value.
QString boundValue(const DesignerObject &element, const QString &id)
{
    for (const SharedProperty &property : element.properties()) {
        const QmlBindings bindings =
            property->isList() || property->isObject() ? QmlBindings() : property->qmlBindings();
        for (const QmlBinding &binding : bindings) {
            bool isNumber = false;
            binding.code.toDouble(&isNumber);
            if (binding.name == id && (isNumber || binding.code == "true"_L1 || binding.code == "false"_L1)) {
                return binding.code;
            }
        }
    }
    return {};
}

} // namespace

ExpressionScope::ExpressionScope(const SharedProperty &property)
    : m_property(property)
    , m_owner(property ? property->parentObject() : nullptr)
    , m_hasRules(property && property->references() == Form::Expressions)
{ }

ExpressionScope::ExpressionScope(const SharedProperty &property, const ExpressionPurpose &purpose)
    : m_property(property)
    , m_owner(property ? property->parentObject() : nullptr)
    , m_purpose(purpose)
{ }

bool ExpressionScope::isValid() const
{
    return m_owner && m_owner->project();
}

ProjectNames ExpressionScope::names() const
{
    return ProjectNames(*m_owner->project(), m_owner->screen());
}

ExpressionPurpose ExpressionScope::purposeOf(const GeneralDataList &terms) const
{
    if (m_purpose) {
        return *m_purpose;
    }
    const auto *typed = propertyCast<GeneralDataListProperty>(m_property);
    return typed ? typed->purpose(terms) : ExpressionPurpose();
}

ExpressionScope::Reading ExpressionScope::read(const QString &text) const
{
    if (!isValid()) {
        return {{},
                {},
                ExpressionText::Error{
                    0, 0, LocalizationHelper::coreString(u"The object is not in a project."_s), {}}};
    }
    if (m_hasRules) {
        const ExpressionText::RuleReading reading = ExpressionText::readRules(text, names());
        return {{}, reading.error ? QString() : reading.rules.toString(), reading.error};
    }
    ExpressionPurpose purpose = purposeOf({});
    ExpressionText::Reading reading = ExpressionText::read(text, purpose, names());
    // Only the terms tell what a color is made of.
    if (purpose = purposeOf(reading.terms); reading.error && purpose.kind != purposeOf({}).kind) {
        reading = ExpressionText::read(text, purpose, names());
    }
    return {reading.terms, reading.error ? QString() : reading.terms.toString(), reading.error};
}

QString ExpressionScope::print(const QString &stored) const
{
    bool ok = false;
    if (!isValid()) {
        return {};
    }
    if (m_hasRules) {
        const PairList rules(stored, &ok);
        return ok ? ExpressionText::printRules(rules, names()) : QString();
    }
    const GeneralDataList terms(stored, &ok);
    return !ok               ? QString()
           : terms.isEmpty() ? u""_s
                             : ExpressionText::print(terms, purposeOf(terms), names());
}

qsizetype ExpressionScope::firstUnreadable(const GeneralDataList &terms) const
{
    // On its own, a term of a list has a readable form in any order.
    constexpr ExpressionPurpose list{GeneralDataList::GeneralExpression, Info::RawOutput, true};
    for (qsizetype i = 0; i < terms.count(); ++i) {
        const Info &term = terms.at(i);
        const bool isOperator =
            term.valueType() == Info::OperatorValue || term.valueType() == Info::FunctionValue;
        const bool isReadable = isOperator
                                    ? ExpressionRules::allowsValue(ExpressionRules::Kind::Math, term)
                                          || ExpressionRules::allowsValue(ExpressionRules::Kind::Bool, term)
                                          || ExpressionRules::allowsValue(ExpressionRules::Kind::String, term)
                                    : !ExpressionText::print(GeneralDataList({term}), list, names()).isNull();
        if (!isReadable) {
            return i;
        }
    }
    return -1;
}

QString ExpressionScope::codeOf(const GeneralDataList &terms) const
{
    const ExpressionPurpose purpose = purposeOf(terms);
    if (purpose.isTermList) {
        QStringList codes;
        for (const Info &term : terms) {
            codes.append(term.toQmlString(Info::RawOutput));
        }
        return codes.join(u'\n');
    }
    return purpose.isAssignment() ? terms.toQmlString(purpose.output, purpose.kind)
                                  : ValueCode::of(terms, purpose);
}

ExpressionScope::Part ExpressionScope::readPart(const QString &text) const
{
    if (!isValid()) {
        return {};
    }
    // A single name has its own type.
    constexpr ExpressionPurpose general{GeneralDataList::GeneralExpression};
    const ExpressionText::Reading single = ExpressionText::read(text, general, names());
    if (!single.error && single.terms.count() == 1) {
        return {single.terms, general};
    }
    const Reading whole = m_hasRules || text.trimmed().isEmpty() ? Reading() : read(text);
    if (!whole.error && !whole.terms.isEmpty()) {
        return {whole.terms, purposeOf(whole.terms)};
    }
    static constexpr ExpressionPurpose others[] = {
        {GeneralDataList::BoolExpression},
        {GeneralDataList::MathExpression, Info::NumberOutput},
        {GeneralDataList::StringExpression, Info::StringOutput},
        {GeneralDataList::GeneralExpression},
    };
    for (const ExpressionPurpose &purpose : others) {
        const ExpressionText::Reading reading = ExpressionText::read(text, purpose, names());
        if (!reading.error && !reading.terms.isEmpty()) {
            return {reading.terms, purpose};
        }
    }
    return {};
}

QString ExpressionScope::suggestionFor(const ExpressionText::Error &error) const
{
    return error.unknownName.isEmpty() || !isValid()
               ? QString()
               : Suggestion::nearest(error.unknownName, names().candidates(error.unknownName));
}

std::optional<GeneralDataInfo> ExpressionScope::find(const QString &path) const
{
    return isValid() ? names().find(path) : std::nullopt;
}

const DesignerObject *ExpressionScope::elementNamed(const QString &path) const
{
    if (!isValid()) {
        return nullptr;
    }
    if (const Screen *screen = m_owner->screen()) {
        const QString prefix = screen->getIdName() + u'.';
        const Element *element = screen->getElement(path);
        return element || !path.startsWith(prefix) ? element : screen->getElement(path.sliced(prefix.size()));
    }
    const QString first = ObjectPath::firstSegment(path).toString();
    const DesignerObject *screen = m_owner->project()->screens()->getListItem(first);
    return screen && first != path
               ? static_cast<const Screen *>(screen)->getElement(path.sliced(first.size() + 1))
               : nullptr;
}

LiveValues *ExpressionScope::liveValues() const
{
    return isValid() ? &LiveValues::of(*m_owner->project()) : nullptr;
}

QString ExpressionScope::liveNameOf(const GeneralDataInfo &term) const
{
    if (term.valueType() != Info::ObjectValue) {
        return term.valueType() == Info::VariableValue ? term.value() : QString();
    }
    const DesignerObject *element = elementNamed(term.objectName());
    const Screen *screen = element ? element->screen() : nullptr;
    return screen ? u"%1.%2.%3"_s.arg(screen->getIdName(), element->getIdName(),
                                      ObjectPath::lastSegment(term.value()))
                  : QString();
}

std::optional<QString> ExpressionScope::liveValueOf(const GeneralDataInfo &term) const
{
    const LiveValues *values = liveValues();
    const QString name = values && values->hasReader() ? liveNameOf(term) : QString();
    return name.isEmpty() ? std::nullopt : values->valueOf(name);
}

QString ExpressionScope::valueOf(const GeneralDataInfo &term) const
{
    if (!isValid()) {
        return {};
    }
    if (const std::optional<QString> live = liveValueOf(term)) {
        return *live;
    }
    if (term.valueType() == Info::VariableValue) {
        const DesignerObject *item = m_owner->project()->variables()->getListItem(term.value());
        const auto *variable = static_cast<const ProjectVariable *>(item);
        return variable && variable->value() ? variable->value()->valueString() : QString();
    }
    const DesignerObject *element =
        term.valueType() == Info::ObjectValue ? elementNamed(term.objectName()) : nullptr;
    const QString id = ObjectPath::lastSegment(term.value()).toString();
    const SharedProperty property = element ? element->getProperty(id) : SharedProperty();
    return property ? property->valueString() : element ? boundValue(*element, id) : QString();
}

QString ExpressionScope::nameOf(GeneralDataInfo::DataType type)
{
    const auto *row = std::ranges::find_if(
        typeWords, [type](const TypeWord &known) { return (known.types & bit(type)) != 0; });
    return row == std::end(typeWords) ? QString() : LocalizationHelper::coreString(row->word);
}

quint32 ExpressionScope::typesNamed(const QString &word)
{
    const auto *row = std::ranges::find(typeWords, word, &TypeWord::word);
    return row == std::end(typeWords) ? allTypes : row->types;
}

QString ExpressionScope::typeOf(const ExpressionPurpose &purpose, const GeneralDataList &terms)
{
    const QLatin1StringView word = resultWord(purpose);
    if (terms.count() == 1 && (word.isEmpty() || purpose.isTermList)) {
        return nameOf(terms.at(0).dataType());
    }
    return word.isEmpty() ? QString() : LocalizationHelper::coreString(word);
}

quint32 ExpressionScope::resultTypes() const
{
    return m_hasRules ? typesNamed(u"boolean"_s) : typesNamed(resultWord(purposeOf({})));
}

} // namespace Halvane::Corvex::Designer
