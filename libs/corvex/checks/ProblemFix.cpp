// SPDX-License-Identifier: MIT
#include "corvex/checks/ProblemFix.h"

#include "corvex/checks/private/FilledText.h"
#include "corvex/checks/private/rules/ExpressionPart.h"
#include "corvex/checks/private/rules/StateSetting.h"
#include "corvex/common/LocalizationHelper.h"
#include "corvex/common/TextHelper.h"
#include "corvex/core/DesignerFactory.h"
#include "corvex/core/ItemList.h"
#include "corvex/core/PropertyValidators.h"
#include "corvex/core/properties/LinkProperty.h"
#include "corvex/editing/commands/Commands.h"
#include "corvex/editing/commands/objects/ChangeProperty.h"
#include "corvex/editing/references/ReferenceChanges.h"
#include "corvex/editing/references/ReferenceForm.h"
#include "corvex/editing/undo/UndoStack.h"
#include "corvex/editing/words/Suggestion.h"
#include "corvex/hardware/Configuration.h"
#include "corvex/hardware/DeviceChannels.h"
#include "corvex/project/Project.h"
#include "corvex/project/ProjectNames.h"
#include "corvex/project/Screen.h"
#include "corvex/project/elements/Element.h"
#include "corvex/values/private/ExpressionPercent.h"
#include "corvex/values/records/ListInfo.h"
#include "corvex/variables/BACnetObject.h"

#include <algorithm>
#include <cmath>
#include <optional>
#include <set>

using namespace Qt::StringLiterals;

namespace Halvane::Corvex::Designer {

namespace {

//! The place of a problem.
struct Place
{
    const Problem &problem;
    DesignerObject &object;
    SharedProperty property; //!< null if the problem concerns the object
};

//! The effect of a fix: a property gets a value, or the object is renamed or deleted.
struct Plan
{
    enum Action { Set, Rename, Delete };
    Action action = Set;
    SharedProperty property = {};
    QString value = {};
    QStringList words = {}; //!< for the placeholders of the text
};
using MaybePlan = std::optional<Plan>;

MaybePlan setting(const SharedProperty &property, const QString &value, const QStringList &words = {})
{
    const bool isGood = property && value != property->valueString() && property->refusalOf(value).isEmpty();
    return isGood ? MaybePlan({Plan::Set, property, value, words}) : std::nullopt;
}

//! The letters, digits and underscores of a name, beginning with a letter.
QString cleanName(const DesignerObject &object)
{
    constexpr qsizetype longest = 240;
    QString name = object.getIdName().left(longest);
    const auto isGood = [](QChar c) { return c.unicode() < 128 && (c.isLetterOrNumber() || c == u'_'); };
    for (QChar &c : name) {
        c = isGood(c) ? c : u'_';
    }
    const bool hasText = std::ranges::any_of(name, [](QChar c) { return c != u'_'; });
    return !hasText ? object.baseName() : !name.front().isLetter() ? object.baseName() + u'_' + name : name;
}

MaybePlan renamed(const Place &place)
{
    const DesignerObject &object = place.object;
    QString stem;
    const QString clean = cleanName(object);
    Common::TextHelper::numberFromString(clean, &stem);
    const Screen *screen = kindCast<Element>(&object) ? object.screen() : nullptr;
    QString name = clean;
    // The first free number may give a reserved name, or one that is taken in another way.
    for (int attempts = 8; attempts > 0 && !PropertyValidators::nameError(&object, name).isEmpty();
         --attempts) {
        name = screen ? object.screen()->uniqueElementName(stem) : object.project()->generateUniqueName(stem);
        stem += u'_';
    }
    return PropertyValidators::nameError(&object, name).isEmpty()
               ? MaybePlan({Plan::Rename, object.idProperty(), name, {name}})
               : std::nullopt;
}

QString textOf(double number)
{
    constexpr int digits = 15;
    return QString::number(number, 'g', digits);
}

enum class Limit { Smallest, Largest };

//! The limit that the number exceeds.
template<Limit limit>
std::optional<double> exceededLimit(const NumberRange &range, const QString &value)
{
    bool isNumber = false;
    const double number = value.toDouble(&isNumber);
    if (limit == Limit::Largest) {
        return isNumber && number > range.maximum ? std::optional(range.maximum) : std::nullopt;
    }
    const bool isBelow = isNumber && !range.isAbove && number < range.minimum;
    return isBelow ? std::optional(range.minimum) : std::nullopt;
}

template<Limit limit>
MaybePlan clamped(const Place &place)
{
    const auto number = exceededLimit<limit>(NumberRange::of(place.property->editorParameters()),
                                             place.property->valueString());
    return number ? setting(place.property, textOf(*number), {textOf(*number)}) : std::nullopt;
}

//! The number of a state or an action, compared with the range of its target property.
template<Limit limit>
MaybePlan clampedSetting(const Place &place)
{
    const Screen *screen = place.object.screen();
    for (const StateSetting &each : StateSetting::of(*place.property)) {
        const Element *element = screen ? screen->getElement(each.element) : nullptr;
        const SharedProperty target = element ? element->getProperty(each.property) : SharedProperty();
        if (!target) {
            continue;
        }
        const NumberRange range = StateSetting::rangeOf(*target);
        const auto number = exceededLimit<limit>(range, each.value);
        const Problem same = Problem::at(*place.property, ProblemCode::StateRange,
                                         {each.value, each.property, each.element, range.toString()});
        if (number && same.message == place.problem.message) {
            const QString text = textOf(*number);
            return setting(place.property, each.textWith(*place.property, text),
                           {each.property, each.element, text});
        }
    }
    return {};
}

//! The expression with the fraction that a percentage means.
MaybePlan divided(const Place &place)
{
    const ProjectNames names(*place.object.project(), place.object.screen());
    QStringList words;
    const QString text = ExpressionPart::changed(*place.property, [&](ExpressionPart &part) {
        for (const ExpressionPercent &percent : ExpressionPercent::of(part.terms, part.purpose, names)) {
            const QStringList own = percent.words(part.terms);
            const Problem same = Problem::at(*place.property, ProblemCode::ExpressionPercent, own);
            if (same.message == place.problem.message) {
                words = {own.at(2), own.at(1)};
                part.terms.replace(percent.term, percent.fraction);
            }
        }
    });
    return words.isEmpty() ? std::nullopt : setting(place.property, text, words);
}

//! The value that the property has in a new object.
MaybePlan reset(const Place &place)
{
    const std::unique_ptr<DesignerObject> model(
        DesignerFactory::instance()->createUnowned(place.object.className()));
    const SharedProperty property = model ? model->getProperty(place.property->id()) : SharedProperty();
    return property && !property->isList() && !property->isObject()
               ? setting(place.property, property->valueString())
               : std::nullopt;
}

//! The names that a mention in a property of \a owner may refer to.
QStringList namesFor(NamedKinds kinds, const DesignerObject &owner)
{
    const Project &project = *owner.project();
    QStringList names;
    if (kinds.testFlag(NamedKind::Element) && owner.screen()) {
        names += owner.screen()->getElementNames();
    }
    if (kinds.testFlag(NamedKind::Variable)) {
        names += project.variables()->listItemNames();
    }
    if (kinds.testFlag(NamedKind::Screen)) {
        names += project.screens()->listItemNames();
    }
    if (kinds.testFlag(NamedKind::Image)) {
        names += project.imageResources()->listItemNames();
    }
    return names;
}

//! The link to the object with the most similar name that the link accepts.
MaybePlan relinked(const Place &place)
{
    const auto *link = propertyCast<LinkProperty>(place.property);
    if (!link || !link->value().isValid()) {
        return {};
    }
    ObjectLinkInfo target = link->value();
    QStringList names;
    for (const DesignerObject *object : link->checked(target).findLinks(&place.object, true)) {
        if (object != &place.object) {
            names.append(object->getIdName());
        }
    }
    const QString near = Suggestion::nearest(target.objectId(), names);
    target.setObjectId(near);
    return near.isEmpty() ? std::nullopt : setting(place.property, target.toString(), {near});
}

MaybePlan unlinked(const Place &place)
{
    const auto *link = propertyCast<LinkProperty>(place.property);
    if (!link) {
        return {};
    }
    ObjectLinkInfo none = link->value();
    none.setObjectId({});
    return setting(place.property, none.toString());
}

//! Replaces the unknown name by the most similar one everywhere in the value.
MaybePlan respelled(const Place &place)
{
    if (propertyCast<LinkProperty>(place.property)) {
        return {};
    }
    QStringList words;
    QString text = place.property->valueString();
    ReferenceForm::visit(*place.property, text, [&](Mention &mention) {
        const Problem same = Problem::at(*place.property, place.problem.code, {mention.path});
        if (same.message != place.problem.message) {
            return;
        }
        const QString near = Suggestion::nearest(mention.path, namesFor(mention.kinds, place.object));
        if (!near.isEmpty()) {
            words = {mention.path, near};
            mention.path = near;
        }
    });
    return words.isEmpty() ? std::nullopt : setting(place.property, text, words);
}

MaybePlan allMembers(const Place &place)
{
    const SharedProperty elements = place.object.getProperty(u"elements");
    return elements ? setting(place.property, ListInfo(elements->listItemNames()).toString()) : std::nullopt;
}

MaybePlan switchedOff(const Place &place)
{
    struct Switch
    {
        QLatin1StringView ownerClass;
        QLatin1StringView password;
        QLatin1StringView onSwitch;
    };
    static constexpr Switch switches[] = {
        {"Configuration"_L1, "password"_L1, "enablePassword"_L1},
        {"Configuration"_L1, "uploadPassword"_L1, "enableUpload"_L1},
        {"BACnetDevice"_L1, "password"_L1, "pwdEnabled"_L1},
    };
    const auto row = std::ranges::find_if(switches, [&place](const Switch &each) {
        return place.object.isKindOfClass(each.ownerClass) && place.property->id() == each.password;
    });
    return row == std::end(switches) ? std::nullopt
                                     : setting(place.object.getProperty(QString(row->onSwitch)), u"false"_s);
}

MaybePlan deleted(const Place &place)
{
    return Plan{Plan::Delete, place.object.idProperty(), {}, {}};
}

//! A channel of the device that no element of the class on the screen uses.
MaybePlan otherChannel(const Place &place)
{
    const DeviceChannels *channels = DeviceChannels::of(place.object.className());
    const Configuration *model = place.object.project()->configurationObject();
    const Screen *screen = place.object.screen();
    for (const int channel : channels &&model &&screen ? channels->available(*model) : QList<int>()) {
        const QString text = QString::number(channel);
        if (screen->elementIndex().withChannel(place.object.className(), text).isEmpty()) {
            return setting(place.property, text, {text});
        }
    }
    return {};
}

//! The identifier with the first free instance of its type.
MaybePlan otherInstance(const Place &place)
{
    const auto identifier = BACnetObject::readIdentifier(place.property->valueString());
    std::set<int> taken;
    for (const DesignerObject *object :
         place.object.project()->variables()->getItemsOfType(u"BACnetObject"_s)) {
        const auto other = BACnetObject::readIdentifier(object->getProperty(u"objectID")->valueString());
        if (other && identifier && other->type == identifier->type) {
            taken.insert(other->instance);
        }
    }
    int instance = 0;
    for (auto next = taken.begin(); next != taken.end() && *next == instance; ++next) {
        ++instance;
    }
    const QString text = identifier ? u"%1,%2"_s.arg(identifier->type).arg(instance) : QString();
    return identifier ? setting(place.property, text, {text}) : std::nullopt;
}

struct Row
{
    ProblemCode code;
    const char *text;
    MaybePlan (*plan)(const Place &place);
};

constexpr char renameText[] = "Rename to \"%1\"";
constexpr char smallestText[] = "Set to %1, the smallest value";
constexpr char largestText[] = "Set to %1, the largest value";
constexpr char linkText[] = "Set the link to \"%1\"";
constexpr char respellText[] = "Replace \"%1\" with \"%2\"";
constexpr char resetText[] = "Reset to the default";
constexpr char channelText[] = "Assign channel %1";

//! All fixes. For each kind of problem the best ones come first.
constexpr Row rows[] = {
    {ProblemCode::NameFormat, renameText, renamed},
    {ProblemCode::NameLength, renameText, renamed},
    {ProblemCode::NameReserved, renameText, renamed},
    {ProblemCode::NameTaken, renameText, renamed},
    {ProblemCode::ValueInvalid, resetText, reset},
    {ProblemCode::ValueRange, smallestText, clamped<Limit::Smallest>},
    {ProblemCode::ValueRange, largestText, clamped<Limit::Largest>},
    {ProblemCode::AppearanceRange, smallestText, clamped<Limit::Smallest>},
    {ProblemCode::AppearanceRange, largestText, clamped<Limit::Largest>},
    {ProblemCode::GroupOrder, "List all members", allMembers},
    {ProblemCode::LinkTarget, linkText, relinked},
    {ProblemCode::LinkTarget, "Unset the link", unlinked},
    {ProblemCode::ChannelMissing, channelText, otherChannel},
    {ProblemCode::ChannelShared, channelText, otherChannel},
    {ProblemCode::PasswordEmpty, "Disable the password", switchedOff},
    {ProblemCode::BACnetTaken, "Set the identifier to \"%1\"", otherInstance},
    {ProblemCode::LogUnfed, "Delete the log", deleted},
    {ProblemCode::ExpressionPercent, respellText, divided},
    {ProblemCode::NumberUnreadable, resetText, reset},
    {ProblemCode::ReferenceElement, linkText, relinked},
    {ProblemCode::ReferenceElement, respellText, respelled},
    {ProblemCode::ReferenceMissing, linkText, relinked},
    {ProblemCode::ReferenceMissing, respellText, respelled},
    {ProblemCode::ReferenceMissing, "Unset the link", unlinked},
    {ProblemCode::StateRange, "Set \"%1\" of \"%2\" to %3, the smallest value",
     clampedSetting<Limit::Smallest>},
    {ProblemCode::StateRange, "Set \"%1\" of \"%2\" to %3, the largest value",
     clampedSetting<Limit::Largest>},
};

struct PlannedFix
{
    QString text;
    Plan plan;
};

std::optional<PlannedFix> plannedFix(const Row &row, const Problem &problem)
{
    DesignerObject *object = problem.source && problem.source->project() ? problem.source.data() : nullptr;
    const SharedProperty property = object ? object->getProperty(problem.property) : SharedProperty();
    if (!object || (!property && !problem.property.isEmpty())) {
        return {};
    }
    const MaybePlan plan = row.plan({problem, *object, property});
    if (!plan) {
        return {};
    }
    const QString text = Common::LocalizationHelper::coreString(QString::fromUtf8(row.text));
    return PlannedFix{filledText(text, plan->words), *plan};
}

//! Whether the name could also mean another object.
bool isAmbiguous(const DesignerObject &object)
{
    const QString &name = object.getIdName();
    const SharedProperty list = object.listProperty();
    return kindCast<Element>(&object) && object.screen() ? object.screen()->elementIndex().count(name) > 1
                                                         : list && list->listItemCount(name) > 1;
}

//! Renames one of several objects with the same name. References continue to mean the others, except that a
//! group lists its member under the new name.
class RenameNamesake : public ModelCommand
{
public:
    RenameNamesake(DesignerObject &object, const QString &name)
        : ModelCommand(object.idProperty(), true, nullptr)
    {
        setTitle(u"Rename %1"_s, object.getIdName());
        for (const ValueChange &change : ReferenceChanges::renamed(&object, name)) {
            if (change.property->parentObject() == object.ownerObject()) {
                addChanges({change});
            }
        }
        IdentifierInfo info = object.getIdInfo();
        info.setName(name);
        addValueStep(object.idProperty(), info.toString());
    }
};

std::unique_ptr<UndoCommand> commandFor(const Plan &plan)
{
    DesignerObject *object = plan.property->parentObject();
    switch (plan.action) {
    case Plan::Rename:
        if (isAmbiguous(*object)) {
            return std::make_unique<RenameNamesake>(*object, plan.value);
        }
        return Commands::renameOf(object, plan.value).command;
    case Plan::Delete:
        return Commands::deletionOf(object).command;
    case Plan::Set:
        break;
    }
    return std::make_unique<ChangeProperty>(plan.property, plan.value, true);
}

} // namespace

QList<ProblemFix> ProblemFix::of(const Problem &problem)
{
    Project *project = problem.source ? problem.source->project() : nullptr;
    if (!project || !project->undoStack()->mayEdit()) {
        return {};
    }
    QList<ProblemFix> fixes;
    for (const Row &row : rows) {
        const auto planned = row.code == problem.code ? plannedFix(row, problem) : std::nullopt;
        if (!planned) {
            continue;
        }
        const auto makeCommand = [&row, problem, text = planned->text]() -> std::unique_ptr<UndoCommand> {
            const auto now = plannedFix(row, problem);
            auto command = now && now->text == text ? commandFor(now->plan) : nullptr;
            return command && command->isValid() ? std::move(command) : nullptr;
        };
        fixes.append({planned->text, makeCommand});
    }
    return fixes;
}

QStringList ProblemFix::texts(ProblemCode code)
{
    QStringList texts;
    for (const Row &row : rows) {
        if (row.code == code) {
            texts.append(QString::fromUtf8(row.text));
        }
    }
    return texts;
}

} // namespace Halvane::Corvex::Designer
