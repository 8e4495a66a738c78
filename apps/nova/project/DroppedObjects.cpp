// SPDX-License-Identifier: MIT
#include "project/DroppedObjects.h"

#include "corvex/common/LocalizationHelper.h"
#include "corvex/common/files/FileHelper.h"
#include "corvex/editing/commands/Commands.h"
#include "corvex/editing/commands/objects/AddObject.h"
#include "corvex/editing/words/ReadableValue.h"
#include "corvex/project/ImageResource.h"
#include "corvex/project/Project.h"
#include "corvex/project/Screen.h"
#include "corvex/project/elements/VisualElement.h"
#include "corvex/values/text/ValueConversion.h"
#include "corvex/variables/ProjectVariable.h"

#include "project/NewElement.h"
#include "project/Workspace.h"

#include <QFileInfo>
#include <QImageReader>
#include <QMimeData>
#include <QUrl>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace Halvane::Corvex::Nova {

using namespace Designer;
using Common::LocalizationHelper;

namespace {

constexpr double lineDistance = 32; // between the texts of several variables

bool isImageFile(const QUrl &url)
{
    return url.isLocalFile()
           && Common::FileHelper::validImageExtensions().contains(
               QFileInfo(url.toLocalFile()).suffix().toLower());
}

bool canDropObject(const DesignerObject *object)
{
    return kindCast<ProjectVariable>(object) || kindCast<ImageResource>(object) || kindCast<Screen>(object);
}

//! Several edits that become one step of the history, or none if one of them fails.
class Edits
{
public:
    Edits(Workspace &workspace, const QString &text)
        : m_workspace(workspace)
        , m_isOpen(workspace.document().beginGesture(text))
    {
        if (!m_isOpen) {
            workspace.reportFailure();
        }
    }

    DesignerObject *add(const QString &className, const QPointF &place)
    {
        std::unique_ptr<UndoCommand> command =
            m_isOpen ? NewElement::command(*m_workspace.screen(), className, place) : nullptr;
        const auto *adding = dynamic_cast<AddObject *>(command.get());
        DesignerObject *added = adding ? adding->object() : nullptr;
        m_isOpen = added && m_workspace.push(std::move(command));
        return m_isOpen ? added : nullptr;
    }

    //! Sets a value in its readable form.
    void set(const DesignerObject *object, QStringView id, const QString &text)
    {
        const SharedProperty property = m_isOpen && object ? object->getProperty(id) : SharedProperty();
        if (!property) {
            return;
        }
        const ReadableValue::Reading reading = ReadableValue::read(*property, text);
        PlannedCommand planned = Commands::changeOf({{property, reading.stored}});
        const bool isDone = planned ? m_workspace.push(std::move(planned)) : planned.reason.isEmpty();
        if (!isDone || !reading.error.isEmpty()) {
            m_reason = reading.error.isEmpty() ? planned.reason : reading.error;
            m_isOpen = false;
        }
    }

    bool finish(const QList<DesignerObject *> &selection)
    {
        ProjectDocument &document = m_workspace.document();
        if (!m_isOpen || !document.commitGesture()) {
            document.rollBackGesture();
            if (!m_reason.isEmpty()) {
                emit m_workspace.refused(m_reason);
            }
            return false;
        }
        document.select(selection);
        return true;
    }

private:
    Workspace &m_workspace;
    bool m_isOpen;
    QString m_reason;
};

bool dropImages(const QList<const ImageResource *> &images, const QPointF &place, Workspace &workspace)
{
    Edits edits(workspace, LocalizationHelper::coreString(u"Add images"_s));
    QList<DesignerObject *> elements;
    const QSizeF screen = ValueConversion::toSize(workspace.screen()->size()->valueString());
    for (const ImageResource *image : images) {
        QSizeF size = QImageReader(image->filePath()).size();
        if (size.width() > screen.width() || size.height() > screen.height()) {
            size.scale(screen, Qt::KeepAspectRatio);
        }
        const QPointF corner = place - QPointF(size.width(), size.height()) / 2;
        DesignerObject *element = edits.add(u"Image"_s, place);
        edits.set(element, u"source", image->getIdName());
        if (!size.isEmpty()) {
            edits.set(element, u"size", ValueConversion::toString(QSizeF(size.toSize())));
            edits.set(element, u"position", ValueConversion::toString(QPointF(corner.toPoint())));
        }
        elements.append(element);
    }
    return edits.finish(elements);
}

bool dropVariables(const QList<const ProjectVariable *> &variables, const QPointF &place,
                   DesignerObject *target, Workspace &workspace)
{
    if (variables.size() == 1 && target && target->getProperty(u"textBinding")) {
        Edits edits(workspace, LocalizationHelper::coreString(u"Bind \"%1\" to \"%2\""_s)
                                   .arg(target->getIdName(), variables.constFirst()->getIdName()));
        edits.set(target, u"textBinding", variables.constFirst()->getIdName());
        return edits.finish({target});
    }
    Edits edits(workspace, LocalizationHelper::coreString(u"Add texts for variables"_s));
    QList<DesignerObject *> elements;
    for (const ProjectVariable *variable : variables) {
        DesignerObject *text = edits.add(u"Text"_s, place + QPointF(0, lineDistance * elements.size()));
        edits.set(text, u"textBinding", variable->getIdName());
        elements.append(text);
    }
    return edits.finish(elements);
}

//! A text with the name of the screen, unless an element is there that the operator can touch.
bool dropScreen(const Screen &screen, const QPointF &place, DesignerObject *target, Workspace &workspace)
{
    Edits edits(workspace, LocalizationHelper::coreString(u"Add a link to \"%1\""_s).arg(screen.getIdName()));
    DesignerObject *shown = kindCast<VisualElement>(target);
    if (!shown) {
        shown = edits.add(u"Text"_s, place);
        edits.set(shown, u"text", u'"' + screen.getIdName() + u'"');
    }
    const DesignerObject *loader = edits.add(u"ScreenLoader"_s, place);
    edits.set(loader, u"screen", screen.getIdName());
    if (shown) {
        edits.set(loader, u"visualElement", shown->getIdName());
    }
    return edits.finish({shown});
}

template<class Kind>
QList<const Kind *> all(const QList<DesignerObject *> &objects)
{
    QList<const Kind *> found;
    for (const DesignerObject *object : objects) {
        if (const auto *kind = kindCast<Kind>(object)) {
            found.append(kind);
        }
    }
    return found;
}

} // namespace

bool DroppedObjects::canDrop(const QMimeData &data, Workspace &workspace)
{
    const QList<DesignerObject *> objects = workspace.tree().draggedObjects(&data);
    const QList<QUrl> urls = data.urls();
    return workspace.screen()
           && (!NewElement::classOf(data).isEmpty() || std::ranges::any_of(objects, canDropObject)
               || std::ranges::any_of(urls, isImageFile));
}

bool DroppedObjects::drop(const QMimeData &data, const QPointF &place, DesignerObject *target,
                          Workspace &workspace, QWidget *parent)
{
    Screen *screen = workspace.screen();
    if (const QString className = NewElement::classOf(data); !className.isEmpty()) {
        std::unique_ptr<UndoCommand> command = NewElement::command(*screen, className, place);
        return command && workspace.push(std::move(command));
    }
    const QList<DesignerObject *> objects = workspace.tree().draggedObjects(&data);
    if (const auto images = all<ImageResource>(objects); !images.isEmpty()) {
        return dropImages(images, place, workspace);
    }
    if (const auto variables = all<ProjectVariable>(objects); !variables.isEmpty()) {
        return dropVariables(variables, place, target, workspace);
    }
    if (const auto screens = all<Screen>(objects); !screens.isEmpty()) {
        return dropScreen(*screens.constFirst(), place, target, workspace);
    }
    return ImageResource::addImagesFromUrls(data.urls(), screen, place, parent);
}

} // namespace Halvane::Corvex::Nova
