// SPDX-License-Identifier: MIT
#include "corvex/editing/words/ValueForm.h"

#include "corvex/common/LocalizationHelper.h"
#include "corvex/core/DesignerFactory.h"
#include "corvex/core/NumberRange.h"
#include "corvex/core/properties/BasicProperties.h"
#include "corvex/core/properties/BorderProperty.h"
#include "corvex/core/properties/CollectionProperties.h"
#include "corvex/core/properties/ColorProperties.h"
#include "corvex/core/properties/EnumProperty.h"
#include "corvex/core/properties/ExpressionProperties.h"
#include "corvex/core/properties/FontProperty.h"
#include "corvex/core/properties/IdentifierProperty.h"
#include "corvex/core/properties/LinkProperty.h"
#include "corvex/core/properties/RangeProperty.h"
#include "corvex/core/properties/ShapeProperties.h"
#include "corvex/core/properties/TransformOriginProperty.h"
#include "corvex/values/text/ValueConversion.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace Halvane::Corvex::Designer {

namespace {

using Common::LocalizationHelper;

template<class Kind>
bool isOfKind(const DesignerProperty &property)
{
    return propertyCast<Kind>(&property);
}

template<GeneralDataList::InfoType kind>
bool isExpression(const DesignerProperty &property)
{
    const auto *typed = propertyCast<GeneralDataListProperty>(&property);
    return typed && !typed->purpose({}).isTermList && typed->purpose({}).kind == kind;
}

bool isTermList(const DesignerProperty &property)
{
    const auto *typed = propertyCast<GeneralDataListProperty>(&property);
    return typed && typed->purpose({}).isTermList;
}

bool areRules(const DesignerProperty &property)
{
    return property.references() == Form::Expressions;
}

bool areNames(const DesignerProperty &property)
{
    return isOfKind<ListValueProperty>(property) || property.references() == Form::CommaNames;
}

bool isChoice(const DesignerProperty &property)
{
    return isOfKind<EnumProperty>(property) || isOfKind<TransformOriginProperty>(property);
}

bool areSettings(const DesignerProperty &property)
{
    return isOfKind<UpdateObjectListProperty>(property) || isOfKind<PropertyChangeListProperty>(property);
}

bool isList(const DesignerProperty &property)
{
    return property.isList();
}

bool isObject(const DesignerProperty &property)
{
    return property.isObject();
}

bool isAny(const DesignerProperty &)
{
    return true;
}

QString sampleBoolean(const DesignerProperty &property)
{
    return property.valueString() == "true"_L1 ? u"false"_s : u"true"_s;
}

//! A number in the range that is not the value itself.
QString sampleNumber(const DesignerProperty &property)
{
    const NumberRange range = NumberRange::of(property.editorParameters());
    const double held = ValueConversion::toReal(property.valueString());
    QList<double> candidates = range.choices;
    candidates += {2, 50, range.minimum + 1, range.minimum};
    const auto found = std::ranges::find_if(candidates, [&](double number) {
        return qIsFinite(number) && number != held && range.contains(number);
    });
    return found == candidates.cend() ? property.valueString() : ValueConversion::toString(*found);
}

//! A word that is not the value itself.
QString sampleChoice(const DesignerProperty &property)
{
    QStringList words;
    if (const auto *choice = propertyCast<EnumProperty>(&property)) {
        for (int i = 0; i < choice->value().enumerator().keyCount(); ++i) {
            words.append(choice->value().key(i));
        }
    } else {
        words = {u"TopLeft"_s, u"Center"_s};
    }
    words.removeOne(property.valueString());
    return words.isEmpty() ? property.valueString() : words.first();
}

//! The objects that a link may name in the sample project.
struct LinkSample
{
    QLatin1StringView className;
    QLatin1StringView name;
};
constexpr LinkSample linkSamples[] = {
    {"ImageResource"_L1, "pump.png"_L1}, {"Screen"_L1, "Settings"_L1},
    {"NumberVariable"_L1, "level"_L1},   {"BooleanVariable"_L1, "alarm"_L1},
    {"LogVariable"_L1, "history"_L1},    {"MappingVariable"_L1, "registers"_L1},
    {"VisualElement"_L1, "lamp"_L1},
};

QString sampleLink(const DesignerProperty &property)
{
    const auto &link = static_cast<const LinkProperty &>(property);
    const QString className = link.checked(link.value()).filterType().value(0);
    const auto *known = std::ranges::find(linkSamples, className, &LinkSample::className);
    if (known != std::end(linkSamples)) {
        return known->name;
    }
    const DesignerFactory *factory = DesignerFactory::instance();
    return (factory ? factory->baseNameForClass(className) : className) + u'1';
}

// The first form that matches counts.
constexpr ValueForm forms[] = {
    {"name", &isOfKind<IdentifierProperty>, nullptr, "",
     "A name has at least two characters: letters, digits and underscores, beginning with a letter. Projects "
     "and images are files; their names may contain further characters. Names are changed with \"rename\", "
     "which also changes every place where the object is used.",
     "rename Main.lamp signalLamp\nrename Main.signalLamp lamp"},
    {"boolean", &isOfKind<BooleanProperty>, &sampleBoolean, "", "One of the words `true` and `false`.",
     "set Main.lamp.visible = false"},
    {"whole number", &isOfKind<IntegerProperty>, &sampleNumber, "",
     "Digits, with a minus sign for negative numbers. Most properties have a range; a number outside of it "
     "is kept, and reported by \"corvex check\".",
     "set Main.lamp.radius = 8"},
    {"number", &isOfKind<RealProperty>, &sampleNumber, "",
     "Digits, with a point before decimals. Most properties have a range, as whole numbers have.",
     "set Main.lamp.rotation = 22.5"},
    {"rules", &areRules, nullptr, "when level > limit do alarm = true when level <= limit do alarm = false",
     "Each rule is `when`, a condition, `do`, and assignments that are separated by semicolons. Rules follow "
     "one another without a separator. Conditions have no arithmetic and no functions; a helper "
     "element with a number expression, such as `helper.x`, can provide a calculated value. A new value is a "
     "single value, variable or property, no calculation. `lamp.opacity` and `lamp.scale` are fractions: 0.5 "
     "is 50 %.",
     "set Main.logic.logicExpression = when level > limit do alarm = true; message = \"High\" when level <= "
     "limit do alarm = false"},
    {"names", &areNames, nullptr, "lamp | caption",
     "Names, separated by ` | `, or by `, ` for the actions of a trigger. Their order counts.",
     "set Main.trigger.actionScheduler = blink"},
    {"text", &isOfKind<StringProperty>, nullptr, "Pump 1",
     "The rest of the line as it is. A text that has quotes or several lines, or begins or ends with a "
     "blank, is written in double quotes, with `\\n` for a new line, `\\t` for a tab, `\\\"` for a quote and "
     "`\\\\` for a backslash. Two quotes without a text between them clear the value; this also applies to "
     "all other kinds.",
     "set Main.caption.text = Pump 1\nset Main.caption.text = \"two\\nlines\"\nset Main.caption.text = \"\""},
    {"choice", &isChoice, &sampleChoice, "",
     "One of the words that the property lists, or what a panel shows for it, such as `Right` for "
     "`AlignRight`.",
     "set Main.caption.horizontalAlignment = AlignRight\nset Main.caption.horizontalAlignment = Right"},
    {"color", &isOfKind<ColorProperty>, nullptr, "#C62828",
     "`#`, then two hexadecimal digits each for red, green and blue. Two digits before these make the color "
     "transparent, from `00` to `FF` for opaque. Words such as `red`, `darkgreen` and `transparent` are "
     "names of colors.",
     "set Main.lamp.color = #C62828\nset Main.lamp.color = #80C62828\nset Main.lamp.color = darkgreen"},
    {"font", &isOfKind<FontProperty>, nullptr, "bold 24px \"DejaVu Sans\"",
     "Any of the words `bold`, `italic`, `underline`, `overline` and `strikeout`, then the size in pixels "
     "(`px`) or points (`pt`), then the family in quotes. Without a family, the font keeps its own.",
     "set Main.caption.font = bold 24px\nset Main.caption.font = bold 24px \"DejaVu Sans\"\nset "
     "Main.caption.font = 12pt \"DejaVu Sans\""},
    {"size", &isOfKind<SizeProperty>, nullptr, "120 x 40",
     "The width and the height, with an `x` between them.", "set Main.lamp.size = 120 x 40"},
    {"position", &isOfKind<PointProperty>, nullptr, "10, 20",
     "The distances from the left and from the top, separated by a comma.",
     "set Main.lamp.position = 10, 20"},
    {"range", &isOfKind<RangeProperty>, nullptr, "0 to 50",
     "The lower and the upper number, with `to` between them.", "set Main.spinner.range = 0 to 50"},
    {"border", &isOfKind<BorderProperty>, nullptr, "2 #C62828",
     "The width, then the color. Without a color the border is black.",
     "set Main.lamp.border = 2 #C62828\nset Main.lamp.border = 1"},
    {"link", &isOfKind<LinkProperty>, &sampleLink, "",
     "The name of the object. It must be of the class that the property asks for. An element in a group is "
     "written like any other.",
     "set Main.loader.screen = Settings\nset Main.picture.source = pump.png"},
    {"condition", &isExpression<GeneralDataList::BoolExpression>, nullptr, "level > limit",
     "An expression that is true or false. The names of variables stand for their values; the property of an "
     "element is written as `lamp.visible`, or `Settings.lamp.visible` on another screen. Numbers are "
     "compared with `<`, `<=`, `>`, `>=`, `==` and `!=`; conditions are combined with `and`, `or`, `not` and "
     "parentheses. A condition has no arithmetic and no functions. `lamp.opacity` and `lamp.scale` are "
     "fractions: 0.5 is 50 %.",
     "set Main.lamp.visibleBinding = level > limit and not alarm"},
    {"number expression", &isExpression<GeneralDataList::MathExpression>, nullptr, "level * 2",
     "Numbers, variables and properties, combined with `+`, `-`, `*`, `/`, `%` and parentheses, and "
     "functions such as `max(0, level)`, which \"corvex functions\" lists. `alarm ? a : b` selects one "
     "of two values by a boolean variable. Texts cannot be compared here. `lamp.opacity` and `lamp.scale` "
     "are "
     "fractions: 0.5 is 50 %.",
     "set Main.lamp.xBinding = max(0, 100 - level * 2)"},
    {"text expression", &isExpression<GeneralDataList::StringExpression>, nullptr,
     "concat(\"Level \", level)",
     "Texts in double quotes, variables and properties. `concat` joins texts and numbers; further functions "
     "take texts apart. `alarm ? a : b` selects one of two texts by a boolean variable. Calculations use "
     "`+`, `-`, `*`, "
     "`/` and `%`; the functions of numbers, such as `round`, cannot be used. A Text can show a number with "
     "its properties `decimals`, `prefix` and `suffix`.",
     "set Main.caption.textBinding = concat(\"Level \", level, \" %\")\nset Main.caption.textBinding = alarm "
     "? \"High\" : \"Normal\""},
    {"color expression", &isExpression<GeneralDataList::GeneralExpression>, nullptr,
     "alarm ? \"red\" : \"green\"",
     "A color variable, a color, or a boolean variable that selects one of two colors, whose names or digits "
     "are in quotes.",
     "set Main.lamp.colorBinding = alarm ? \"red\" : \"#2E8B57\""},
    {"assignments", &isExpression<GeneralDataList::AssignExpression>, nullptr,
     "alarm = false; Main.lamp.visible = true",
     "A variable or a property, `=`, and its new value: a single value, variable or property, no "
     "calculation. "
     "Several assignments are separated by semicolons. A CheckButton switches a boolean variable at each "
     "touch; a NumberSpinner adds to a number variable. `lamp.opacity` and `lamp.scale` are fractions: 0.5 "
     "is "
     "50 %.",
     "set Main.button.pressed = alarm = false; Main.lamp.color = #2E8B57"},
    {"list of values", &isTermList, nullptr, "level, limit",
     "Numbers, texts in quotes, variables and properties, separated by commas. The property says what "
     "belongs at which place; in an address map, each address is followed by its variable.",
     "set registers.holdingRegMap = 40001, level, 40002, limit"},
    {"element values", &areSettings, nullptr, "{ lamp.color: #C62828; lamp.visible: true }",
     "In braces, properties of elements of the same screen, each with a colon and its value, separated by "
     "semicolons. A value that contains a semicolon or a brace is written in double quotes.",
     "set Main.toggle.checkedState = { lamp.color: #C62828; caption.text: \"one; two\" }"},
    {"keys and values", &isOfKind<MapProperty>, nullptr, "key: 1; value: On;",
     "`key: ` and `value: ` with a semicolon after each; several pairs are separated by ` | `.",
     "set registers.value = key: 1; value: On; | key: 0; value: Off;"},
    {"objects", &isList, nullptr, "",
     "A list of objects. \"add\", \"delete\", \"move\" and \"swap\" change it.", "add Rectangle Main box"},
    {"object", &isObject, nullptr, "",
     "One object, whose properties are set by a path that begins with that of the property.",
     "set configuration.displayBrightness = 80"},
    {"stored text", &isAny, nullptr, "", "The text that the file contains.", ""},
};

} // namespace

std::span<const ValueForm> ValueForm::all()
{
    return forms;
}

const ValueForm &ValueForm::of(const DesignerProperty &property)
{
    return *std::ranges::find_if(forms, [&property](const ValueForm &form) { return form.isIts(property); });
}

QString ValueForm::name() const
{
    return LocalizationHelper::coreString(QString::fromUtf8(word));
}

QString ValueForm::explanation() const
{
    return LocalizationHelper::coreString(QString::fromUtf8(sentences));
}

QStringList ValueForm::edits() const
{
    return QString::fromUtf8(lines).split(u'\n', Qt::SkipEmptyParts);
}

QString ValueForm::exampleFor(const DesignerProperty &property)
{
    const QString own = property.editorParameter(u"example"_s).toString();
    const ValueForm &form = of(property);
    return !own.isEmpty() ? own : form.sample ? form.sample(property) : QString::fromUtf8(form.example);
}

} // namespace Halvane::Corvex::Designer
