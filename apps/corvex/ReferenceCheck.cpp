// SPDX-License-Identifier: MIT
#include "ReferenceCheck.h"

#include "corvex/core/DesignerFactory.h"
#include "corvex/core/properties/LinkProperty.h"
#include "corvex/editing/commands/ReferenceForm.h"
#include "corvex/project/Element.h"
#include "corvex/project/Project.h"
#include "corvex/project/Screen.h"
#include "corvex/values/ObjectPath.h"
#include "corvex/values/PropertyList.h"
#include "corvex/values/UpdateObjectList.h"

#include <QSet>

#include <algorithm>
#include <map>

using namespace Qt::StringLiterals;

namespace Halvane::Corvex::Tool {

using namespace Designer;

namespace {

class Search
{
public:
    explicit Search(const Project &project)
        : m_project(project)
    { }

    QList<Problem> find()
    {
        lookAt(m_project);
        return m_problems;
    }

private:
    //! A property that names others, by its place among those of an object.
    struct Site
    {
        qsizetype place;
        ReferenceForm::Form form;
    };

    const QList<Site> &sitesOf(const DesignerObject &object);
    void lookAt(const DesignerObject &object);
    void judge(const DesignerProperty &property, ReferenceForm::Form form);
    void judgeLink(const LinkProperty &link);
    void judgeNames(const DesignerProperty &property, ReferenceForm::Form form, const QString &text);
    void judgeValue(const DesignerProperty &property, const QString &elementName, const QString &id,
                    const QString &value);
    bool isThere(const Mention &mention, const Screen *screen) const;
    bool isElement(const QString &path, const Screen *screen) const;
    const DesignerObject *modelOf(const QString &className);
    void add(const DesignerProperty &property, const QString &message);

    const Project &m_project;
    QHash<QString, QList<Site>> m_sites; //!< by class
    std::map<QString, std::unique_ptr<DesignerObject>> m_models;
    QList<Problem> m_problems;
};

const QList<Search::Site> &Search::sitesOf(const DesignerObject &object)
{
    const QString className = object.className();
    const auto known = m_sites.constFind(className);
    if (known != m_sites.cend()) {
        return *known;
    }
    QList<Site> sites;
    for (qsizetype place = 0; place < object.properties().size(); ++place) {
        const ReferenceForm::Form form = ReferenceForm::of(*object.properties().at(place));
        // The first halves of pairs may be names of the device's own.
        if (form != ReferenceForm::None && form != ReferenceForm::NamePairs) {
            sites.append({place, form});
        }
    }
    return *m_sites.insert(className, sites);
}

void Search::lookAt(const DesignerObject &object)
{
    const QList<Site> sites = sitesOf(object);
    for (const auto &[place, form] : sites) {
        const SharedProperty property = object.properties().value(place);
        if (property && property->isValid()) {
            judge(*property, form);
        }
    }
    for (const DesignerObject *child : object.childObjects()) {
        lookAt(*child);
    }
}

void Search::judge(const DesignerProperty &property, ReferenceForm::Form form)
{
    if (form == ReferenceForm::Link) {
        judgeLink(static_cast<const LinkProperty &>(property));
        return;
    }
    const QString text = property.valueString();
    if (text.isEmpty()) {
        return;
    }
    judgeNames(property, form, text);
    if (form == ReferenceForm::States) {
        for (const UpdateObjectInfo &update : UpdateObjectList(text)) {
            for (const PropertyInfo &info : update.propertyValues()) {
                judgeValue(property, update.name(), info.propName(), info.propValue());
            }
        }
    } else if (form == ReferenceForm::Changes) {
        for (const PropertyChangeInfo &change : PropertyList(text)) {
            judgeValue(property, change.elementName(), change.propertyName(), change.valueString());
        }
    }
}

void Search::judgeLink(const LinkProperty &link)
{
    if (link.value().isValid() && !link.connectLink()) {
        add(link, u"Cannot find \"%1\" in the project."_s.arg(link.value().objectId()));
    }
}

void Search::judgeNames(const DesignerProperty &property, ReferenceForm::Form form, const QString &text)
{
    const Screen *screen = property.parentObject()->screen();
    QSet<QString> told;
    for (const Mention &mention : ReferenceForm::mentions(form, text)) {
        if (isThere(mention, screen) || told.contains(mention.path)) {
            continue;
        }
        told.insert(mention.path);
        const bool isOnScreen = screen && mention.kinds.testFlag(NamedKind::Element)
                                && !mention.kinds.testFlag(NamedKind::Variable);
        add(property, isOnScreen ? u"Cannot find element \"%1\" in the screen."_s.arg(mention.path)
                                 : u"Cannot find \"%1\" in the project."_s.arg(mention.path));
    }
}

bool Search::isThere(const Mention &mention, const Screen *screen) const
{
    const auto isListed = [&mention](NamedKind kind, const SharedProperty &list) {
        return mention.kinds.testFlag(kind) && list->hasListItem(mention.path);
    };
    if (isListed(NamedKind::Variable, m_project.variables())
        || isListed(NamedKind::Screen, m_project.screens())
        || isListed(NamedKind::Image, m_project.imageResources())) {
        return true;
    }
    if (!mention.kinds.testFlag(NamedKind::Element)) {
        return false;
    }
    // What a log or a device has stands behind the name of its variable.
    const bool isOfVariable =
        mention.kinds.testFlag(NamedKind::Variable)
        && m_project.variables()->hasListItem(ObjectPath::firstSegment(mention.path).toString());
    return isOfVariable || isElement(mention.path, screen);
}

//! Whether all names of the path are those of elements, which stand on \a screen, on the screen that the path
//! starts with, or, in a property that belongs to no screen, on any.
bool Search::isElement(const QString &path, const Screen *screen) const
{
    QStringList names = path.split(u'.');
    const auto hasAll = [&names](const DesignerObject *candidate) {
        const auto *on = static_cast<const Screen *>(candidate);
        return std::ranges::all_of(names, [on](const QString &name) { return on->hasElement(name); });
    };
    if (screen && hasAll(screen)) {
        return true;
    }
    if (const DesignerObject *named = m_project.screens()->getListItem(names.constFirst());
        named && names.size() > 1) {
        names.removeFirst();
        return hasAll(named);
    }
    return !screen && std::ranges::any_of(m_project.screens()->listItems(), hasAll);
}

void Search::judgeValue(const DesignerProperty &property, const QString &elementName, const QString &id,
                        const QString &value)
{
    const Screen *screen = property.parentObject()->screen();
    const Element *element = screen ? screen->getElement(elementName) : nullptr;
    const DesignerObject *model = element ? modelOf(element->className()) : nullptr;
    if (!model) {
        return;
    }
    const SharedProperty target = model->getProperty(id);
    if (!target) {
        add(property, u"\"%1\" has no property \"%2\"."_s.arg(elementName, id));
    } else if (!target->canRead(value)) {
        add(property, u"\"%1\" is no value for the property \"%2\" of \"%3\"."_s.arg(value, id, elementName));
    }
}

//! An object of the class that is nowhere: what is tried out on it changes nothing.
const DesignerObject *Search::modelOf(const QString &className)
{
    std::unique_ptr<DesignerObject> &model = m_models[className];
    if (!model) {
        model.reset(DesignerFactory::instance()->createUnowned(className));
    }
    return model.get();
}

void Search::add(const DesignerProperty &property, const QString &message)
{
    m_problems.append({property.parentObject()->objectPath(), property.id(), message});
}

} // namespace

QList<Problem> ReferenceCheck::find(const Project &project)
{
    return Search(project).find();
}

} // namespace Halvane::Corvex::Tool
