// SPDX-License-Identifier: MIT
#include "corvex/editing/commands/objects/ChangeProperty.h"

#include "corvex/common/LocalizationHelper.h"
#include "corvex/core/PropertyValidators.h"
#include "corvex/editing/commands/RenameProject.h"
#include "corvex/editing/commands/images/RenameImage.h"
#include "corvex/editing/commands/private/EditStep.h"
#include "corvex/editing/references/ReferenceChanges.h"
#include "corvex/editing/references/ReferenceForm.h"
#include "corvex/hardware/Configuration.h"
#include "corvex/project/ImageResource.h"
#include "corvex/project/Project.h"
#include "corvex/project/Screen.h"
#include "corvex/project/elements/Element.h"
#include "corvex/values/expressions/UpdateObjectList.h"
#include "corvex/values/records/IdentifierInfo.h"
#include "corvex/values/records/ObjectLinkInfo.h"

#include <QDebug>
#include <QFileInfo>

using namespace Qt::StringLiterals;

namespace Halvane::Corvex::Designer {

namespace {

//! Changes all updates of elements on the screen to \a newName; other updates are ignored.
QString relinked(const QString &states, const QString &newName, const Screen *screen)
{
    UpdateObjectList updates;
    for (UpdateObjectInfo update : UpdateObjectList(states)) {
        if (screen->hasElement(update.name().section(u'.', -1))) {
            update.setName(newName);
            updates.append(update);
        }
    }
    return updates.toString();
}

//! A link without a class filter may refer to a variable, a screen or an element.
bool meansOtherObject(const Mention &mention, const DesignerObject *owner)
{
    const Project *project = owner->project();
    return (mention.kinds.testFlag(NamedKind::Variable) && project->variables()->hasListItem(mention.path))
           || (mention.kinds.testFlag(NamedKind::Screen) && project->screens()->hasListItem(mention.path))
           || (mention.kinds.testFlag(NamedKind::Element) && owner->screen()
               && owner->screen()->hasElement(mention.path));
}

bool isFileThere(const Project *project, const QString &image)
{
    const auto *resource = static_cast<const ImageResource *>(project->imageResources()->getListItem(image));
    return resource ? QFileInfo(resource->filePath()).isFile()
                    : QFileInfo(u"%1/%2"_s.arg(project->imagesPath(), image)).isFile();
}

} // namespace

ChangeProperty::ChangeProperty(const SharedProperty &property, const QString &value, bool selected,
                               UndoCommand *parent)
    : ModelCommand(property, selected, parent)
    , m_after(value)
{
    if (!owner()) {
        return;
    }
    m_before = valueOf(property);
    if (property->id() == "defaultScreen"_L1) {
        setTitle(u"Change %1 Default Screen"_s, owner()->getIdName());
    } else {
        setTitle(u"Change %1"_s, property->name());
    }
    if (renamesFile()) {
        return;
    }
    setupCommand();
    notePending(property, m_after);
    m_missingImage = findMissingImage();
}

//! If a name is also a file name, the only child is a command that renames both.
bool ChangeProperty::renamesFile()
{
    Project *project = owner()->project();
    const QString name = IdentifierInfo(m_after).name();
    if (property() != owner()->idProperty() || name == owner()->getIdName() || !project
        || project->fullFilePath().isEmpty()) {
        return false;
    }
    if (owner() == project) {
        new RenameProject(project, name, this);
    } else if (kindCast<ImageResource>(owner())) {
        new RenameImage(owner(), name, this);
    }
    if (childCount() > 0 && !isSelected()) {
        setSelection({});
    }
    return childCount() > 0;
}

void ChangeProperty::setupCommand()
{
    followLinkedElement();
    if (property()->id() == "id"_L1) {
        followName();
    } else if (const auto *configuration = kindCast<Configuration>(owner())) {
        for (const auto &[target, value] : configuration->followingChanges(*property(), m_after)) {
            addChange(target, value);
        }
    }
}

void ChangeProperty::followLinkedElement()
{
    const Screen *screen = owner()->screen();
    const QString linked =
        property()->references() == Form::Link ? ObjectLinkInfo(m_after).objectId() : QString();
    if (!screen || !screen->hasElement(linked)) {
        return;
    }
    for (const SharedProperty &state : owner()->properties()) {
        if (state->statesOf() == property()->id()) {
            addChange(state, relinked(valueOf(state), linked, screen));
        }
    }
}

void ChangeProperty::followName()
{
    addChanges(ReferenceChanges::renamed(owner(), IdentifierInfo(m_after).name(), pending()));
    m_sortsList =
        owner()->listProperty()
        && (owner()->isKindOfClass(u"HardwareElement"_s) || owner()->isKindOfClass(u"FunctionElement"_s));
}

QString ChangeProperty::findMissingImage() const
{
    const Project *project = owner()->project();
    if (!project || !property()->needsPictures()) {
        return {};
    }
    for (const Mention &mention : ReferenceForm::mentions(*property(), m_after)) {
        if (mention.kinds.testFlag(NamedKind::Image) && !meansOtherObject(mention, owner())
            && !isFileThere(project, mention.path)) {
            qDebug().noquote() << u"%1: the file of the image \"%2\" is missing."_s.arg(owner()->objectPath(),
                                                                                        mention.path);
            return mention.path;
        }
    }
    return {};
}

//! Why the object cannot get the new name. The rules are checked each time, because previous commands in a
//! composite may free the name.
QString ChangeProperty::nameError() const
{
    if (!owner() || property() != owner()->idProperty() || childCount() > 0) {
        return {};
    }
    const QString name = IdentifierInfo(m_after).name();
    return name == owner()->getIdName() ? QString() : PropertyValidators::nameError(owner(), name);
}

bool ChangeProperty::isValid() const
{
    return m_missingImage.isNull() && ModelCommand::isValid() && nameError().isEmpty();
}

QString ChangeProperty::errorString() const
{
    if (!m_missingImage.isNull()) {
        const bool isKnown = owner()->project()->imageResources()->hasListItem(m_missingImage);
        return Common::LocalizationHelper::coreString(
                   isKnown
                       ? u"The file of the image \"%1\" is missing. Replace it, or choose another image."_s
                       : u"The project has no image \"%1\". Add it first, or choose another one."_s)
            .arg(m_missingImage);
    }
    const QString error = nameError();
    return error.isEmpty() ? ModelCommand::errorString() : error;
}

bool ChangeProperty::set(const QString &value)
{
    const bool isDone = ValueChange::set(property(), value);
    if (const SharedProperty list = isDone && m_sortsList ? owner()->listProperty() : SharedProperty()) {
        SortListStep::sort(list);
    }
    return isDone;
}

bool ChangeProperty::redoOwn(QString &error)
{
    const bool isDone = set(m_after);
    if (!isDone) {
        error = property()->refusalOf(m_after);
    }
    return isDone;
}

bool ChangeProperty::undoOwn(QString &)
{
    return set(m_before);
}

void ChangeProperty::appendOwnChanges(QList<ValueChange> &changes) const
{
    if (owner() && childCount() == 0) {
        changes.append({property(), m_before, m_after});
    }
}

SharedProperty ChangeProperty::soleProperty() const
{
    return isDone() && property()->id() != "id"_L1 && valueChanges().size() == 1 ? property()
                                                                                 : SharedProperty();
}

} // namespace Halvane::Corvex::Designer
