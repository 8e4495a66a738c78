// SPDX-License-Identifier: MIT
#include "corvex/editing/words/ClassHelp.h"

#include "corvex/common/LocalizationHelper.h"
#include "corvex/core/DesignerFactory.h"
#include "corvex/core/DesignerObject.h"
#include "corvex/core/properties/IdentifierProperty.h"
#include "corvex/editing/words/ReadableValue.h"
#include "corvex/editing/words/ValueForm.h"
#include "corvex/project/Project.h"
#include "corvex/project/elements/Element.h"

#include <QRegularExpression>

#include <algorithm>
#include <memory>
#include <tuple>

using namespace Qt::StringLiterals;

namespace Halvane::Corvex::Designer {

namespace {

//! An object of a class in the sample project.
struct SampleRow
{
    QLatin1StringView className; //!< or a base class of it
    QLatin1StringView line;      //!< an edit that adds the object: %1 is its class, %2 its name
    QLatin1StringView path;
    QLatin1StringView rename; //!< an edit that renames it
};

// The first class that matches counts. Objects of other classes are not in a project.
constexpr SampleRow sampleRows[] = {
    {"Project"_L1, ""_L1, "Plant"_L1, "rename Plant Station"_L1},
    {"Screen"_L1, "add %1 Plant %2"_L1, "%2"_L1, "rename %2 Start"_L1},
    {"ImageResource"_L1, "add-image gauge.png"_L1, "gauge.png"_L1, "rename gauge.png dial.png"_L1},
    {"Configuration"_L1, "model VTR 70-CE"_L1, "configuration"_L1, "model VTR 70-CE"_L1},
    {"ProjectVariable"_L1, "add %1 Plant %2"_L1, "%2"_L1, "rename %2 pump1"_L1},
    {"GroupElement"_L1, "group %2 Main.lamp Main.caption"_L1, "Main.%2"_L1, "rename Main.%2 pump1"_L1},
    {"FilterElement"_L1, "filter %2 Main.lamp"_L1, "Main.%2"_L1, "rename Main.%2 pump1"_L1},
    {"Element"_L1, "add %1 Main %2"_L1, "Main.%2"_L1, "rename Main.%2 pump1"_L1},
};

//! A row, filled in for a class.
struct SampleObject
{
    QString line;
    QString path;
    QString rename;
};

SampleObject sampleFor(const DesignerObject &object, bool isAbstract)
{
    const auto *row = std::ranges::find_if(sampleRows, [&object](const SampleRow &known) {
        return object.isKindOfClass(QString(known.className));
    });
    if (row == std::end(sampleRows)) {
        return {};
    }
    const QString className = object.className();
    const QString stem = isAbstract ? className.first(1).toLower() + className.sliced(1) : object.baseName();
    const auto filled = [&](QLatin1StringView text) {
        return QString(text).replace("%1"_L1, className).replace("%2"_L1, stem + u'1');
    };
    return {isAbstract ? QString() : filled(row->line), filled(row->path), filled(row->rename)};
}

//! "objects of the class Screen"
QString objectsIn(const DesignerProperty &property)
{
    const QString classes = property.objectFilters().join(u" or "_s);
    const QString text = classes.isEmpty()   ? u"objects"_s
                         : property.isList() ? u"objects of the class %1"_s
                                             : u"an object of the class %1"_s;
    const QString translated = Common::LocalizationHelper::coreString(text);
    return classes.isEmpty() ? translated : translated.arg(classes);
}

//! Descriptions may be written for a panel that shows markup.
QString plainText(QString text)
{
    static const QRegularExpression tags(u"<[^>]*>"_s);
    return text.replace(tags, u" "_s).simplified();
}

//! Whether the class keeps the value as it is. The property is hidden then.
bool isFixed(DesignerObject &object, const SharedProperty &property)
{
    const bool isHidden = !property->editorParameters().value(u"visible"_s, true).toBool();
    const QString example = ValueForm::exampleFor(*property);
    return isHidden && !example.isEmpty()
           && object.changeValue(property, example) == DesignerObject::Change::Vetoed;
}

QList<PropertyHelp> propertiesOf(DesignerObject &object, const SampleObject &sample)
{
    // The initial values contain no names.
    const std::unique_ptr<DesignerObject> project(DesignerFactory::instance()->createUnowned(u"Project"_s));
    QList<SharedProperty> properties;
    for (const SharedProperty &property : object.properties()) {
        properties.append(property);
    }
    std::ranges::stable_sort(properties, {}, [](const SharedProperty &property) { return property->rank(); });
    QList<PropertyHelp> helps;
    for (const SharedProperty &property : std::as_const(properties)) {
        helps.append(PropertyHelp::of(*property, sample.path, static_cast<const Project &>(*project)));
        if (property == object.idProperty()) {
            helps.last().line = sample.rename;
        }
    }
    for (qsizetype i = 0; i < helps.size(); ++i) { // last, because it may change the object
        if (isFixed(object, properties.at(i))) {
            helps[i].line.clear();
        }
    }
    return helps;
}

} // namespace

PropertyHelp PropertyHelp::of(const DesignerProperty &property, const QString &path, const Project &project)
{
    const ValueForm &form = ValueForm::of(property);
    const bool holdsObjects = property.isList() || property.isObject();
    PropertyHelp help;
    help.id = property.id();
    help.title = property.name();
    help.kind = form.name();
    help.takes = holdsObjects ? objectsIn(property) : property.acceptedForm();
    help.description = plainText(property.description());
    if (property.editorParameter(u"isPercentage"_s).toBool()) {
        help.description += Common::LocalizationHelper::coreString(
            u" Expressions, rules and assignments use the value on the device, a fraction of 1: 0.5 is 50 %."_s);
    }
    if (!holdsObjects && !propertyCast<IdentifierProperty>(&property)) {
        help.initialValue = ReadableValue::print(property, property.valueString(), project);
    }
    const QString example = ValueForm::exampleFor(property);
    if (!path.isEmpty() && property.hasFlag(StoredFlag) && !holdsObjects && !example.isEmpty()) {
        help.line = u"set %1.%2 = %3"_s.arg(path, help.id, example);
    }
    return help;
}

bool PropertyHelp::isAlike(const PropertyHelp &other) const
{
    const auto facts = [](const PropertyHelp &help) {
        return std::tie(help.id, help.title, help.kind, help.takes, help.initialValue, help.description);
    };
    return facts(*this) == facts(other);
}

QList<RuntimeHelp> RuntimeHelp::of(const DesignerObject &object)
{
    struct Row
    {
        Common::EnumHelper::VariableType type;
        const char16_t *words;
    };
    static constexpr Row rows[] = {
        {Common::EnumHelper::BooleanVariable, u"true or false"},
        {Common::EnumHelper::IntegerVariable, u"a whole number"},
        {Common::EnumHelper::FloatVariable, u"a number"},
        {Common::EnumHelper::NumberVariable, u"a number"},
        {Common::EnumHelper::StringVariable, u"a text"},
        {Common::EnumHelper::ColorVariable, u"a color"},
    };
    QList<RuntimeHelp> helps;
    const auto *element = kindCast<Element>(&object);
    for (const RuntimeProperty &known : element ? element->runtimeProperties() : RuntimePropertyList()) {
        const auto *row = std::ranges::find(rows, known.type(), &Row::type);
        if (row == std::end(rows)) {
            continue; // objects, which expressions cannot use
        }
        const SharedProperty stored = object.getProperty(known.property());
        const bool isPercentage = stored && stored->editorParameter(u"isPercentage"_s).toBool();
        const QString meaning = known.description().isEmpty() ? known.displayName() : known.description();
        helps.append({known.property(),
                      Common::LocalizationHelper::coreString(QString::fromUtf16(row->words)),
                      isPercentage ? Common::LocalizationHelper::coreString(u"%1: 0.5 is 50 %"_s).arg(meaning)
                                   : meaning,
                      known.accessMode() == Common::EnumHelper::ReadOnly, object.className()});
    }
    return helps;
}

QStringList ClassHelp::names()
{
    const DesignerFactory *factory = DesignerFactory::instance();
    QStringList names = factory->objectNames() + factory->creatableNames();
    names.sort();
    names.removeDuplicates();
    return names;
}

std::optional<ClassHelp> ClassHelp::summaryOf(const QString &className)
{
    const DesignerFactory *factory = DesignerFactory::instance();
    const QStringList known = names();
    const std::unique_ptr<DesignerObject> object(known.contains(className) ? factory->createSample(className)
                                                                           : nullptr);
    if (!object) {
        return {};
    }
    ClassHelp help;
    help.className = className;
    help.title = object->displayName();
    help.description = factory->descriptionForClass(className);
    const QStringList chain = object->classNames();
    for (auto name = chain.crbegin() + 1; name != chain.crend(); ++name) {
        if (known.contains(*name)) {
            help.bases.append(*name);
        }
    }
    help.line = sampleFor(*object, !factory->canCreateObject(className)).line;
    return help;
}

std::optional<ClassHelp> ClassHelp::of(const QString &className)
{
    std::optional<ClassHelp> help = summaryOf(className);
    if (!help) {
        return help;
    }
    const DesignerFactory *factory = DesignerFactory::instance();
    const std::unique_ptr<DesignerObject> object(factory->createSample(className));
    const SampleObject sample = sampleFor(*object, !factory->canCreateObject(className));
    help->properties = propertiesOf(*object, sample);
    for (PropertyHelp &property : help->properties) {
        property.definedBy = className;
    }
    help->runtime = RuntimeHelp::of(*object);
    for (const QString &base : std::as_const(help->bases)) { // the farthest one last
        const std::unique_ptr<DesignerObject> baseObject(factory->createSample(base));
        const QList<RuntimeHelp> inheritedAtRuntime =
            baseObject ? RuntimeHelp::of(*baseObject) : QList<RuntimeHelp>();
        for (RuntimeHelp &property : help->runtime) {
            const bool isInherited = std::ranges::find(inheritedAtRuntime, property.id, &RuntimeHelp::id)
                                     != inheritedAtRuntime.cend();
            property.definedBy = isInherited ? base : property.definedBy;
        }
        const QList<PropertyHelp> inherited =
            baseObject ? propertiesOf(*baseObject, sample) : QList<PropertyHelp>();
        for (PropertyHelp &property : help->properties) {
            if (std::ranges::any_of(inherited,
                                    [&](const PropertyHelp &other) { return other.isAlike(property); })) {
                property.definedBy = base;
            }
        }
    }
    std::ranges::stable_sort(help->properties, {}, [&](const PropertyHelp &property) {
        return help->bases.indexOf(property.definedBy); // -1 for the class itself
    });
    std::ranges::stable_sort(help->runtime, {}, [&](const RuntimeHelp &property) {
        return help->bases.indexOf(property.definedBy);
    });
    return help;
}

QString ClassHelp::sampleName()
{
    return u"Plant"_s;
}

QStringList ClassHelp::sampleProject()
{
    return {u"add Screen Plant Settings"_s,
            u"add NumberVariable Plant level"_s,
            u"add NumberVariable Plant limit"_s,
            u"add BooleanVariable Plant alarm"_s,
            u"add StringVariable Plant message"_s,
            u"add LogVariable Plant history"_s,
            u"add MappingVariable Plant registers"_s,
            u"add Rectangle Main lamp"_s,
            u"add Text Main caption"_s,
            u"add Action Main blink"_s,
            u"add-image pump.png"_s};
}

} // namespace Halvane::Corvex::Designer
