// SPDX-License-Identifier: MIT
#include "corvex/editing/words/private/EditPlanner.h"

#include "corvex/common/LocalizationHelper.h"
#include "corvex/common/files/FileHelper.h"
#include "corvex/core/DesignerFactory.h"
#include "corvex/core/properties/BasicProperties.h"
#include "corvex/editing/commands/ChangeConfiguration.h"
#include "corvex/editing/commands/Commands.h"
#include "corvex/editing/commands/CompositeCommand.h"
#include "corvex/editing/commands/groups/GroupCommand.h"
#include "corvex/editing/commands/groups/SplitGroup.h"
#include "corvex/editing/commands/groups/UngroupCommand.h"
#include "corvex/editing/commands/images/AddImage.h"
#include "corvex/editing/commands/images/ImageNames.h"
#include "corvex/editing/commands/images/ReplaceImage.h"
#include "corvex/editing/commands/objects/AddObject.h"
#include "corvex/editing/commands/objects/ChangeProperty.h"
#include "corvex/editing/commands/objects/MoveObject.h"
#include "corvex/editing/commands/objects/SwapItems.h"
#include "corvex/editing/commands/screens/AddScreen.h"
#include "corvex/editing/commands/variables/AddVariable.h"
#include "corvex/editing/undo/UndoStack.h"
#include "corvex/editing/words/EditLine.h"
#include "corvex/editing/words/ProjectPath.h"
#include "corvex/editing/words/ReadableValue.h"
#include "corvex/editing/words/Suggestion.h"
#include "corvex/editing/words/private/Explanation.h"
#include "corvex/hardware/Configuration.h"
#include "corvex/hardware/ConfigurationContainer.h"
#include "corvex/hardware/HardwareConfigurations.h"
#include "corvex/project/ImageResource.h"
#include "corvex/project/Project.h"
#include "corvex/project/Screen.h"
#include "corvex/project/elements/FilterElement.h"
#include "corvex/project/files/FileNameRules.h"
#include "corvex/values/records/ListInfo.h"
#include "corvex/values/text/ObjectPath.h"
#include "corvex/variables/ProjectVariable.h"

#include <QFileInfo>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace Halvane::Corvex::Designer {

using Common::LocalizationHelper;

namespace {

template<class... Arguments>
QString text(const QString &english, const Arguments &...arguments)
{
    const QString localized = LocalizationHelper::coreString(english);
    if constexpr (sizeof...(arguments) > 0) {
        return localized.arg(arguments...);
    } else {
        return localized;
    }
}

template<class... Arguments>
void refuse(EditPlan &plan, const QString &english, const Arguments &...arguments)
{
    plan.refusal = {text(english, arguments...)};
}

//! The value of a "set", behind an optional "=".
QString valueIn(const EditCall &call)
{
    const bool hasSign = call.words.value(1) == u'=' && call.rest.startsWith(u'=');
    return hasSign ? call.rest.sliced(1).trimmed() : call.rest;
}

DesignerObject *make(const QString &className, const QString &name)
{
    const DesignerFactory *factory = DesignerFactory::instance();
    DesignerObject *object = factory->canCreateObject(className) ? factory->createObject(className) : nullptr;
    if (object) {
        object->setParent(nullptr);
        object->setIdName(name);
    }
    return object;
}

} // namespace

bool EditCall::movesHistory() const
{
    return form && (form->plan == &EditPlanner::undo || form->plan == &EditPlanner::redo);
}

const QList<EditForm> &EditPlanner::forms()
{
    static const QList<EditForm> table{
        {"set", "set PATH VALUE", 1, -1, -1, &EditPlanner::set},
        {"add", "add CLASS TO [NAME], or add CLASS TO NAME { property: value; property: value }", 2, 3, 2,
         &EditPlanner::add},
        {"copy", "copy PATH [NAME]", 1, 2, 1, &EditPlanner::copy},
        {"delete", "delete PATH...", 1, -1, -1, &EditPlanner::remove},
        {"rename", "rename PATH NAME", 2, 2, 1, &EditPlanner::rename},
        {"group", "group NAME PATH...", 3, -1, 0, &EditPlanner::group},
        {"ungroup", "ungroup PATH", 1, 1, -1, &EditPlanner::ungroup},
        {"split", "split PATH MEMBER...", 2, -1, -1, &EditPlanner::splitGroup},
        {"swap", "swap PATH PATH", 2, 2, -1, &EditPlanner::swap},
        {"move", "move PATH TO", 2, 2, -1, &EditPlanner::move},
        {"add-image", "add-image FILE...", 1, -1, 0, &EditPlanner::addImages},
        {"replace-image", "replace-image PATH FILE [NAME]", 2, 3, 2, &EditPlanner::replaceImage},
        {"model", "model NAME", 1, -1, -1, &EditPlanner::model},
        {"filter", "filter NAME PATH...", 2, -1, 0, &EditPlanner::filter},
        {"undo", "undo [N]", 0, 1, -1, &EditPlanner::undo},
        {"redo", "redo [N]", 0, 1, -1, &EditPlanner::redo},
        {"print", "print PATH", 1, 1, -1, &EditPlanner::print},
    };
    return table;
}

const EditForm *EditPlanner::formNamed(const QString &name)
{
    const auto form =
        std::ranges::find(forms(), name, [](const EditForm &known) { return QLatin1StringView(known.name); });
    return form == forms().cend() ? nullptr : &*form;
}

EditCall EditPlanner::read(const QString &line)
{
    EditCall call;
    QString trimmed = line.trimmed();
    if (trimmed.isEmpty() || trimmed.startsWith(u'#')) {
        return call;
    }
    call.endsWithBlank = line.endsWith(u' ') || line.endsWith(u'\t');
    const qsizetype brace = trimmed.indexOf(u'{');
    if (brace > 0 && trimmed.startsWith("add "_L1) && trimmed.endsWith(u'}')) {
        const auto settings = SettingText::readOfOne(trimmed.sliced(brace));
        if (!settings) {
            call.refusal.message = text(u"Values have the form \"{ property: value; property: value }\"."_s);
            return call;
        }
        call.settings = *settings;
        trimmed = trimmed.first(brace).trimmed();
    }
    EditLine taken;
    if (!taken.read(trimmed, call.refusal.message)) {
        return call;
    }
    QString name = taken.words.takeFirst();
    if (!formNamed(name) && taken.words.value(0) == u'=') { // "PATH = VALUE"
        taken.words.prepend(name);
        taken.rest.prepend("= "_L1);
        name = u"set"_s;
    }
    const EditForm *form = formNamed(name);
    if (!form) {
        QStringList names;
        for (const EditForm &known : forms()) {
            names.append(QString::fromLatin1(known.name));
        }
        call.refusal = {Suggestion::unknown(u"edit"_s, name, names, {}), EditRefusal::Edits};
        return call;
    }
    call.form = form;
    call.words = taken.words;
    call.rest = taken.rest;
    if (call.words.size() < form->fewest || (form->most >= 0 && call.words.size() > form->most)) {
        call.refusal.message = text(u"Usage: %1"_s, QLatin1StringView(form->usage));
    } else if (!call.settings.isEmpty() && call.givenName().isEmpty()) {
        call.refusal.message =
            text(u"Name the object, so that its values can be set: add CLASS TO NAME { ... }"_s);
    }
    return call;
}

EditPlan EditPlanner::plan(const EditCall &call) const
{
    EditPlan plan;
    plan.refusal = call.refusal;
    plan.defaultReason = text(u"The project does not accept this."_s);
    if (call.form && !plan.isRefused()) {
        (this->*call.form->plan)(call, plan);
    }
    return plan;
}

void EditPlanner::take(std::unique_ptr<ModelCommand> command, EditPlan &plan)
{
    if (command->isValid()) {
        plan.command = std::move(command);
        return;
    }
    const QString reason = command->errorString();
    plan.refusal.message = plan.explained(reason.isEmpty() ? text(u"This cannot be done here."_s) : reason);
}

void EditPlanner::take(PlannedCommand planned, EditPlan &plan)
{
    plan.command = std::move(planned.command);
    plan.output += planned.notes;
    if (!plan.command) {
        plan.refusal.message = plan.explained(planned.reason);
    }
}

DesignerObject *EditPlanner::object(const QString &path, EditPlan &plan) const
{
    const ProjectPlace place = ProjectPath::find(m_project, path);
    if (!place.object || place.property) {
        plan.refusal = ProjectPath::refusal(m_project, path, ProjectPath::Object);
        return nullptr;
    }
    return place.object;
}

bool EditPlanner::objects(const QStringList &paths, QList<DesignerObject *> &found, EditPlan &plan) const
{
    for (const QString &path : paths) {
        DesignerObject *item = object(path, plan);
        if (!item) {
            return false;
        }
        found.append(item);
    }
    return true;
}

SharedProperty EditPlanner::listFor(const QString &path, const DesignerObject &item, EditPlan &plan) const
{
    SharedProperty list = ProjectPath::listFor(m_project, path, item);
    if (!list && !ProjectPath::find(m_project, path).object) {
        plan.refusal = ProjectPath::refusal(m_project, path, ProjectPath::Anything);
    } else if (!list) {
        refuse(plan, u"\"%1\" has no list for an object of the class %2."_s, path, item.className());
    }
    return list;
}

//! Null, with the reason, if the path is not that of a property. The path of a variable means its value.
SharedProperty EditPlanner::propertyToSet(const QString &path, EditPlan &plan) const
{
    const auto [object, property] = ProjectPath::find(m_project, path);
    const auto *variable = property ? nullptr : kindCast<ProjectVariable>(object);
    if (variable && variable->value()
        && variable->value()->editorParameters().value(u"visible"_s, true).toBool()) {
        return variable->value();
    }
    if (property) {
        return property;
    }
    plan.refusal = ProjectPath::refusal(m_project, path, ProjectPath::Property);
    const QString id = ObjectPath::lastSegment(path).toString();
    const ProjectPlace place =
        ProjectPath::find(m_project, path.chopped(std::min(path.size(), id.size() + 1)));
    const auto *owner = place.property ? nullptr : kindCast<Element>(place.object);
    const RuntimePropertyList known = owner ? owner->runtimeProperties() : RuntimePropertyList();
    if (std::ranges::find(known, id, &RuntimeProperty::property) != known.end()) {
        const QString stored = id == u'x' || id == u'y'                ? u"position"_s
                               : id == "width"_L1 || id == "height"_L1 ? u"size"_s
                                                                       : QString();
        refuse(plan,
               stored.isEmpty()
                   ? u"\"%1\" exists only on the device, where expressions, rules and assignments "
                     "use it."_s
                   : u"\"%1\" exists only on the device, where expressions, rules and assignments "
                     "use it. Here, set \"%2\"."_s.arg(u"%1"_s, stored),
               path);
    }
    return {};
}

void EditPlanner::set(const EditCall &call, EditPlan &plan) const
{
    const QString &path = call.words.first();
    const SharedProperty property = propertyToSet(path, plan);
    const DesignerObject *object = property ? property->parentObject() : nullptr;
    if (!property) {
        return;
    }
    if (property->isList() || property->isObject()) {
        refuse(plan, u"\"%1\" contains objects. Use add, delete and move."_s, path);
    } else if (property == object->idProperty()) {
        refuse(plan, u"Use rename to change a name; it updates all references."_s);
    } else if (!property->hasFlag(StoredFlag)) {
        refuse(plan, u"\"%1\" cannot be set; it depends on other values."_s, path);
    } else {
        setValue(property, call, plan);
    }
}

void EditPlanner::setValue(const SharedProperty &property, const EditCall &call, EditPlan &plan) const
{
    const QString &path = call.words.first();
    const ReadableValue::Reading value = ReadableValue::read(*property, valueIn(call));
    if (!value.error.isEmpty()) {
        refuse(plan, u"\"%1\": %2"_s, path, value.error);
        return;
    }
    const bool isText = propertyCast<StringProperty>(property) && kindCast<Element>(property->parentObject());
    if (call.endsWithBlank && isText && !valueIn(call).endsWith(u'"')) {
        plan.output.append(
            text(u"%1: The blank at the end is not part of the value. Put the value in quotes to keep it."_s,
                 path));
    }
    const bool isHidden = !property->editorParameters().value(u"visible"_s, true).toBool();
    plan.defaultReason = isHidden ? text(u"\"%1\" is always %2 in objects of the class %3."_s, path,
                                         property->valueString(), property->parentObject()->className())
                                  : text(u"\"%1\" does not accept \"%2\"."_s, path, value.stored);
    if (property->valueString() != value.stored) {
        take(std::make_unique<ChangeProperty>(property, value.stored, false), plan);
        plan.changed = property;
    }
}

void EditPlanner::add(const EditCall &call, EditPlan &plan) const
{
    const QString &className = call.words.first();
    const std::unique_ptr<DesignerObject> sample(make(className, {}));
    if (!sample) {
        plan.refusal = {
            Suggestion::unknown(u"class"_s, className, DesignerFactory::instance()->creatableNames(), {}),
            EditRefusal::Classes};
        return;
    }
    if (kindCast<ImageResource>(sample.get())) {
        refuse(plan, u"Use add-image to add an image; it copies the file."_s);
        return;
    }
    const SharedProperty list = listFor(call.words.at(1), *sample, plan);
    if (!list) {
        return;
    }
    const bool isScreen = list == m_project.screens();
    const bool isVariable = list == m_project.variables();
    QString name = call.words.value(2);
    if (name.isEmpty() && (isScreen || isVariable)) {
        name = m_project.generateUniqueName(sample->baseName());
    }
    if (name.isEmpty()) {
        take(std::make_unique<AddObject>(list, className, name, false), plan);
        return;
    }
    if (list->hasListItem(name)) {
        sample->setIdName(name);
        plan.refusal.message = Explanation::ofItem(*sample, list, text(u"This cannot be added."_s));
        return;
    }
    DesignerObject *item = make(className, name);
    plan.added = item;
    if (isScreen) {
        take(std::make_unique<AddScreen>(item, &m_project, -1), plan);
    } else if (isVariable) {
        take(std::make_unique<AddVariable>(item, &m_project), plan);
    } else {
        take(std::make_unique<AddObject>(list, item, false), plan);
    }
}

void EditPlanner::copy(const EditCall &call, EditPlan &plan) const
{
    DesignerObject *original = object(call.words.first(), plan);
    const QString name = call.words.value(1);
    if (!original) {
        return;
    }
    if (name.isEmpty()) {
        take(Commands::duplicationOf({original}), plan);
        return;
    }
    plan.explain = [original, name](const QString &reason) {
        return Explanation::ofName(*original, name, reason);
    };
    take(Commands::copyOf(original, name), plan);
}

void EditPlanner::remove(const EditCall &call, EditPlan &plan) const
{
    QList<DesignerObject *> found;
    if (objects(call.words, found, plan)) {
        take(Commands::deletionOf(found), plan);
    }
}

void EditPlanner::rename(const EditCall &call, EditPlan &plan) const
{
    DesignerObject *item = object(call.words.first(), plan);
    const QString &name = call.words.at(1);
    if (item && item->getIdName() != name) {
        plan.explain = [item, name](const QString &reason) {
            return Explanation::ofName(*item, name, reason);
        };
        take(Commands::renameOf(item, name), plan);
    }
}

void EditPlanner::group(const EditCall &call, EditPlan &plan) const
{
    QList<DesignerObject *> members;
    if (!objects(call.words.sliced(1), members, plan)) {
        return;
    }
    const DesignerObject *first = members.constFirst();
    for (const DesignerObject *member : std::as_const(members)) {
        if (!kindCast<Element>(member)) {
            refuse(plan, u"\"%1\" is a %2. A group contains elements."_s, member->objectPath(),
                   member->className());
            return;
        }
        if (member->listProperty() != first->listProperty()) {
            refuse(plan,
                   u"\"%1\" and \"%2\" are not in the same place. A group contains elements of one screen, "
                   "or of one group."_s,
                   first->objectPath(), member->objectPath());
            return;
        }
    }
    DesignerObject *made = make(u"GroupElement"_s, call.words.first());
    plan.added = made;
    take(std::make_unique<GroupCommand>(made, members), plan);
}

void EditPlanner::ungroup(const EditCall &call, EditPlan &plan) const
{
    if (DesignerObject *item = object(call.words.first(), plan)) {
        take(std::make_unique<UngroupCommand>(item), plan);
    }
}

void EditPlanner::splitGroup(const EditCall &call, EditPlan &plan) const
{
    if (DesignerObject *item = object(call.words.first(), plan)) {
        take(std::make_unique<SplitGroup>(item, call.words.sliced(1)), plan);
    }
}

void EditPlanner::swap(const EditCall &call, EditPlan &plan) const
{
    QList<DesignerObject *> both;
    if (objects(call.words, both, plan)) {
        take(std::make_unique<SwapItems>(both.first()->listProperty(), both.first(), both.last()), plan);
    }
}

void EditPlanner::move(const EditCall &call, EditPlan &plan) const
{
    DesignerObject *item = object(call.words.first(), plan);
    const SharedProperty list = item ? listFor(call.words.at(1), *item, plan) : SharedProperty();
    if (list) {
        plan.explain = [item, list](const QString &reason) {
            return Explanation::ofItem(*item, list, reason);
        };
        take(std::make_unique<MoveObject>(item->listProperty(), list, item, false), plan);
    }
}

void EditPlanner::addImages(const EditCall &call, EditPlan &plan) const
{
    ImageNames names(&m_project);
    auto all = std::make_unique<CompositeCommand>();
    for (const QString &file : call.words) {
        const QFileInfo info(file);
        if (const QString reason = Explanation::ofImageFile(file); !reason.isEmpty()) {
            plan.refusal.message = reason;
            return;
        }
        const QString digest = Common::FileHelper::md5(file);
        if (const QString known = names.withContents(digest, info.suffix().toLower()); !known.isEmpty()) {
            plan.output.append(
                text(u"\"%1\" is already in the project, as the image \"%2\"."_s, file, known));
            continue;
        }
        const QString name = names.freeName(info.fileName());
        names.add(name, digest);
        if (name != info.fileName()) {
            plan.output.append(
                text(u"\"%1\" was renamed to \"%2\" because the name was in use."_s, file, name));
        }
        if (const QString error = FileNameRules::imageNameError(name); !error.isEmpty()) {
            plan.refusal.message = Explanation::ofImageName(name, error);
            return;
        }
        DesignerObject *image = make(ImageResource::kindName(), name);
        if (call.words.size() == 1) {
            take(std::make_unique<AddImage>(image, info.absoluteFilePath(), &m_project), plan);
            return;
        }
        new AddImage(image, info.absoluteFilePath(), &m_project, {}, all.get());
    }
    if (all->childCount() > 0) {
        all->describe();
        take(std::move(all), plan);
    }
}

void EditPlanner::replaceImage(const EditCall &call, EditPlan &plan) const
{
    DesignerObject *item = object(call.words.first(), plan);
    const QString &file = call.words.at(1);
    const QString reason = item ? Explanation::ofImageFile(file) : QString();
    if (!reason.isEmpty()) {
        plan.refusal.message = reason;
    } else if (item) {
        const QString name = call.words.size() > 2 ? call.words.at(2) : item->getIdName();
        plan.explain = [name](const QString &error) { return Explanation::ofImageName(name, error); };
        take(std::make_unique<ReplaceImage>(item, QFileInfo(file).absoluteFilePath(), name), plan);
    }
}

void EditPlanner::model(const EditCall &call, EditPlan &plan) const
{
    if (!HardwareConfigurations::instance() && !(m_loadModels && m_loadModels())) {
        refuse(plan, u"No device model can be read."_s);
        return;
    }
    const ConfigurationContainer &models = *HardwareConfigurations::instance()->installed();
    const QString name = call.words.join(u' ');
    if (!models.configuration(name)) {
        QStringList names;
        for (const Configuration *known : models.configurations()) {
            names.append(known->getIdName());
        }
        plan.refusal = {Suggestion::unknown(u"device model"_s, name, names, {}), EditRefusal::Models};
        return;
    }
    auto change = std::make_unique<ChangeConfiguration>(&m_project, name);
    const QList<ChangeConfiguration::Move> moves = change->moves();
    take(std::move(change), plan);
    if (plan.isRefused()) {
        return;
    }
    for (const auto &[element, from, to] : moves) {
        const QString number = QString::number(from);
        plan.output.append(
            to > 0 ? text(u"%1: moved from channel %2 to %3"_s, element, number, QString::number(to))
                   : text(u"%1: has no channel %2 here, and none is free"_s, element, number));
    }
}

void EditPlanner::filter(const EditCall &call, EditPlan &plan) const
{
    QList<DesignerObject *> listed;
    if (!objects(call.words.sliced(1), listed, plan)) {
        return;
    }
    Screen *screen = listed.first()->screen();
    QStringList names;
    for (const DesignerObject *item : std::as_const(listed)) {
        if (!screen || item->screen() != screen || !kindCast<Element>(item)
            || kindCast<FilterElement>(item)) {
            refuse(plan, u"A filter can only list elements of one screen."_s);
            return;
        }
        names.append(item->getIdName());
    }
    const QString list = ListInfo(names).toString();
    if (const DesignerObject *known = screen->filters()->getListItem(call.words.first())) {
        take(std::make_unique<ChangeProperty>(known->getProperty(u"elements"), list, false), plan);
        return;
    }
    DesignerObject *made = make(FilterElement::kindName(), call.words.first());
    made->changePropertyValue(made->getProperty(u"elements"), list);
    plan.added = made;
    take(std::make_unique<AddObject>(screen->filters(), made, false), plan);
}

void EditPlanner::step(const EditCall &call, EditPlan &plan, int direction) const
{
    bool isNumber = true;
    const int count = call.words.isEmpty() ? 1 : call.words.first().toInt(&isNumber);
    const UndoStack *stack = m_project.undoStack();
    const int most = direction < 0 ? stack->index() : stack->count() - stack->index();
    if (!isNumber || count < 0 || count > most) {
        refuse(plan, direction < 0 ? u"There are %1 edits to undo."_s : u"There are %1 edits to redo."_s,
               QString::number(most));
        return;
    }
    plan.historySteps = direction * count;
    plan.historyText = text(direction < 0 ? u"Undo %1"_s : u"Redo %1"_s, QString::number(count));
}

void EditPlanner::undo(const EditCall &call, EditPlan &plan) const
{
    step(call, plan, -1);
}

void EditPlanner::redo(const EditCall &call, EditPlan &plan) const
{
    step(call, plan, 1);
}

void EditPlanner::print(const EditCall &call, EditPlan &plan) const
{
    const auto [object, property] = ProjectPath::find(m_project, call.words.first());
    if (!object) {
        plan.refusal = ProjectPath::refusal(m_project, call.words.first(), ProjectPath::Anything);
    } else if (!property) {
        plan.output.append(u"%1 %2"_s.arg(object->className(), object->getIdName()));
    } else if (property->isList()) {
        plan.output.append(property->listItemNames().join(u", "_s));
    } else {
        plan.output.append(ReadableValue::print(*property));
    }
}

} // namespace Halvane::Corvex::Designer
