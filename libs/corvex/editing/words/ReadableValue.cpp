// SPDX-License-Identifier: MIT
#include "corvex/editing/words/ReadableValue.h"

#include "corvex/common/LocalizationHelper.h"
#include "corvex/core/properties/BorderProperty.h"
#include "corvex/core/properties/ColorProperties.h"
#include "corvex/core/properties/ExpressionProperties.h"
#include "corvex/core/properties/FontProperty.h"
#include "corvex/core/properties/LinkProperty.h"
#include "corvex/core/properties/RangeProperty.h"
#include "corvex/core/properties/ShapeProperties.h"
#include "corvex/editing/words/Suggestion.h"
#include "corvex/editing/words/private/SettingText.h"
#include "corvex/project/Project.h"
#include "corvex/project/ProjectNames.h"
#include "corvex/project/Screen.h"
#include "corvex/project/elements/Element.h"
#include "corvex/values/text/ReadableText.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace Halvane::Corvex::Designer {

namespace {

using Common::LocalizationHelper;
using Reading = ReadableValue::Reading;

ProjectNames namesFor(const DesignerProperty &property)
{
    const DesignerObject *owner = property.parentObject();
    return ProjectNames(*owner->project(), owner->screen());
}

//! The error with its place and the nearest name.
QString described(const ExpressionText::Error &error, const QString &text, const ProjectNames &names)
{
    const QString place =
        error.length > 0
            ? LocalizationHelper::coreString(u"At \"%1\": "_s).arg(text.sliced(error.position, error.length))
            : LocalizationHelper::coreString(u"At the end: "_s);
    const QString near = error.unknownName.isEmpty()
                             ? QString()
                             : Suggestion::nearest(error.unknownName, names.candidates(error.unknownName));
    const QString advice =
        near.isEmpty() ? QString() : LocalizationHelper::coreString(u" Did you mean \"%1\"?"_s).arg(near);
    return place + error.message + advice;
}

Reading readExpression(const DesignerProperty &property, const QString &text)
{
    if (text.trimmed() == "\"\""_L1) {
        return {u""_s, {}}; // no expression, as for any other kind of value
    }
    const auto &typed = static_cast<const GeneralDataListProperty &>(property);
    const ProjectNames names = namesFor(property);
    const auto readFor = [&](const GeneralDataList &terms) {
        return ExpressionText::read(text, typed.purpose(terms), names);
    };
    ExpressionText::Reading reading = readFor({});
    // Only the terms tell what a color is made of.
    if (reading.error && typed.purpose(reading.terms).kind != typed.purpose({}).kind) {
        reading = readFor(reading.terms);
    }
    return reading.error ? Reading{{}, described(*reading.error, text, names)}
                         : Reading{reading.terms.toString(), {}};
}

QString printExpression(const DesignerProperty &property, const QString &stored)
{
    bool ok = false;
    const GeneralDataList terms(stored, &ok);
    const auto &typed = static_cast<const GeneralDataListProperty &>(property);
    return ok ? ExpressionText::print(terms, typed.purpose(terms), namesFor(property)) : QString();
}

Reading readRules(const DesignerProperty &property, const QString &text)
{
    const ProjectNames names = namesFor(property);
    const ExpressionText::RuleReading reading = ExpressionText::readRules(text, names);
    return reading.error ? Reading{{}, described(*reading.error, text, names)}
                         : Reading{reading.rules.toString(), {}};
}

QString printRules(const DesignerProperty &property, const QString &stored)
{
    bool ok = false;
    const PairList rules(stored, &ok);
    return ok ? ExpressionText::printRules(rules, namesFor(property)) : QString();
}

Reading readLink(const DesignerProperty &property, const QString &text)
{
    const auto &link = static_cast<const LinkProperty &>(property);
    ObjectLinkInfo changed = link.checked(link.value());
    changed.setObjectId(text.trimmed());
    return {changed.toString(), {}};
}

QString printLink(const DesignerProperty &, const QString &stored)
{
    return ObjectLinkInfo(stored).objectId();
}

//! The property that a state sets; null if the screen has no such element or property.
SharedProperty targetOf(const DesignerProperty &property, const SettingText &setting)
{
    const Screen *screen = property.parentObject()->screen();
    const Element *element = screen ? screen->getElement(setting.element) : nullptr;
    return element ? element->getProperty(setting.property) : SharedProperty();
}

//! Reduces a path that begins with the screen to the name of the element.
void leaveScreen(const DesignerProperty &property, SettingText &setting)
{
    const Screen *screen = property.parentObject()->screen();
    const QString prefix = screen ? screen->getIdName() + u'.' : QString();
    if (screen && setting.element.startsWith(prefix) && !screen->hasElement(setting.element)) {
        setting.element.remove(0, prefix.size());
    }
}

//! The settings, each with the stored form of its value.
std::optional<QList<SettingText>> readSettings(const DesignerProperty &property, const QString &text,
                                               QString &error)
{
    std::optional<QList<SettingText>> settings = SettingText::read(text);
    if (!settings) {
        error = LocalizationHelper::coreString(
            u"Values have the form \"{ element.property: value; element.property: value }\"."_s);
        return {};
    }
    for (SettingText &setting : *settings) {
        leaveScreen(property, setting);
        const SharedProperty target = targetOf(property, setting);
        if (!target) {
            const QString path = setting.element + u'.' + setting.property;
            error = Suggestion::unknown(u"property"_s, path, namesFor(property).candidates(path), {});
            return {};
        }
        if (!propertyCast<GeneralDataListProperty>(target)) {
            setting.value = SettingText::unquoted(setting.value); // in an expression, quotes make a text
        }
        const Reading value = ReadableValue::read(*target, setting.value);
        if (!value.error.isEmpty()) {
            error = u"%1.%2: %3"_s.arg(setting.element, setting.property, value.error);
            return {};
        }
        setting.value = value.stored;
    }
    return settings;
}

QString printSettings(const DesignerProperty &property, QList<SettingText> settings)
{
    for (SettingText &setting : settings) {
        const SharedProperty target = targetOf(property, setting);
        const bool isExpression = target && propertyCast<GeneralDataListProperty>(target);
        const QString value = target ? ReadableValue::print(*target, setting.value) : setting.value;
        setting.value = isExpression && !value.isEmpty() ? value : SettingText::quoted(value);
    }
    return SettingText::print(settings);
}

Reading readStates(const DesignerProperty &property, const QString &text)
{
    Reading reading;
    const auto settings = readSettings(property, text, reading.error);
    if (!settings) {
        return reading;
    }
    // Settings of one element in a row are one update.
    UpdateObjectList updates;
    for (auto setting = settings->cbegin(); setting != settings->cend();) {
        UpdateObjectInfo update;
        PropertyInfoList values;
        update.setName(setting->element);
        for (; setting != settings->cend() && setting->element == update.name(); ++setting) {
            values.append(PropertyInfo(setting->property, setting->value));
        }
        update.setPropertyValues(values);
        updates.append(update);
    }
    reading.stored = updates.toString();
    return reading;
}

QString printStates(const DesignerProperty &property, const QString &stored)
{
    QList<SettingText> settings;
    for (const UpdateObjectInfo &update : UpdateObjectList(stored)) {
        for (const PropertyInfo &value : update.propertyValues()) {
            settings.append({update.name(), value.propName(), value.propValue()});
        }
    }
    return printSettings(property, settings);
}

Reading readChanges(const DesignerProperty &property, const QString &text)
{
    Reading reading;
    const auto settings = readSettings(property, text, reading.error);
    if (settings) {
        PropertyList changes;
        for (const auto &[element, id, value] : *settings) {
            changes.append(PropertyChangeInfo(element, id, value));
        }
        reading.stored = changes.toString();
    }
    return reading;
}

QString printChanges(const DesignerProperty &property, const QString &stored)
{
    QList<SettingText> settings;
    for (const PropertyChangeInfo &change : PropertyList(stored)) {
        settings.append({change.elementName(), change.propertyName(), change.valueString()});
    }
    return printSettings(property, settings);
}

template<QString (*convert)(const QString &)>
Reading readShort(const DesignerProperty &, const QString &text)
{
    const QString stored = convert(text);
    return {stored.isNull() ? text : stored, {}};
}

template<QString (*convert)(const QString &)>
QString printShort(const DesignerProperty &, const QString &stored)
{
    return convert(stored);
}

template<class Kind>
bool isOfKind(const DesignerProperty &property)
{
    return propertyCast<Kind>(&property);
}

bool hasRules(const DesignerProperty &property)
{
    return property.references() == Form::Expressions;
}

bool isExpressionStored(const QString &text)
{
    return text.isEmpty() || ExpressionText::isStored(text);
}

bool isLinkStored(const QString &text)
{
    bool ok = false;
    const ObjectLinkInfo link(text, &ok);
    return ok;
}

bool isGroupStored(const QString &text)
{
    return !text.startsWith(u'{');
}

bool areRulesStored(const QString &text)
{
    return isExpressionStored(text) || text.startsWith(u'|') || text.startsWith(u',');
}

bool isNeverStored(const QString &)
{
    return false;
}

//! A kind of property with its readable form.
struct ReadableForm
{
    bool (*isIts)(const DesignerProperty &property);
    bool (*isStored)(const QString &text); //!< whether the text is in the stored form
    Reading (*read)(const DesignerProperty &property, const QString &text);
    QString (*print)(const DesignerProperty &property, const QString &stored); //!< null: has no readable form
};

constexpr ReadableForm forms[] = {
    {&isOfKind<GeneralDataListProperty>, &isExpressionStored, &readExpression, &printExpression},
    {&hasRules, &areRulesStored, &readRules, &printRules},
    {&isOfKind<LinkProperty>, &isLinkStored, &readLink, &printLink},
    {&isOfKind<UpdateObjectListProperty>, &isGroupStored, &readStates, &printStates},
    {&isOfKind<PropertyChangeListProperty>, &isGroupStored, &readChanges, &printChanges},
    {&isOfKind<SizeProperty>, &isNeverStored, &readShort<ReadableText::toSize>,
     &printShort<ReadableText::fromSize>},
    {&isOfKind<PointProperty>, &isNeverStored, &readShort<ReadableText::toPoint>,
     &printShort<ReadableText::fromPoint>},
    {&isOfKind<RangeProperty>, &isNeverStored, &readShort<ReadableText::toRange>,
     &printShort<ReadableText::fromRange>},
    {&isOfKind<BorderProperty>, &isNeverStored, &readShort<ReadableText::toBorder>,
     &printShort<ReadableText::fromBorder>},
    {&isOfKind<ColorProperty>, &isNeverStored, &readShort<ReadableText::toColor>,
     &printShort<ReadableText::fromColor>},
    {&isOfKind<FontProperty>, &isNeverStored, &readShort<ReadableText::toFont>,
     &printShort<ReadableText::fromFont>},
};

//! Null if values of the kind are only written as they are stored.
const ReadableForm *formOf(const DesignerProperty &property)
{
    const auto *form =
        std::ranges::find_if(forms, [&property](const ReadableForm &row) { return row.isIts(property); });
    return form == std::end(forms) || !property.parentObject()->project() ? nullptr : form;
}

} // namespace

Reading ReadableValue::read(const DesignerProperty &property, const QString &text)
{
    const ReadableForm *form = formOf(property);
    return form && !form->isStored(text) ? form->read(property, text) : Reading{text, {}};
}

QString ReadableValue::print(const DesignerProperty &property, const QString &stored)
{
    const ReadableForm *form = formOf(property);
    const QString text = form && !stored.isEmpty() ? form->print(property, stored) : QString();
    if (text.isNull() || form->isStored(text)) {
        return stored;
    }
    const Reading again = form->read(property, text);
    return again.error.isEmpty() && again.stored == stored ? text : stored;
}

} // namespace Halvane::Corvex::Designer
