// SPDX-License-Identifier: MIT
#include "corvex/editing/words/ReadableValue.h"

#include "corvex/common/LocalizationHelper.h"
#include "corvex/core/properties/BorderProperty.h"
#include "corvex/core/properties/ColorProperties.h"
#include "corvex/core/properties/EnumProperty.h"
#include "corvex/core/properties/ExpressionProperties.h"
#include "corvex/core/properties/FontProperty.h"
#include "corvex/core/properties/IdentifierProperty.h"
#include "corvex/core/properties/LinkProperty.h"
#include "corvex/core/properties/RangeProperty.h"
#include "corvex/core/properties/ShapeProperties.h"
#include "corvex/core/properties/TransformOriginProperty.h"
#include "corvex/editing/words/Suggestion.h"
#include "corvex/editing/words/private/SettingText.h"
#include "corvex/project/Project.h"
#include "corvex/project/ProjectNames.h"
#include "corvex/project/Screen.h"
#include "corvex/project/elements/Element.h"
#include "corvex/project/elements/StateTarget.h"
#include "corvex/values/text/EnumWords.h"
#include "corvex/values/text/ReadableText.h"

#include <QMetaEnum>

#include <algorithm>
#include <type_traits>

using namespace Qt::StringLiterals;

namespace Halvane::Corvex::Designer {

namespace {

struct ReadableForm;

using Common::LocalizationHelper;
using Reading = ReadableValue::Reading;

//! A property, and the project whose names its value can contain.
struct Place
{
    const DesignerProperty &property;
    const Project &project;

    const Screen *screen() const { return property.parentObject()->screen(); }
    ProjectNames names() const { return ProjectNames(project, screen()); }
};

class NoNames : public ExpressionNames
{
public:
    std::optional<GeneralDataInfo> find(const QString &) const override { return {}; }
};

//! The error with its place and the nearest name.
QString described(const ExpressionText::Error &error, const QString &text, const ProjectNames *names)
{
    const QString place =
        error.length > 0
            ? LocalizationHelper::coreString(u"At \"%1\": "_s).arg(text.sliced(error.position, error.length))
            : LocalizationHelper::coreString(u"At the end: "_s);
    const QString near = error.unknownName.isEmpty() || !names
                             ? QString()
                             : Suggestion::nearest(error.unknownName, names->candidates(error.unknownName));
    const QString advice =
        near.isEmpty() ? QString() : LocalizationHelper::coreString(u" Did you mean \"%1\"?"_s).arg(near);
    return place + error.message + advice;
}

Reading readExpression(const Place &place, const QString &text)
{
    if (text.trimmed() == "\"\""_L1) {
        return {u""_s, {}}; // no expression, as for any other kind of value
    }
    const auto &typed = static_cast<const GeneralDataListProperty &>(place.property);
    const ProjectNames names = place.names();
    const auto readFor = [&](const GeneralDataList &terms) {
        return ExpressionText::read(text, typed.purpose(terms), names);
    };
    ExpressionText::Reading reading = readFor({});
    // Only the terms tell what a color is made of.
    if (reading.error && typed.purpose(reading.terms).kind != typed.purpose({}).kind) {
        reading = readFor(reading.terms);
    }
    return reading.error ? Reading{{}, described(*reading.error, text, &names)}
                         : Reading{reading.terms.toString(), {}};
}

QString printExpression(const Place &place, const QString &stored)
{
    bool ok = false;
    const GeneralDataList terms(stored, &ok);
    const auto &typed = static_cast<const GeneralDataListProperty &>(place.property);
    return ok ? ExpressionText::print(terms, typed.purpose(terms), place.names()) : QString();
}

Reading readRules(const Place &place, const QString &text)
{
    const ProjectNames names = place.names();
    const ExpressionText::RuleReading reading = ExpressionText::readRules(text, names);
    return reading.error ? Reading{{}, described(*reading.error, text, &names)}
                         : Reading{reading.rules.toString(), {}};
}

QString printRules(const Place &place, const QString &stored)
{
    bool ok = false;
    const PairList rules(stored, &ok);
    return ok ? ExpressionText::printRules(rules, place.names()) : QString();
}

Reading readLink(const Place &place, const QString &text)
{
    const auto &link = static_cast<const LinkProperty &>(place.property);
    ObjectLinkInfo changed = link.checked(link.value());
    changed.setObjectId(text.trimmed());
    return {changed.toString(), {}};
}

QString printLink(const Place &, const QString &stored)
{
    return ObjectLinkInfo(stored).objectId();
}

//! The property that a state sets; null if the screen has no such element or property.
SharedProperty targetOf(const Place &place, const SettingText &setting)
{
    const Screen *screen = place.screen();
    const Element *element = screen ? screen->getElement(setting.element) : nullptr;
    return element ? element->getProperty(setting.property) : SharedProperty();
}

//! Reduces a path that begins with the screen to the name of the element.
void leaveScreen(const Place &place, SettingText &setting)
{
    const Screen *screen = place.screen();
    const QString prefix = screen ? screen->getIdName() + u'.' : QString();
    if (screen && setting.element.startsWith(prefix) && !screen->hasElement(setting.element)) {
        setting.element.remove(0, prefix.size());
    }
}

QString unsettable(const DesignerProperty &target)
{
    const SharedProperty plain = StateTarget::replacedBy(target);
    const QString advice =
        plain ? LocalizationHelper::coreString(u" They can set \"%1\"."_s).arg(plain->id()) : QString();
    return LocalizationHelper::coreString(u"States and actions cannot set \"%1\"."_s).arg(target.id())
           + advice;
}

//! The settings, each with the stored form of its value.
std::optional<QList<SettingText>> readSettings(const Place &place, const QString &text, QString &error)
{
    std::optional<QList<SettingText>> settings = SettingText::read(text);
    if (!settings) {
        error = LocalizationHelper::coreString(
            u"Values have the form \"{ element.property: value; element.property: value }\"."_s);
        return {};
    }
    for (SettingText &setting : *settings) {
        leaveScreen(place, setting);
        const SharedProperty target = targetOf(place, setting);
        if (!target) {
            const QString path = setting.element + u'.' + setting.property;
            error = Suggestion::unknown(u"property"_s, path, place.names().candidates(path), {});
            return {};
        }
        if (!StateTarget::canBeSet(*target) || target == target->parentObject()->idProperty()) {
            error = unsettable(*target);
            return {};
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

const ReadableForm *formOf(const DesignerProperty &property);
QString printBare(const Place &place, const QString &stored);

QString printSettings(const Place &place, QList<SettingText> settings)
{
    for (SettingText &setting : settings) {
        const SharedProperty target = targetOf(place, setting);
        const bool isExpression = target && propertyCast<GeneralDataListProperty>(target);
        const bool isPlain = !target || !formOf(*target);
        const QString value = target ? printBare({*target, place.project}, setting.value) : setting.value;
        const bool isQuoted =
            isExpression ? value.isEmpty()
                         : SettingText::needsQuotes(value) || (isPlain && ReadableText::needsQuotes(value));
        setting.value = isQuoted ? ReadableText::quoted(value) : value;
    }
    return SettingText::print(settings);
}

Reading readStates(const Place &place, const QString &text)
{
    Reading reading;
    const auto settings = readSettings(place, text, reading.error);
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

QString printStates(const Place &place, const QString &stored)
{
    QList<SettingText> settings;
    for (const UpdateObjectInfo &update : UpdateObjectList(stored)) {
        for (const PropertyInfo &value : update.propertyValues()) {
            settings.append({update.name(), value.propName(), value.propValue()});
        }
    }
    return printSettings(place, settings);
}

Reading readChanges(const Place &place, const QString &text)
{
    Reading reading;
    const auto settings = readSettings(place, text, reading.error);
    if (settings) {
        PropertyList changes;
        for (const auto &[element, id, value] : *settings) {
            changes.append(PropertyChangeInfo(element, id, value));
        }
        reading.stored = changes.toString();
    }
    return reading;
}

QString printChanges(const Place &place, const QString &stored)
{
    QList<SettingText> settings;
    for (const PropertyChangeInfo &change : PropertyList(stored)) {
        settings.append({change.elementName(), change.propertyName(), change.valueString()});
    }
    return printSettings(place, settings);
}

//! The name; the class and the scope do not change.
Reading readName(const Place &place, const QString &text)
{
    IdentifierInfo changed = static_cast<const IdentifierProperty &>(place.property).value();
    changed.setName(text.trimmed());
    return {changed.toString(), {}};
}

QString printName(const Place &, const QString &stored)
{
    return IdentifierInfo(stored).name();
}

//! A key, or the words that a panel shows for it.
template<class Kind>
Reading readChoice(const Place &place, const QString &text)
{
    QStringList keys;
    if constexpr (std::is_same_v<Kind, EnumProperty>) {
        const QMetaEnum words = static_cast<const EnumProperty &>(place.property).value().enumerator();
        for (int i = 0; i < words.keyCount(); ++i) {
            keys.append(QString::fromLatin1(words.key(i)));
        }
    } else {
        keys = Kind::names();
    }
    return {EnumWords::keyOf(text, keys), {}};
}

//! The key, which does not depend on the user's language.
QString printChoice(const Place &, const QString &stored)
{
    return stored;
}

//! A text without a family keeps that of the value.
Reading readFont(const Place &place, const QString &text)
{
    const QFont &held = static_cast<const FontProperty &>(place.property).value();
    const QString stored = ReadableText::toFont(text, held.family());
    return {stored.isNull() ? text : stored, {}};
}

template<QString (*convert)(const QString &)>
Reading readShort(const Place &, const QString &text)
{
    const QString stored = convert(text);
    return {stored.isNull() ? text : stored, {}};
}

template<QString (*convert)(const QString &)>
QString printShort(const Place &, const QString &stored)
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

bool isNameStored(const QString &text)
{
    bool ok = false;
    const IdentifierInfo identifier(text, &ok);
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
    Reading (*read)(const Place &place, const QString &text);
    QString (*print)(const Place &place, const QString &stored); //!< null: has no readable form
};

constexpr ReadableForm forms[] = {
    {&isOfKind<GeneralDataListProperty>, &isExpressionStored, &readExpression, &printExpression},
    {&hasRules, &areRulesStored, &readRules, &printRules},
    {&isOfKind<LinkProperty>, &isLinkStored, &readLink, &printLink},
    {&isOfKind<IdentifierProperty>, &isNameStored, &readName, &printName},
    {&isOfKind<UpdateObjectListProperty>, &isGroupStored, &readStates, &printStates},
    {&isOfKind<PropertyChangeListProperty>, &isGroupStored, &readChanges, &printChanges},
    {&isOfKind<EnumProperty>, &isNeverStored, &readChoice<EnumProperty>, &printChoice},
    {&isOfKind<TransformOriginProperty>, &isNeverStored, &readChoice<TransformOriginProperty>, &printChoice},
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
    {&isOfKind<FontProperty>, &isNeverStored, &readFont, &printShort<ReadableText::fromFont>},
};

//! Null if values of the kind are only written as they are stored.
const ReadableForm *formOf(const DesignerProperty &property)
{
    const auto *form =
        std::ranges::find_if(forms, [&property](const ReadableForm &row) { return row.isIts(property); });
    return form == std::end(forms) ? nullptr : form;
}

//! Removes the quotes around the whole text, except in an expression, where they make a text.
bool removeQuotes(const DesignerProperty &property, QString &text, QString &error)
{
    if (!propertyCast<GeneralDataListProperty>(&property)) {
        text = ReadableText::unquoted(text, error);
    }
    return error.isEmpty();
}

Reading readUnquoted(const Place &place, const QString &text)
{
    const ReadableForm *form = formOf(place.property);
    return form && !form->isStored(text) ? form->read(place, text) : Reading{text, {}};
}

Reading readAt(const Place &place, QString text)
{
    QString error;
    return removeQuotes(place.property, text, error) ? readUnquoted(place, text) : Reading{{}, error};
}

QString printBare(const Place &place, const QString &stored)
{
    const ReadableForm *form = formOf(place.property);
    if (!form || stored.isEmpty()) {
        return stored;
    }
    const QString text = form->print(place, stored);
    if (text.isNull() || form->isStored(text)) {
        return stored;
    }
    const Reading again = readAt(place, text);
    return again.error.isEmpty() && again.stored == stored ? text : stored;
}

} // namespace

Reading ReadableValue::read(const DesignerProperty &property, const QString &text)
{
    const Project *project = property.parentObject()->project();
    return project ? readAt({property, *project}, text) : Reading{text, {}};
}

VariableImport::FieldReader ReadableValue::fieldReader(const Project &project)
{
    return [&project](const DesignerProperty &property, const QString &field, QString &error) {
        const Reading reading = readUnquoted({property, project}, field);
        error = reading.error;
        return reading.stored;
    };
}

Reading ReadableValue::readExpression(const QString &text, const ExpressionPurpose &purpose,
                                      const ProjectNames *names)
{
    const NoNames none;
    const ExpressionText::Reading reading =
        names ? ExpressionText::read(text, purpose, *names) : ExpressionText::read(text, purpose, none);
    return reading.error ? Reading{{}, described(*reading.error, text, names)}
                         : Reading{reading.terms.toString(), {}};
}

QString ReadableValue::printExpression(const GeneralDataList &terms, const ExpressionPurpose &purpose,
                                       const ProjectNames *names)
{
    const NoNames none;
    const QString text =
        names ? ExpressionText::print(terms, purpose, *names) : ExpressionText::print(terms, purpose, none);
    return text.isNull() ? terms.toString() : text;
}

QString ReadableValue::print(const DesignerProperty &property, const QString &stored)
{
    const Project *project = property.parentObject()->project();
    return project ? print(property, stored, *project) : stored;
}

QString ReadableValue::print(const DesignerProperty &property, const QString &stored, const Project &project)
{
    return !formOf(property) && ReadableText::needsQuotes(stored) ? ReadableText::quoted(stored)
                                                                  : printBare({property, project}, stored);
}

} // namespace Halvane::Corvex::Designer
