// SPDX-License-Identifier: MIT
#include "corvex/editing/commands/private/PastedNames.h"

#include "corvex/common/LocalizationHelper.h"
#include "corvex/common/TextHelper.h"
#include "corvex/core/PropertyValidators.h"
#include "corvex/editing/references/ReferenceForm.h"
#include "corvex/editing/references/ReferenceScanner.h"
#include "corvex/project/Project.h"
#include "corvex/project/Screen.h"
#include "corvex/project/elements/Element.h"

using namespace Qt::StringLiterals;

namespace Halvane::Corvex::Designer {

namespace {

constexpr qsizetype longestNote = 5; // names

void setName(DesignerObject &object, const QString &name)
{
    object.setDisableValidation(true);
    object.setIdName(name);
    object.setDisableValidation(false);
}

} // namespace

PastedNames::PastedNames(const Project &project, const Screen *screen, const QString &from)
    : m_project(project)
    , m_screen(screen)
    , m_from(from)
{ }

void PastedNames::expect(const DesignerObject &object)
{
    m_expected.insert(object.getIdName());
    for (const DesignerObject *child : object.childObjects()) {
        expect(*child);
    }
}

template<class IsFree>
void PastedNames::name(DesignerObject &object, Names &names, const IsFree &isFree)
{
    using enum PropertyValidators::NameFault;
    const QString old = object.getIdName();
    const auto fits = [&](const QString &name) {
        return !m_given.contains(name) && isFree(name)
               && PropertyValidators::nameFault(&object, name) != Reserved;
    };
    const auto faultOf = [&](const QString &name) { return PropertyValidators::nameFault(&object, name); };
    const bool isGood = faultOf(old) != Format && faultOf(old) != Length;
    QString name = old;
    if (!isGood || !fits(old)) {
        QString stem;
        Common::TextHelper::numberFromString(old, &stem);
        const PropertyValidators::NameFault fault = faultOf(stem + u"000000000"_s);
        stem = fault == Format || fault == Length ? object.baseName() : stem;
        qint64 &number = m_nextNumbers[stem];
        do {
            name = stem + QString::number(++number);
        } while (m_expected.contains(name) || !fits(name));
        m_renamed.append(u"%1 \u2192 %2"_s.arg(old, name));
        setName(object, name);
    }
    names.insert(old, name);
    m_given.insert(name);
}

void PastedNames::nameVariable(DesignerObject &variable)
{
    name(variable, m_variables, [this](const QString &wanted) {
        return !m_project.variables()->hasListItem(wanted) && !m_project.screens()->hasListItem(wanted)
               && !m_project.hasElement(wanted);
    });
}

void PastedNames::nameScreen(DesignerObject &screen)
{
    name(screen, m_screens, [&](const QString &wanted) {
        return !m_project.variables()->hasListItem(wanted) && !m_project.screens()->hasListItem(wanted)
               && !static_cast<const Screen &>(screen).hasElement(wanted);
    });
}

void PastedNames::nameElement(DesignerObject &element)
{
    name(element, m_elements, [this](const QString &wanted) { return m_screen->isFreeName(wanted); });
    for (DesignerObject *child : element.childObjects()) {
        if (kindCast<Element>(child)) {
            nameElement(*child);
        }
    }
}

void PastedNames::renameImage(const QString &from, const QString &to)
{
    m_images.insert(from, to);
    if (from != to) {
        m_renamed.append(u"%1 \u2192 %2"_s.arg(from, to));
    }
}

void PastedNames::rename(Mention &mention) const
{
    if (mention.kinds.testFlag(NamedKind::Image) && m_images.contains(mention.path)) {
        mention.path = m_images.value(mention.path);
        return;
    }
    if (!mention.kinds.testFlag(NamedKind::Element)) {
        // A single name, which may contain a ".".
        const Names &names = mention.kinds.testFlag(NamedKind::Variable) && m_variables.contains(mention.path)
                                 ? m_variables
                                 : m_screens;
        mention.path = names.value(mention.path, mention.path);
        return;
    }
    QStringList segments = mention.path.split(u'.');
    const bool namesScreen = segments.size() > 1 && m_screen && segments.constFirst() == m_from
                             && m_elements.contains(segments.at(1));
    for (QString &segment : segments) {
        segment = m_elements.contains(segment)
                      ? m_elements.value(segment)
                      : m_variables.value(segment, m_screens.value(segment, segment));
    }
    if (namesScreen) {
        segments.first() = m_screen->getIdName();
    }
    mention.path = segments.join(u'.');
}

void PastedNames::follow(DesignerObject &object) const
{
    ReferenceScanner::visitSites(&object, true, [this](const SharedProperty &property) {
        QString text = property->valueString();
        if (ReferenceForm::visit(*property, text, [this](Mention &mention) { rename(mention); })) {
            DesignerObject *owner = property->parentObject();
            owner->setDisableValidation(true);
            owner->changePropertyValue(property, text);
            owner->setDisableValidation(false);
        }
    });
}

QString PastedNames::note() const
{
    if (m_renamed.isEmpty()) {
        return {};
    }
    const QString names = m_renamed.first(std::min(longestNote, m_renamed.size())).join(u", "_s);
    return m_renamed.size() <= longestNote
               ? Common::LocalizationHelper::coreString(u"Renamed: %1."_s).arg(names)
               : Common::LocalizationHelper::coreString(u"Renamed: %1 and %2 more."_s)
                     .arg(names, QString::number(m_renamed.size() - longestNote));
}

} // namespace Halvane::Corvex::Designer
