// SPDX-License-Identifier: MIT
#include "corvex/editing/commands/private/PasteObjects.h"

#include "corvex/common/LocalizationHelper.h"
#include "corvex/common/PictureFile.h"
#include "corvex/common/files/FileHelper.h"
#include "corvex/core/DesignerFactory.h"
#include "corvex/core/ItemList.h"
#include "corvex/editing/commands/objects/AddObject.h"
#include "corvex/editing/commands/private/EditedKind.h"
#include "corvex/editing/commands/private/ElementPlacement.h"
#include "corvex/editing/commands/private/FileStep.h"
#include "corvex/editing/commands/private/PastedNames.h"
#include "corvex/editing/commands/screens/AddScreen.h"
#include "corvex/editing/commands/variables/AddVariable.h"
#include "corvex/project/ImageResource.h"
#include "corvex/project/Project.h"
#include "corvex/project/Screen.h"
#include "corvex/project/elements/FilterElement.h"
#include "corvex/project/elements/VisualElement.h"
#include "corvex/project/files/FileNameRules.h"
#include "corvex/values/text/ValueConversion.h"
#include "corvex/variables/ProjectVariable.h"

#include <QCryptographicHash>
#include <QTemporaryDir>

#include <algorithm>
#include <cmath>

using namespace Qt::StringLiterals;

namespace Halvane::Corvex::Designer {

namespace {

using Common::FileHelper;
using Common::LocalizationHelper;

constexpr double step = 10; // pixels between copies of copies

//! Adds an image whose file is in memory.
class AddClipImage : public ModelCommand
{
public:
    AddClipImage(Project &project, const QString &name, const QByteArray &bytes, UndoCommand *parent)
        : ModelCommand(project.imageResources(), false, parent)
    {
        DesignerObject *image = DesignerFactory::instance()->createObject(ImageResource::kindName());
        image->setParent(nullptr);
        image->setIdName(name);
        setTitle(u"Add Image Resource \"%1\""_s, name);
        addStep<PlaceFileStep>(&project, name, bytes);
        addStep<InsertItemStep>(project.imageResources(), image);
    }
};

//! Why the image cannot be added, for the user.
QString imageError(const ClipText::Image &image)
{
    QString error = FileNameRules::imageNameError(image.name);
    const QTemporaryDir folder(FileHelper::getStandardTemporatyLocation() + u"/paste"_s);
    const QString path = folder.filePath(u"image."_s + image.name.section(u'.', -1));
    if (error.isEmpty()) {
        FileHelper::writeFile(path, image.bytes, &error);
    }
    if (error.isEmpty()) {
        error = FileNameRules::imageFileError(path, image.name);
    }
    if (error.isEmpty()) {
        error = Common::PictureFile::problem(path);
    }
    return error.isEmpty() ? error : u"%1: %2"_s.arg(image.name, error);
}

//! The name of an element below the object whose plug-in is missing; empty if there is none.
QString unknownIn(const DesignerObject &object)
{
    for (const SharedProperty &property : object.properties()) {
        if (property->isList() && property->itemList()->hasKeptItems()) {
            return property->itemList()->keptItems().constFirst().name;
        }
    }
    for (const DesignerObject *child : object.childObjects()) {
        if (const QString name = unknownIn(*child); !name.isEmpty()) {
            return name;
        }
    }
    return {};
}

QString placeKey(const DesignerObject &element, const QPointF &position)
{
    return u"%1 %2"_s.arg(element.className(), ValueConversion::toString(position));
}

QPointF positionOf(const DesignerObject &element)
{
    return ValueConversion::toPoint(element.getProperty(u"position")->valueString());
}

} // namespace

PasteObjects::PasteObjects(ClipText clip, Project &project, Screen *screen,
                           const std::optional<QPointF> &middle)
    : m_clip(std::move(clip))
    , m_project(project)
    , m_notes(m_clip.notes)
{
    PastedNames names(project, screen, m_clip.screen);
    for (const auto *objects : {&m_clip.variables, &m_clip.objects}) {
        for (const auto &object : *objects) {
            names.expect(*object);
        }
    }
    QString error = refusal(screen);
    if (error.isEmpty()) {
        reuseVariables(names);
        error = addImages(names);
    }
    if (!error.isEmpty()) {
        refuse(error);
        return;
    }
    nameObjects(names);
    if (screen) {
        place(*screen, middle);
    }
    addObjects(screen);
    if (childCount() == 0) {
        refuse(LocalizationHelper::coreString(u"The project already has everything that was copied."_s));
    }
    if (const QString note = names.note(); !note.isEmpty()) {
        m_notes.append(note);
    }
}

QString PasteObjects::refusal(const Screen *screen) const
{
    for (const auto &object : m_clip.objects) {
        const EditedKind *kind = EditedKind::of(object.get());
        if (!kind || !kind->addition || kindCast<ImageResource>(object.get())) {
            return LocalizationHelper::coreString(u"An object of the class \"%1\" cannot be pasted."_s)
                .arg(object->className());
        }
        if (!kindCast<Element>(object.get())) {
            continue;
        }
        if (!screen) {
            return LocalizationHelper::coreString(u"There is no screen to paste to. Add one first."_s);
        }
        if (const QString name = unknownIn(*object); !name.isEmpty()) {
            return LocalizationHelper::coreString(
                       u"\"%1\" contains \"%2\", and no plug-in provides its class."_s)
                .arg(object->getIdName(), name);
        }
    }
    for (const auto &variable : m_clip.variables) {
        if (!kindCast<ProjectVariable>(variable.get())) {
            return LocalizationHelper::coreString(u"\"%1\" is not a variable."_s).arg(variable->getIdName());
        }
    }
    if (!m_clip.images.isEmpty() && m_project.imagesPath().isEmpty()) {
        return LocalizationHelper::coreString(u"The project has no folder for images yet. Save it first."_s);
    }
    return {};
}

//! Forgets the variables that the project has already.
void PasteObjects::reuseVariables(PastedNames &names)
{
    std::erase_if(m_clip.variables, [this](const std::unique_ptr<DesignerObject> &variable) {
        const QString name = variable->getIdName();
        const DesignerObject *known = m_project.variables()->getListItem(name);
        const bool isKnown = known && known->className() == variable->className();
        if (isKnown && DesignerObject::toString(known) != DesignerObject::toString(variable.get())) {
            m_notes.append(LocalizationHelper::coreString(
                               u"The variable \"%1\" of this project is used; the copied one differs."_s)
                               .arg(name));
        }
        return isKnown;
    });
    for (const auto &variable : m_clip.variables) {
        names.nameVariable(*variable);
    }
}

QString PasteObjects::addImages(PastedNames &names)
{
    ImageNames images(&m_project);
    for (const ClipText::Image &image : std::as_const(m_clip.images)) {
        if (const QString error = imageError(image); !error.isEmpty()) {
            return error;
        }
        const QString digest =
            QString::fromLatin1(QCryptographicHash::hash(image.bytes, QCryptographicHash::Md5).toHex());
        const QString known = images.withContents(digest, image.name.section(u'.', -1).toLower());
        const QString name = known.isEmpty() ? images.freeName(image.name) : known;
        names.renameImage(image.name, name);
        if (known.isEmpty()) {
            images.add(name, digest);
            new AddClipImage(m_project, name, image.bytes, this);
        }
    }
    return {};
}

void PasteObjects::nameObjects(PastedNames &names)
{
    for (const auto &object : m_clip.objects) {
        if (kindCast<ProjectVariable>(object.get())) {
            names.nameVariable(*object);
        } else if (kindCast<Screen>(object.get())) {
            names.nameScreen(*object);
        } else {
            names.nameElement(*object);
        }
    }
    for (const auto *objects : {&m_clip.variables, &m_clip.objects}) {
        for (const auto &object : *objects) {
            names.follow(*object);
        }
    }
}

void PasteObjects::place(const Screen &screen, const std::optional<QPointF> &middle)
{
    QList<DesignerObject *> elements;
    QRectF bounds;
    for (const auto &object : m_clip.objects) {
        if (kindCast<VisualElement>(object.get())) {
            elements.append(object.get());
            bounds |= ElementPlacement::shownBounds(object.get());
        }
    }
    if (elements.isEmpty()) {
        return;
    }
    QPointF way;
    const QRectF area(QPointF(), ValueConversion::toSize(screen.size()->valueString()));
    const bool isOutside = !area.isEmpty()
                           && (bounds.right() < 0 || bounds.left() > area.right() || bounds.bottom() < 0
                               || bounds.top() > area.bottom());
    if (middle || isOutside) {
        const QPointF exact = middle.value_or(area.center()) - bounds.center();
        way = {std::round(exact.x()), std::round(exact.y())};
    } else {
        QSet<QString> taken;
        for (const DesignerObject *element : screen.elements()->listItems()) {
            if (kindCast<VisualElement>(element)) {
                taken.insert(placeKey(*element, positionOf(*element)));
            }
        }
        const auto isTaken = [&](const DesignerObject *element) {
            return taken.contains(placeKey(*element, positionOf(*element) + way));
        };
        while (std::ranges::any_of(elements, isTaken)) {
            way += QPointF(step, step);
        }
    }
    for (DesignerObject *element : std::as_const(elements)) {
        element->setDisableValidation(true);
        element->changePropertyValue(element->getProperty(u"position"),
                                     ValueConversion::toString(positionOf(*element) + way));
        element->setDisableValidation(false);
    }
}

void PasteObjects::addObjects(Screen *screen)
{
    for (auto &variable : m_clip.variables) {
        new AddVariable(variable.release(), &m_project, this);
    }
    QList<DesignerObject *> added;
    for (auto &object : m_clip.objects) {
        DesignerObject *item = object.release();
        added.append(item);
        if (kindCast<ProjectVariable>(item)) {
            new AddVariable(item, &m_project, this);
        } else if (kindCast<Screen>(item)) {
            new AddScreen(item, &m_project, -1, this);
        } else {
            new AddObject(kindCast<FilterElement>(item) ? screen->filters() : screen->elements(), item, true,
                          this);
        }
    }
    if (added.size() == 1) {
        setTitle(u"Paste \"%1\""_s, added.constFirst()->getIdName());
    } else if (added.isEmpty()) {
        setTitle(u"Paste images"_s);
    } else {
        setTitle(u"Paste %1 objects"_s, QString::number(added.size()));
    }
    m_clip = {};
    setSelection(added);
}

} // namespace Halvane::Corvex::Designer
