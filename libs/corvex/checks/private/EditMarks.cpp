// SPDX-License-Identifier: MIT
#include "corvex/checks/private/EditMarks.h"

#include "corvex/core/ItemList.h"
#include "corvex/editing/references/ReferenceIndex.h"
#include "corvex/hardware/Configuration.h"
#include "corvex/project/Project.h"
#include "corvex/project/Screen.h"
#include "corvex/project/elements/HardwareElement.h"

#include <algorithm>

namespace Halvane::Corvex::Designer {

namespace {

template<class Visit>
void visitAll(const DesignerObject *object, const Visit &visit)
{
    visit(object);
    for (const DesignerObject *child : object->childObjects()) {
        visitAll(child, visit);
    }
}

} // namespace

EditMarks::EditMarks(Project &project, Listener &listener)
    : m_project(&project)
    , m_listener(listener)
{
    project.observers().add(this);
}

bool EditMarks::isEmpty() const
{
    return m_objects.isEmpty() && m_names.isEmpty() && m_channels.isEmpty() && !m_isFileMarked
           && !m_isConfigurationMarked;
}

void EditMarks::wake()
{
    m_listener.marked();
}

void EditMarks::mark(DesignerObject *object)
{
    if (!m_objects.contains(object)) {
        m_objects.insert(object, false);
        m_stack.append(object);
        wake();
    }
}

void EditMarks::markBelow(DesignerObject *object)
{
    m_objects.insert(object, true);
    m_stack.append(object);
    wake();
}

void EditMarks::markAll()
{
    if (m_project) {
        m_isFileMarked = true;
        markBelow(m_project);
    }
}

DesignerObject *EditMarks::take()
{
    if (!m_names.isEmpty()) {
        const Name name = *m_names.constBegin();
        m_names.erase(m_names.constBegin());
        resolve(name);
        return nullptr;
    }
    if (!m_channels.isEmpty()) {
        const Channel channel = *m_channels.constBegin();
        m_channels.erase(m_channels.constBegin());
        resolve(channel);
        return nullptr;
    }
    while (!m_stack.isEmpty()) {
        DesignerObject *object = m_stack.takeLast();
        const auto known = m_objects.constFind(object);
        if (known == m_objects.cend()) {
            continue;
        }
        const bool isDeep = *known;
        m_objects.erase(known);
        const QList<DesignerObject *> children = isDeep ? object->childObjects() : QList<DesignerObject *>();
        for (auto child = children.crbegin(); child != children.crend(); ++child) {
            markBelow(*child);
        }
        if (m_objects.isEmpty()) { // Release the memory that a check of the whole project needed.
            m_objects.squeeze();
            m_stack = {};
        }
        return object;
    }
    return nullptr;
}

//! Marks objects that refer to the object or have the same name. The search is done later, once for many
//! edits.
void EditMarks::markName(const DesignerObject *object, const QString &name)
{
    if (!name.isEmpty()) {
        const bool isOfElement = object->screen() && object->screen() != object;
        m_names.insert({isOfElement ? object->screen() : nullptr, name, isOfElement});
        markNamesakes(object->listProperty(), name, object);
        wake();
    }
}

//! Other items of the list with that name, which only an invalid project has.
void EditMarks::markNamesakes(const SharedProperty &list, const QString &name, const DesignerObject *except)
{
    const qsizetype count = list ? list->listItemCount(name) : 0;
    const QList<DesignerObject *> items = count == 1  ? QList{list->getListItem(name)}
                                          : count > 1 ? list->listItems()
                                                      : QList<DesignerObject *>();
    for (DesignerObject *item : items) {
        if (item != except && item->getIdName() == name) {
            mark(item);
        }
    }
}

void EditMarks::markChannel(const DesignerObject *element, const QString &value)
{
    if (element->screen()) {
        m_channels.insert({element->screen(), element->className(), value});
        wake();
    }
}

void EditMarks::markMentionsOf(const DesignerObject *object)
{
    markName(object, object->getIdName());
    if (object->isKindOfClass(HardwareElement::kindName())) {
        if (const SharedProperty channel = object->getProperty(u"channel")) {
            markChannel(object, channel->valueString());
        }
    }
}

void EditMarks::resolve(const Name &name)
{
    const auto &[screen, text, isOfElement] = name;
    for (const SharedProperty &property : ReferenceIndex::of(m_project).mentioning(screen, text)) {
        mark(property->parentObject());
    }
    const auto markElementsOn = [this, &name](const Screen *on) {
        for (DesignerObject *element : on->elementIndex().named(name.text)) {
            mark(element);
        }
    };
    markNamesakes(m_project->variables(), text);
    if (screen) {
        markElementsOn(screen);
        if (screen->getIdName() == text) {
            mark(const_cast<Screen *>(screen));
        }
    }
    if (isOfElement) {
        return;
    }
    markNamesakes(m_project->screens(), text);
    markNamesakes(m_project->imageResources(), text);
    if (m_project->hasElement(text)) {
        for (const DesignerObject *each : m_project->screens()->listItems()) {
            markElementsOn(static_cast<const Screen *>(each));
        }
    }
}

void EditMarks::resolve(const Channel &channel)
{
    for (DesignerObject *element :
         channel.screen->elementIndex().withChannel(channel.className, channel.value)) {
        mark(element);
    }
}

void EditMarks::valueChanged(const SharedProperty &property, const QString &previousValue)
{
    DesignerObject *owner = property->parentObject();
    mark(owner);
    m_isConfigurationMarked = m_isConfigurationMarked || owner == m_project->configurationObject();
    if (property == owner->idProperty()) {
        markName(owner, IdentifierInfo(previousValue).name());
        markMentionsOf(owner);
    } else if (owner->screen() && property->id() == u"channel") {
        markChannel(owner, previousValue);
        markChannel(owner, property->valueString());
    }
}

void EditMarks::markList(const SharedProperty &list)
{
    mark(list->parentObject());
    if (list == m_project->configuration()) {
        m_isConfigurationMarked = true;
    }
}

void EditMarks::inserted(const SharedProperty &list, qsizetype, DesignerObject *object)
{
    markList(list);
    markBelow(object);
    visitAll(object, [this](const DesignerObject *each) { markMentionsOf(each); });
}

void EditMarks::leave(const DesignerObject *object)
{
    visitAll(object, [this](const DesignerObject *each) { markMentionsOf(each); });
    visitAll(object, [this](const DesignerObject *each) {
        m_objects.remove(each);
        m_listener.left(each);
    });
    if (object->screen() == object) {
        leaveScreen(object);
    }
}

//! The names of elements on other screens do not depend on those of this one.
void EditMarks::leaveScreen(const DesignerObject *screen)
{
    m_channels.removeIf([screen](const Channel &channel) { return channel.screen == screen; });
    QSet<Name> names;
    for (Name name : std::exchange(m_names, {})) {
        if (name.screen == screen) {
            name.screen = nullptr;
        }
        names.insert(name);
    }
    m_names = names;
}

void EditMarks::aboutToRemove(const SharedProperty &list, qsizetype, DesignerObject *object)
{
    leave(object);
    markList(list);
}

void EditMarks::aboutToReplace(const SharedProperty &list, qsizetype, DesignerObject *oldObject,
                               DesignerObject *)
{
    leave(oldObject);
    markList(list);
}

void EditMarks::replaced(const SharedProperty &list, qsizetype index, DesignerObject *,
                         DesignerObject *newObject)
{
    inserted(list, index, newObject);
}

void EditMarks::moved(const SharedProperty &list, qsizetype, qsizetype to)
{
    mark(list->parentObject());
    const DesignerObject *item = list->getListItemAtIndex(to);
    m_listener.reordered(item);
    // Of two items with the same name the first one is meant.
    if (list->listItemCount(item->getIdName()) > 1) {
        markName(item, item->getIdName());
    }
}

void EditMarks::reordered(const SharedProperty &list)
{
    mark(list->parentObject());
    if (list == m_project->variables() || list == m_project->screens()) {
        m_listener.reordered(nullptr);
        for (const DesignerObject *item : list->listItems()) {
            if (list->listItemCount(item->getIdName()) > 1) {
                markName(item, item->getIdName());
            }
        }
    }
}

void EditMarks::validityChanged(const SharedProperty &property)
{
    mark(property->parentObject());
}

void EditMarks::descriptorChanged(const SharedProperty &property)
{
    mark(property->parentObject());
}

void EditMarks::clear()
{
    m_objects.clear();
    m_stack.clear();
    m_names.clear();
    m_channels.clear();
    m_isFileMarked = false;
    m_isConfigurationMarked = false;
    m_listener.cleared();
}

void EditMarks::projectAboutToLoad()
{
    clear();
}

void EditMarks::projectLoaded()
{
    m_isConfigurationMarked = true;
    markAll();
}

void EditMarks::projectSaved()
{
    m_isFileMarked = true;
    wake();
}

void EditMarks::projectAboutToBeDestroyed()
{
    m_project = nullptr;
    clear();
}

} // namespace Halvane::Corvex::Designer
