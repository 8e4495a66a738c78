// SPDX-License-Identifier: MIT
#include "ProjectEditor.h"

#include "corvex/common/files/FileHelper.h"
#include "corvex/core/DesignerFactory.h"
#include "corvex/editing/commands/ChangeConfiguration.h"
#include "corvex/editing/commands/RenameProject.h"
#include "corvex/editing/commands/groups/GroupCommand.h"
#include "corvex/editing/commands/groups/SplitGroup.h"
#include "corvex/editing/commands/groups/UngroupCommand.h"
#include "corvex/editing/commands/images/AddImage.h"
#include "corvex/editing/commands/images/ImageNames.h"
#include "corvex/editing/commands/images/RenameImage.h"
#include "corvex/editing/commands/images/ReplaceImage.h"
#include "corvex/editing/commands/objects/AddObject.h"
#include "corvex/editing/commands/objects/ChangeProperty.h"
#include "corvex/editing/commands/objects/DeleteObjectsAndCheckFilters.h"
#include "corvex/editing/commands/objects/MoveObject.h"
#include "corvex/editing/commands/objects/SwapItems.h"
#include "corvex/editing/commands/screens/AddScreen.h"
#include "corvex/editing/commands/screens/RenameScreen.h"
#include "corvex/editing/commands/variables/AddVariable.h"
#include "corvex/editing/commands/variables/RenameVariable.h"
#include "corvex/editing/undo/UndoStack.h"
#include "corvex/hardware/ConfigurationContainer.h"
#include "corvex/hardware/HardwareConfigurations.h"
#include "corvex/project/ImageResource.h"
#include "corvex/project/Project.h"
#include "corvex/project/Screen.h"
#include "corvex/project/elements/FilterElement.h"
#include "corvex/values/records/ListInfo.h"
#include "corvex/variables/ProjectVariable.h"

#include "EditLine.h"
#include "Installation.h"
#include "LineCommand.h"
#include "ProjectPath.h"
#include "terminal/Explanation.h"
#include "terminal/Suggestion.h"

#include <QFileInfo>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace Halvane::Corvex::Tool {

using namespace Designer;

namespace {

const QString refused = u"The project does not take this."_s;

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

QString withName(const DesignerObject *object, const QString &name)
{
    IdentifierInfo info = object->getIdInfo();
    info.setName(name);
    return info.toString();
}

QString pathOf(const SharedProperty &property)
{
    const DesignerObject *owner = property->parentObject();
    return owner ? u"%1.%2"_s.arg(owner->objectPath(), property->id()) : property->id();
}

} // namespace

struct ProjectEditor::Entry
{
    const char *name;
    const char *usage;
    int fewest; //!< words behind the name
    int most;   //!< -1 for any number
    int made;   //!< the word that names what the edit makes; -1 without one
    bool (ProjectEditor::*run)(const Words &words);
};

const QList<ProjectEditor::Entry> &ProjectEditor::entries()
{
    static const QList<Entry> table{
        {"set", "set PATH VALUE", 1, -1, -1, &ProjectEditor::set},
        {"add", "add CLASS TO [NAME]", 2, 3, 2, &ProjectEditor::add},
        {"delete", "delete PATH...", 1, -1, -1, &ProjectEditor::remove},
        {"rename", "rename PATH NAME", 2, 2, 1, &ProjectEditor::rename},
        {"group", "group NAME PATH...", 3, -1, 0, &ProjectEditor::group},
        {"ungroup", "ungroup PATH", 1, 1, -1, &ProjectEditor::ungroup},
        {"split", "split PATH MEMBER...", 2, -1, -1, &ProjectEditor::splitGroup},
        {"swap", "swap PATH PATH", 2, 2, -1, &ProjectEditor::swap},
        {"move", "move PATH TO", 2, 2, -1, &ProjectEditor::move},
        {"add-image", "add-image FILE...", 1, -1, 0, &ProjectEditor::addImages},
        {"replace-image", "replace-image PATH FILE [NAME]", 2, 3, 2, &ProjectEditor::replaceImage},
        {"model", "model NAME", 1, -1, -1, &ProjectEditor::model},
        {"filter", "filter NAME PATH...", 2, -1, 0, &ProjectEditor::filter},
        {"undo", "undo [N]", 0, 1, -1, &ProjectEditor::undo},
        {"redo", "redo [N]", 0, 1, -1, &ProjectEditor::redo},
        {"print", "print PATH", 1, 1, -1, &ProjectEditor::print},
    };
    return table;
}

ProjectEditor::Result ProjectEditor::run(const QString &line, QString &error)
{
    const QString trimmed = line.trimmed();
    if (trimmed.isEmpty() || trimmed.startsWith(u'#')) {
        return Result::Done;
    }
    m_error.clear();
    EditLine taken;
    if (!taken.read(trimmed, error)) {
        return judgeFailure(nullptr, {});
    }
    m_rest = taken.rest;
    Words &words = taken.words;
    const QString name = words.takeFirst();
    const auto entry =
        std::ranges::find(entries(), name, [](const Entry &known) { return QLatin1StringView(known.name); });
    if (entry == entries().cend()) {
        QStringList names;
        for (const Entry &known : entries()) {
            names.append(QString::fromLatin1(known.name));
        }
        error = Suggestion::unknown(u"edit"_s, name, names, u"\"corvex help edit\" lists them."_s);
        return judgeFailure(nullptr, {});
    }
    if (words.size() < entry->fewest || (entry->most >= 0 && words.size() > entry->most)) {
        error = u"The form of this edit is: %1"_s.arg(QLatin1StringView(entry->usage));
        return judgeFailure(&*entry, words);
    }
    const bool isStep = entry->run == &ProjectEditor::undo || entry->run == &ProjectEditor::redo;
    m_isLost = m_isLost || (m_hasFailed && isStep);
    if (!m_isLost && (this->*entry->run)(words)) {
        return Result::Done;
    }
    error = m_error;
    return judgeFailure(&*entry, words);
}

//! Whether a line that cannot be done is wrong itself; notes what others will miss for it.
ProjectEditor::Result ProjectEditor::judgeFailure(const Entry *entry, const Words &words)
{
    const bool follows = m_isLost || std::ranges::any_of(words, [this](const QString &word) {
                             return std::ranges::any_of(word.split(u'.'), [this](const QString &name) {
                                 return m_unmade.contains(name);
                             });
                         });
    const QString name = entry && entry->made >= 0 ? words.value(entry->made) : QString();
    if (!name.isEmpty() && !ProjectPath::isName(m_project, name)) {
        m_unmade.insert(name);
    }
    m_hasFailed = true;
    return follows ? Result::Follows : Result::Failed;
}

bool ProjectEditor::fail(const QString &reason)
{
    m_error = reason;
    return false;
}

bool ProjectEditor::push(ModelCommand *command)
{
    std::unique_ptr<ModelCommand> owned(command);
    if (!command->isValid()) {
        const QString reason = command->errorString();
        return fail(reason.isEmpty() ? u"This cannot be done here."_s : reason);
    }
    // What leaves the project is known by where it was.
    QHash<const DesignerProperty *, QString> paths;
    for (const ValueChange &change : command->valueChanges()) {
        paths.insert(change.property.data(), pathOf(change.property));
    }
    UndoStack *stack = m_project.undoStack();
    if (!stack->push(owned.release())) {
        return fail(stack->errorString().isEmpty() ? refused : stack->errorString());
    }
    QList<Change> changes;
    for (const auto &[property, before, after] : command->valueChanges()) {
        const DesignerObject *owner = property->parentObject();
        const bool isThere = owner && owner->project();
        changes.append({isThere ? pathOf(property) : paths.value(property.data()), before, after});
    }
    Edit edit{command->text(), LineCommand::partsOf(*command), changes};
    std::ranges::stable_sort(edit.changes, {}, &Change::property);
    m_edits.append(edit);
    return true;
}

bool ProjectEditor::push(ModelCommand *command, const DesignerObject *made)
{
    if (!push(command) || made->idProperty()->isValid()) {
        return m_error.isEmpty();
    }
    fail(Explanation::ofName(*made, made->getIdName(), made->idProperty()->errorString()));
    m_project.undoStack()->undo();
    m_edits.removeLast();
    return false;
}

void ProjectEditor::undoAll()
{
    m_project.undoStack()->setIndex(0);
    m_project.createUndoStack();
}

DesignerObject *ProjectEditor::object(const QString &path)
{
    const ProjectPlace place = ProjectPath::find(&m_project, path);
    if (!place.object || place.property) {
        fail(ProjectPath::problem(&m_project, path, ProjectPath::Object));
        return nullptr;
    }
    return place.object;
}

bool ProjectEditor::objects(const Words &paths, QList<DesignerObject *> &found)
{
    for (const QString &path : paths) {
        DesignerObject *item = object(path);
        if (!item) {
            return false;
        }
        found.append(item);
    }
    return true;
}

SharedProperty ProjectEditor::listFor(const QString &path, const DesignerObject &item)
{
    SharedProperty list = ProjectPath::listFor(&m_project, path, item);
    if (!list && !ProjectPath::find(&m_project, path).object) {
        fail(ProjectPath::problem(&m_project, path, ProjectPath::Anything));
    } else if (!list) {
        fail(u"\"%1\" has no list for an object of the class %2."_s.arg(path, item.className()));
    }
    return list;
}

bool ProjectEditor::set(const Words &words)
{
    const ProjectPlace place = ProjectPath::find(&m_project, words.first());
    if (!place.property) {
        return fail(ProjectPath::problem(&m_project, words.first(), ProjectPath::Property));
    }
    if (place.property->isList() || place.property->isObject()) {
        return fail(u"\"%1\" holds objects. Use add, delete and move."_s.arg(words.first()));
    }
    if (place.property == place.object->idProperty()) {
        return fail(u"Names are given by rename, which takes all references along."_s);
    }
    if (!place.property->hasFlag(StoredFlag)) {
        return fail(u"\"%1\" is not stored; it follows from other values."_s.arg(words.first()));
    }
    const QString value = words.size() == 2 ? words.at(1) : m_rest;
    if (place.property->valueString() == value) {
        return true;
    }
    if (push(new ChangeProperty(place.property, value, false))) {
        return true;
    }
    return fail(m_error == refused ? u"\"%1\" does not take \"%2\"."_s.arg(words.first(), value) : m_error);
}

bool ProjectEditor::add(const Words &words)
{
    const std::unique_ptr<DesignerObject> sample(make(words.first(), {}));
    if (!sample) {
        return fail(Suggestion::unknown(u"class"_s, words.first(),
                                        DesignerFactory::instance()->creatableNames(),
                                        u"Classes of other plug-ins are there with --plugins DIR."_s));
    }
    if (kindCast<ImageResource>(sample.get())) {
        return fail(u"Images are added by add-image, which takes their files along."_s);
    }
    const SharedProperty list = listFor(words.at(1), *sample);
    if (!list) {
        return false;
    }
    QString name = words.value(2);
    if (name.isEmpty() && (list == m_project.screens() || list == m_project.variables())) {
        name = m_project.generateUniqueName(sample->baseName());
    }
    if (name.isEmpty()) {
        return push(new AddObject(list, words.first(), name, false));
    }
    if (list->hasListItem(name)) {
        sample->setIdName(name);
        return fail(Explanation::ofItem(*sample, list, u"This cannot be added."_s));
    }
    DesignerObject *item = make(words.first(), name);
    if (list == m_project.screens()) {
        return push(new AddScreen(item, &m_project, -1), item);
    }
    if (list == m_project.variables()) {
        return push(new AddVariable(item, &m_project), item);
    }
    return push(new AddObject(list, item, false), item);
}

bool ProjectEditor::remove(const Words &words)
{
    QList<DesignerObject *> found;
    if (!objects(words, found)) {
        return false;
    }
    if (found.size() == 1) {
        ModelCommand *command = LineCommand::deletionOf(found.first(), nullptr);
        return command ? push(command) : fail(u"\"%1\" cannot be deleted."_s.arg(words.first()));
    }
    auto all = std::make_unique<LineCommand>();
    QSet<DesignerObject *> known;
    QList<Screen *> screens;
    QHash<Screen *, QList<DesignerObject *>> elements; // and filters: together they decide what else goes
    for (DesignerObject *item : std::as_const(found)) {
        if (known.contains(item)) {
            continue;
        }
        known.insert(item);
        if (kindCast<Element>(item)) {
            if (!elements.contains(item->screen())) {
                screens.append(item->screen());
            }
            elements[item->screen()].append(item);
        } else if (!LineCommand::deletionOf(item, all.get())) {
            return fail(u"\"%1\" cannot be deleted."_s.arg(item->objectPath()));
        }
    }
    for (Screen *screen : std::as_const(screens)) {
        new DeleteObjectsAndCheckFilters(elements.value(screen), screen, all.get());
    }
    all->describe();
    return all->childCount() == 0 || push(all.release());
}

bool ProjectEditor::rename(const Words &words)
{
    DesignerObject *item = object(words.first());
    const QString &name = words.at(1);
    if (!item) {
        return false;
    }
    if (item->getIdName() == name) {
        return true;
    }
    return rename(*item, name) || fail(Explanation::ofName(*item, name, m_error));
}

bool ProjectEditor::rename(DesignerObject &item, const QString &name)
{
    if (&item == &m_project) {
        return push(new RenameProject(&m_project, name));
    }
    if (kindCast<ImageResource>(&item)) {
        return push(new RenameImage(&item, name));
    }
    const bool isScreen = kindCast<Screen>(&item);
    const bool isVariable = kindCast<ProjectVariable>(&item);
    if (!isScreen && !isVariable && !kindCast<Element>(&item)) {
        return fail(u"\"%1\" cannot be renamed."_s.arg(item.objectPath()));
    }
    if (isScreen) {
        return push(new RenameScreen(&item, name));
    }
    if (isVariable) {
        return push(new RenameVariable(&item, name));
    }
    return push(new ChangeProperty(item.idProperty(), withName(&item, name), false));
}

bool ProjectEditor::group(const Words &words)
{
    QList<DesignerObject *> members;
    if (!objects(words.sliced(1), members)) {
        return false;
    }
    for (const DesignerObject *member : std::as_const(members)) {
        if (!kindCast<Element>(member)) {
            return fail(
                u"\"%1\" is a %2. A group takes elements."_s.arg(member->objectPath(), member->className()));
        }
        if (member->listProperty() != members.constFirst()->listProperty()) {
            return fail(u"\"%1\" and \"%2\" are not in the same place. A group takes elements of one screen, "
                        "or of one group."_s.arg(members.constFirst()->objectPath(), member->objectPath()));
        }
    }
    DesignerObject *made = make(u"GroupElement"_s, words.first());
    return push(new GroupCommand(made, members), made);
}

bool ProjectEditor::ungroup(const Words &words)
{
    DesignerObject *item = object(words.first());
    return item && push(new UngroupCommand(item));
}

bool ProjectEditor::splitGroup(const Words &words)
{
    DesignerObject *item = object(words.first());
    return item && push(new SplitGroup(item, words.sliced(1)));
}

bool ProjectEditor::swap(const Words &words)
{
    QList<DesignerObject *> both;
    return objects(words, both)
           && push(new SwapItems(both.first()->listProperty(), both.first(), both.last()));
}

bool ProjectEditor::move(const Words &words)
{
    DesignerObject *item = object(words.first());
    const SharedProperty list = item ? listFor(words.at(1), *item) : SharedProperty();
    if (!list) {
        return false;
    }
    return push(new MoveObject(item->listProperty(), list, item, false))
           || fail(Explanation::ofItem(*item, list, m_error));
}

bool ProjectEditor::addImages(const Words &words)
{
    ImageNames names(&m_project);
    auto all = std::make_unique<LineCommand>();
    for (const QString &file : words) {
        const QFileInfo info(file);
        if (const QString reason = Explanation::ofImageFile(file); !reason.isEmpty()) {
            return fail(reason);
        }
        const QString digest = Common::FileHelper::md5(file);
        if (const QString known = names.withContents(digest, info.suffix().toLower()); !known.isEmpty()) {
            m_output.append(u"\"%1\" is in the project already: it is the image \"%2\"."_s.arg(file, known));
            continue;
        }
        const QString name = names.freeName(info.fileName());
        names.add(name, digest);
        if (name != info.fileName()) {
            m_output.append(u"\"%1\" is called \"%2\" now, since the name was used."_s.arg(file, name));
        }
        DesignerObject *image = make(ImageResource::kindName(), name);
        if (words.size() == 1) {
            return push(new AddImage(image, info.absoluteFilePath(), &m_project));
        }
        new AddImage(image, info.absoluteFilePath(), &m_project, {}, all.get());
    }
    all->describe();
    return all->childCount() == 0 || push(all.release());
}

bool ProjectEditor::replaceImage(const Words &words)
{
    DesignerObject *item = object(words.first());
    if (!item) {
        return false;
    }
    if (const QString reason = Explanation::ofImageFile(words.at(1)); !reason.isEmpty()) {
        return fail(reason);
    }
    const QString name = words.size() > 2 ? words.at(2) : item->getIdName();
    return push(new ReplaceImage(item, QFileInfo(words.at(1)).absoluteFilePath(), name));
}

bool ProjectEditor::model(const Words &words)
{
    if (!HardwareConfigurations::instance() && !Installation::loadModels(m_call)) {
        return fail(u"No device model can be read."_s);
    }
    const ConfigurationContainer &models = *HardwareConfigurations::instance()->installed();
    const QString name = words.join(u' ');
    if (!models.configuration(name)) {
        return fail(Installation::unknownModel(name, models));
    }
    auto *command = new ChangeConfiguration(&m_project, name);
    const QList<ChangeConfiguration::Move> moves = command->moves();
    if (!push(command)) {
        return false;
    }
    for (const auto &[element, from, to] : moves) {
        const QString what = to > 0
                                 ? u"%1: moved from channel %2 to %3"_s.arg(element).arg(from).arg(to)
                                 : u"%1: has no channel %2 here, and none is free"_s.arg(element).arg(from);
        m_output.append(what);
    }
    return true;
}

bool ProjectEditor::filter(const Words &words)
{
    QList<DesignerObject *> listed;
    if (!objects(words.sliced(1), listed)) {
        return false;
    }
    Screen *screen = listed.first()->screen();
    QStringList names;
    for (const DesignerObject *item : std::as_const(listed)) {
        if (!screen || item->screen() != screen || !kindCast<Element>(item)
            || kindCast<FilterElement>(item)) {
            return fail(u"A filter lists elements of one screen."_s);
        }
        names.append(item->getIdName());
    }
    const QString text = ListInfo(names).toString();
    if (const DesignerObject *known = screen->filters()->getListItem(words.first())) {
        return push(new ChangeProperty(known->getProperty(u"elements"), text, false));
    }
    DesignerObject *made = make(FilterElement::kindName(), words.first());
    made->changePropertyValue(made->getProperty(u"elements"), text);
    return push(new AddObject(screen->filters(), made, false), made);
}

bool ProjectEditor::step(const Words &words, int direction)
{
    bool isNumber = true;
    const int count = words.isEmpty() ? 1 : words.first().toInt(&isNumber);
    UndoStack *stack = m_project.undoStack();
    const int most = direction < 0 ? stack->index() : stack->count() - stack->index();
    if (!isNumber || count < 0 || count > most) {
        return fail(direction < 0 ? u"There are %1 edits to undo."_s.arg(most)
                                  : u"There are %1 edits to redo."_s.arg(most));
    }
    stack->setIndex(stack->index() + direction * count);
    m_edits.append({direction < 0 ? u"Undo %1"_s.arg(count) : u"Redo %1"_s.arg(count), {}, {}});
    return true;
}

bool ProjectEditor::undo(const Words &words)
{
    return step(words, -1);
}

bool ProjectEditor::redo(const Words &words)
{
    return step(words, 1);
}

bool ProjectEditor::print(const Words &words)
{
    const ProjectPlace place = ProjectPath::find(&m_project, words.first());
    if (!place.object) {
        return fail(ProjectPath::problem(&m_project, words.first(), ProjectPath::Anything));
    }
    if (!place.property) {
        m_output.append(u"%1 %2"_s.arg(place.object->className(), place.object->getIdName()));
    } else if (place.property->isList()) {
        m_output.append(place.property->listItemNames().join(u", "_s));
    } else {
        m_output.append(place.property->valueString());
    }
    return true;
}

} // namespace Halvane::Corvex::Tool
