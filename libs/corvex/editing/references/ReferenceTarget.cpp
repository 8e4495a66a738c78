// SPDX-License-Identifier: MIT
#include "corvex/editing/references/ReferenceTarget.h"

#include "corvex/project/ImageResource.h"
#include "corvex/project/Project.h"
#include "corvex/project/Screen.h"
#include "corvex/project/elements/Element.h"
#include "corvex/values/text/ObjectPath.h"
#include "corvex/variables/ProjectVariable.h"

namespace Halvane::Corvex::Designer {

namespace {

NamedKinds kindOf(const DesignerObject *object)
{
    return object->isKindOfClass(Element::kindName())           ? NamedKind::Element
           : object->isKindOfClass(ProjectVariable::kindName()) ? NamedKind::Variable
           : object->isKindOfClass(Screen::kindName())          ? NamedKind::Screen
           : object->isKindOfClass(ImageResource::kindName())   ? NamedKind::Image
                                                                : NamedKinds();
}

void addNames(const DesignerObject *object, QSet<QString> &names)
{
    if (!object->getIdName().isEmpty()) {
        names.insert(object->getIdName());
    }
    for (const DesignerObject *child : object->childObjects()) {
        addNames(child, names);
    }
}

//! The screen at the start of a path, seen from a property of \a owner. On its own screen, an element takes
//! precedence over another screen with the same name.
const DesignerObject *screenNamedBy(QStringView path, const DesignerObject *owner, const Project *project)
{
    const QString first = ObjectPath::firstSegment(path).toString();
    const bool isElement = owner->screen() && owner->screen()->hasElement(first);
    return isElement ? nullptr : project->screens()->getListItem(first);
}

bool hasSegmentOf(QStringView path, const QSet<QString> &names)
{
    for (const QStringView segment : path.split(u'.')) {
        if (names.contains(segment.toString())) {
            return true;
        }
    }
    return false;
}

} // namespace

ReferenceTarget::ReferenceTarget(const DesignerObject *object)
{
    if (!object || !object->project()) {
        return;
    }
    m_project = object->project();
    m_kinds = kindOf(object);
    if (m_kinds.testFlag(NamedKind::Element)) {
        m_screen = object->screen();
        addNames(object, m_names);
    } else {
        m_names.insert(object->getIdName());
    }
}

ReferenceTarget ReferenceTarget::toItself(const DesignerObject *object)
{
    ReferenceTarget target(object);
    if (target.isValid()) {
        target.m_names = {object->getIdName()};
    }
    return target;
}

void ReferenceTarget::add(const ReferenceTarget &other)
{
    if (!isValid()) {
        *this = other;
    } else {
        m_names |= other.m_names;
    }
}

ReferenceTarget::ReferenceTarget(const Project *project, const QString &name)
    : m_project(project)
    , m_kinds(NamedKind::Element | NamedKind::Variable | NamedKind::Screen | NamedKind::Image)
    , m_names({name})
{ }

bool ReferenceTarget::isMeantBy(const Mention &mention, const DesignerObject *owner) const
{
    const NamedKinds kinds = mention.kinds & m_kinds;
    if (!kinds) {
        return false;
    }
    if (!mention.kinds.testFlag(NamedKind::Element)) {
        // A single name, which may contain a ".".
        return m_names.contains(mention.path);
    }
    if (kinds.testFlag(NamedKind::Element) && isElementMeant(mention, owner)) {
        return true;
    }
    if (kinds.testFlag(NamedKind::Screen)) {
        const DesignerObject *named = screenNamedBy(mention.path, owner, m_project);
        if (named && m_names.contains(named->getIdName())) {
            return true;
        }
    }
    return (kinds.testFlag(NamedKind::Variable) && hasSegmentOf(mention.path, m_names))
           || (kinds.testFlag(NamedKind::Image) && m_names.contains(mention.path));
}

bool ReferenceTarget::isElementMeant(const Mention &mention, const DesignerObject *owner) const
{
    if (!hasSegmentOf(mention.path, m_names)) {
        return false;
    }
    if (!m_screen) {
        return true;
    }
    const DesignerObject *named = screenNamedBy(mention.path, owner, m_project);
    return named ? named == m_screen : !owner->screen() || owner->screen() == m_screen;
}

} // namespace Halvane::Corvex::Designer
