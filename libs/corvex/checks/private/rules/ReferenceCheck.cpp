// SPDX-License-Identifier: MIT
#include "corvex/checks/private/rules/ReferenceCheck.h"

#include "corvex/core/DesignerFactory.h"
#include "corvex/core/properties/LinkProperty.h"
#include "corvex/project/Project.h"
#include "corvex/project/Screen.h"
#include "corvex/project/elements/Element.h"
#include "corvex/project/elements/StateTarget.h"
#include "corvex/values/text/ObjectPath.h"

#include <QSet>
#include <QThread>

#include <algorithm>
#include <limits>

using namespace Qt::StringLiterals;

namespace Halvane::Corvex::Designer {

namespace {

//! NaN for the text of any other property.
double numberOf(const QString &text)
{
    bool isNumber = false;
    const double number = text.toDouble(&isNumber);
    return isNumber ? number : std::numeric_limits<double>::quiet_NaN();
}

} // namespace

ReferenceCheck::ReferenceCheck(const Project &project)
    : m_project(project)
    , m_thread(QThread::currentThread())
{
    // The project counts the names of all elements on first use. Do it before several threads use it.
    project.hasElement(QString());
}

ReferenceCheck::~ReferenceCheck() = default;

bool ReferenceCheck::concerns(const DesignerProperty &property)
{
    // The first half of a pair may be a name defined by the device.
    return property.references() != Form::None && property.references() != Form::NamePairs;
}

void ReferenceCheck::look(const DesignerProperty &property)
{
    if (!property.isValid()) {
        return;
    }
    if (const auto *link = propertyCast<LinkProperty>(&property)) {
        checkLink(*link);
        return;
    }
    checkNames(property);
    for (const StateSetting &setting : StateSetting::of(property)) {
        checkSetting(property, setting);
    }
}

void ReferenceCheck::checkLink(const LinkProperty &link)
{
    if (link.value().isValid() && !link.connectLink()) {
        report(link, ProblemCode::ReferenceMissing, {link.value().objectId()});
    }
}

void ReferenceCheck::checkNames(const DesignerProperty &property)
{
    const Screen *screen = property.parentObject()->screen();
    QSet<QString> reported;
    for (const Mention &mention : ReferenceForm::mentions(property)) {
        if (isThere(mention, screen) || reported.contains(mention.path)) {
            continue;
        }
        reported.insert(mention.path);
        const bool isOnScreen = screen && mention.kinds.testFlag(NamedKind::Element)
                                && !mention.kinds.testFlag(NamedKind::Variable);
        report(property, isOnScreen ? ProblemCode::ReferenceElement : ProblemCode::ReferenceMissing,
               {mention.path});
    }
}

bool ReferenceCheck::isThere(const Mention &mention, const Screen *screen)
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
    // The members of a log or a device follow the variable's name.
    const bool isOfVariable =
        mention.kinds.testFlag(NamedKind::Variable)
        && m_project.variables()->hasListItem(ObjectPath::firstSegment(mention.path).toString());
    return isOfVariable || isElement(mention.path, screen);
}

//! Whether the path leads to an element of \a screen or of the screen at the start of the path. For a
//! property outside of all screens: to an element of any screen.
bool ReferenceCheck::isElement(const QString &path, const Screen *screen)
{
    const auto hasElement = [](const DesignerObject *on, const QString &place) {
        return static_cast<const Screen *>(on)->hasElement(place);
    };
    if (screen && hasElement(screen, path)) {
        return true;
    }
    const QString first = ObjectPath::firstSegment(path).toString();
    if (const DesignerObject *named = m_project.screens()->getListItem(first); named && first != path) {
        return hasElement(named, path.sliced(first.size() + 1));
    }
    return !screen && m_project.hasElement(first)
           && std::ranges::any_of(m_project.screens()->listItems(),
                                  [&](const DesignerObject *any) { return hasElement(any, path); });
}

void ReferenceCheck::checkSetting(const DesignerProperty &property, const StateSetting &setting)
{
    const auto &[elementName, id, value] = setting;
    const Screen *screen = property.parentObject()->screen();
    const Element *element = screen ? screen->getElement(elementName) : nullptr;
    const DesignerObject *model = element ? modelOf(element->className()) : nullptr;
    if (!model) {
        return;
    }
    const SharedProperty target = model->getProperty(id);
    // The name of an element cannot change at run time.
    if (!target || target == model->idProperty()) {
        report(property, ProblemCode::StateProperty, {elementName, id});
    } else if (!StateTarget::canBeSet(*target)) {
        report(property, ProblemCode::StateIgnored, {id, elementName});
    } else if (!target->canRead(value)) {
        report(property, ProblemCode::StateValue, {value, id, elementName});
    } else if (const NumberRange range = StateSetting::rangeOf(*target); !range.contains(numberOf(value))) {
        report(property, ProblemCode::StateRange, {value, id, elementName, range.toString()});
    }
}

//! An object of the class outside of the model, on which values can be tried.
const DesignerObject *ReferenceCheck::modelOf(const QString &className)
{
    std::unique_ptr<DesignerObject> &model = m_models[className];
    if (!model) {
        model.reset(DesignerFactory::instance()->createUnowned(className));
        if (model) {
            // It is deleted together with the check, in the thread that created the check.
            model->moveToThread(m_thread);
        }
    }
    return model.get();
}

} // namespace Halvane::Corvex::Designer
