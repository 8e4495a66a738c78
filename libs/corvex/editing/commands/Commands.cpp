// SPDX-License-Identifier: MIT
#include "corvex/editing/commands/Commands.h"

#include "corvex/common/LocalizationHelper.h"
#include "corvex/core/PropertyValidators.h"
#include "corvex/core/xml/XmlText.h"
#include "corvex/editing/commands/CompositeCommand.h"
#include "corvex/editing/commands/objects/ChangeProperty.h"
#include "corvex/editing/commands/objects/DeleteObjectsAndCheckFilters.h"
#include "corvex/editing/commands/private/ChangeValues.h"
#include "corvex/editing/commands/private/DuplicateObjects.h"
#include "corvex/editing/commands/private/EditedKind.h"
#include "corvex/editing/commands/private/MoveObjects.h"
#include "corvex/editing/references/KeptMentions.h"
#include "corvex/editing/undo/UndoStack.h"
#include "corvex/project/Project.h"
#include "corvex/project/Screen.h"
#include "corvex/project/elements/Element.h"

#include <QSet>

using namespace Qt::StringLiterals;

namespace Halvane::Corvex::Designer {

namespace {

using Common::LocalizationHelper;

PlannedCommand refused(const QString &english, const QString &name)
{
    return {nullptr, LocalizationHelper::coreString(english).arg(name), {}};
}

//! Why no value may be tried on the object now, for the user; empty if one may be tried.
QString gateRefusal(const DesignerObject &object)
{
    Project *project = object.project();
    return !project || project->undoStack()->mayEdit() ? QString() : project->undoStack()->errorString();
}

//! Why a change to that value is refused; empty if it is accepted, possibly marked as invalid.
QString refusalOf(DesignerProperty &property, const QString &text)
{
    const bool isTaken =
        property.allowInvalidValue() && XmlText::storageProblem(text).isEmpty() && property.canRead(text);
    return isTaken ? QString() : property.refusalOf(text);
}

PlannedCommand planned(std::unique_ptr<ModelCommand> command)
{
    if (command->isValid()) {
        return {std::move(command), {}, {}};
    }
    const QString reason = command->errorString();
    return {nullptr,
            reason.isEmpty() ? LocalizationHelper::coreString(u"This cannot be done here."_s) : reason,
            {}};
}

//! For a command that updates all references to the objects. \a outcome is the note about references that it
//! cannot update.
PlannedCommand noted(PlannedCommand planned, const QList<DesignerObject *> &objects, const QString &outcome)
{
    if (planned && objects.first()->project()) {
        const KeptMentions mentions(*objects.first()->project(), {objects.cbegin(), objects.cend()});
        for (const DesignerObject *object : objects) {
            const QString name = object->getIdName();
            for (const QString &path :
                 mentions.of(name, kindCast<Element>(object) ? object->screen() : nullptr)) {
                planned.notes.append(LocalizationHelper::coreString(outcome).arg(path, name));
            }
        }
    }
    return planned;
}

const QString stillMentioned = u"\"%1\" still mentions \"%2\", because its plug-in is missing."_s;

PlannedCommand notedDeletion(std::unique_ptr<ModelCommand> command, const QList<DesignerObject *> &objects)
{
    return noted(planned(std::move(command)), objects, stillMentioned);
}

} // namespace

PlannedCommand Commands::deletionOf(DesignerObject *object)
{
    const EditedKind *kind = EditedKind::of(object);
    if (!kind || !kind->deletion) {
        return refused(u"\"%1\" cannot be deleted."_s, object ? object->objectPath() : QString());
    }
    return notedDeletion(std::unique_ptr<ModelCommand>(kind->deletion(object, nullptr)), {object});
}

PlannedCommand Commands::deletionOf(const QList<DesignerObject *> &objects)
{
    if (objects.size() == 1) {
        return deletionOf(objects.first());
    }
    auto all = std::make_unique<CompositeCommand>();
    QSet<DesignerObject *> known;
    QList<Screen *> screens;
    QHash<Screen *, QList<DesignerObject *>> elements; // elements and filters: together they determine what
                                                       // else is deleted
    for (DesignerObject *object : objects) {
        if (known.contains(object)) {
            continue;
        }
        known.insert(object);
        const EditedKind *kind = EditedKind::of(object);
        if (kindCast<Element>(object)) {
            if (!elements.contains(object->screen())) {
                screens.append(object->screen());
            }
            elements[object->screen()].append(object);
        } else if (kind && kind->deletion) {
            kind->deletion(object, all.get());
        } else {
            return refused(u"\"%1\" cannot be deleted."_s, object ? object->objectPath() : QString());
        }
    }
    for (Screen *screen : std::as_const(screens)) {
        new DeleteObjectsAndCheckFilters(elements.value(screen), screen, all.get());
    }
    all->describe();
    return notedDeletion(std::move(all), objects);
}

PlannedCommand Commands::renameOf(DesignerObject *object, const QString &name)
{
    const EditedKind *kind = EditedKind::of(object);
    if (!kind || !kind->renaming) {
        return refused(u"\"%1\" cannot be renamed."_s, object ? object->objectPath() : QString());
    }
    if (object->getIdName() == name) {
        return refused(u"The name is already \"%1\"."_s, name);
    }
    if (const QString reason = gateRefusal(*object); !reason.isEmpty()) {
        return {nullptr, reason, {}};
    }
    return noted(planned(std::unique_ptr<ModelCommand>(kind->renaming(object, name))), {object},
                 u"\"%1\" still mentions \"%2\", because its plug-in is missing. Correct it in the file, or "
                 "install the plug-in and rename again."_s);
}

PlannedCommand Commands::copyOf(DesignerObject *object, const QString &name)
{
    const QString reason = object && name != object->getIdName()
                               ? PropertyValidators::nameError(object, name)
                               : LocalizationHelper::coreString(u"The name is not unique."_s);
    return reason.isEmpty() ? copies({object}, name) : PlannedCommand{nullptr, reason, {}};
}

PlannedCommand Commands::duplicationOf(const QList<DesignerObject *> &objects)
{
    return copies(objects, {});
}

PlannedCommand Commands::copies(const QList<DesignerObject *> &objects, const QString &name)
{
    for (const DesignerObject *object : objects) {
        const EditedKind *kind = EditedKind::of(object);
        if (!kind || !kind->addition || !object->listProperty() || !object->project()) {
            return refused(u"\"%1\" cannot be duplicated."_s, object ? object->objectPath() : QString());
        }
    }
    return planned(std::make_unique<DuplicateObjects>(objects, name));
}

PlannedCommand Commands::moveOf(const QList<DesignerObject *> &objects, const SharedProperty &list,
                                qsizetype index)
{
    PlannedCommand moved = planned(std::make_unique<MoveObjects>(objects, list, index));
    QList<DesignerObject *> leaving; // their screens
    for (DesignerObject *object : moved ? objects : QList<DesignerObject *>()) {
        if (object && object->screen() && object->screen() != MoveObjects::screenOf(list)) {
            leaving.append(object);
        }
    }
    return leaving.isEmpty() ? std::move(moved) : noted(std::move(moved), leaving, stillMentioned);
}

PlannedCommand Commands::changeOf(const QList<RequestedValue> &values)
{
    QList<RequestedValue> wanted;
    for (const RequestedValue &value : values) {
        const SharedProperty &property = value.property;
        const DesignerObject *owner = property ? property->parentObject() : nullptr;
        if (!owner || property->isList() || property->isObject()) {
            return refused(u"\"%1\" is not a value."_s, property ? property->id() : QString());
        }
        if (property == owner->idProperty() && values.size() > 1) {
            return refused(u"\"%1\" is a name, and names must be unique. Rename one object at a time."_s,
                           owner->getIdName());
        }
        if (!property->hasFlag(StoredFlag)) {
            return refused(u"\"%1\" is not stored; it is derived from other values."_s, property->name());
        }
        if (const QString reason = gateRefusal(*owner); !reason.isEmpty()) {
            return {nullptr, reason, {}};
        }
        if (const QString reason = refusalOf(*property, value.text); !reason.isEmpty()) {
            return {nullptr, values.size() > 1 ? u"%1: %2"_s.arg(owner->objectPath(), reason) : reason, {}};
        }
        if (!property->equalsValue(value.text)) {
            wanted.append(value);
        }
    }
    if (wanted.isEmpty()) {
        return {};
    }
    const auto &[property, text] = wanted.constFirst();
    if (property == property->parentObject()->idProperty()) {
        return renameOf(property->parentObject(), IdentifierInfo(text).name());
    }
    if (wanted.size() == 1) {
        return planned(std::make_unique<ChangeProperty>(property, text, true));
    }
    return planned(std::make_unique<ChangeValues>(wanted));
}

} // namespace Halvane::Corvex::Designer
