// SPDX-License-Identifier: MIT
#include "corvex/editing/commands/clipboard/ObjectClip.h"

#include "corvex/common/LocalizationHelper.h"
#include "corvex/core/ItemList.h"
#include "corvex/editing/commands/private/ClipText.h"
#include "corvex/editing/commands/private/EditedKind.h"
#include "corvex/editing/commands/private/ObjectSelection.h"
#include "corvex/editing/commands/private/PasteObjects.h"
#include "corvex/editing/references/ReferenceForm.h"
#include "corvex/editing/references/ReferenceScanner.h"
#include "corvex/project/ImageResource.h"
#include "corvex/project/Project.h"
#include "corvex/variables/ProjectVariable.h"

#include <QSet>

using namespace Qt::StringLiterals;

namespace Halvane::Corvex::Designer {

namespace {

//! The variables and images that objects use, directly or through other variables.
class Resources
{
public:
    explicit Resources(const QList<DesignerObject *> &objects)
        : m_known(objects.cbegin(), objects.cend())
    {
        for (DesignerObject *object : objects) {
            if (kindCast<ImageResource>(object)) {
                images.append(object);
            } else {
                addUsesOf(*object);
            }
        }
        for (qsizetype i = 0; i < variables.size(); ++i) {
            addUsesOf(*variables.at(i));
        }
    }

    QList<DesignerObject *> variables;
    QList<DesignerObject *> images;

private:
    void addUsesOf(const DesignerObject &object)
    {
        const Project &project = *object.project();
        ReferenceScanner::visitSites(&object, true, [&](const SharedProperty &property) {
            for (const Mention &mention : ReferenceForm::mentions(*property)) {
                if (mention.kinds.testFlag(NamedKind::Image)) {
                    add(project.imageResources(), mention.path, images);
                }
                if (!mention.kinds.testFlag(NamedKind::Variable)) {
                    continue;
                }
                add(project.variables(), mention.path, variables);
                for (const QString &segment : mention.path.split(u'.')) {
                    add(project.variables(), segment, variables);
                }
            }
        });
    }

    void add(const SharedProperty &list, const QString &name, QList<DesignerObject *> &found)
    {
        DesignerObject *object = list->getListItem(name);
        if (object && !m_known.contains(object)) {
            m_known.insert(object);
            found.append(object);
        }
    }

    QSet<const DesignerObject *> m_known;
};

} // namespace

QString ObjectClip::mimeType()
{
    return u"application/x-corvex-objects+xml"_s;
}

bool ObjectClip::isClip(const QString &text)
{
    return ClipText::isClip(text);
}

QString ObjectClip::copied(const QList<DesignerObject *> &objects, QString *error)
{
    QList<DesignerObject *> copied = ObjectSelection::inListOrder(ObjectSelection::outermost(objects));
    for (const DesignerObject *object : objects) {
        const EditedKind *kind = EditedKind::of(object);
        if (!kind || !kind->addition || !object->project()) {
            copied.clear();
            if (error) {
                *error = Common::LocalizationHelper::coreString(u"\"%1\" cannot be copied."_s)
                             .arg(object ? object->objectPath() : QString());
            }
        }
    }
    if (copied.isEmpty()) {
        return {};
    }
    const Resources resources(copied);
    copied.removeIf([](const DesignerObject *object) { return kindCast<ImageResource>(object) != nullptr; });
    return ClipText::write(copied, resources.variables, resources.images);
}

PlannedCommand ObjectClip::pasteOf(const QString &text, Project &project, Screen *screen,
                                   const std::optional<QPointF> &middle)
{
    ClipText clip = ClipText::read(text);
    if (!clip.error.isEmpty()) {
        return {nullptr, clip.error, {}};
    }
    auto command = std::make_unique<PasteObjects>(std::move(clip), project, screen, middle);
    if (!command->isValid()) {
        return {nullptr, command->errorString(), {}};
    }
    const QStringList notes = command->notes();
    return {std::move(command), {}, notes};
}

} // namespace Halvane::Corvex::Designer
