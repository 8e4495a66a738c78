// SPDX-License-Identifier: MIT
#include "corvex/editing/words/private/Explanation.h"

#include "corvex/common/LocalizationHelper.h"
#include "corvex/common/files/FileHelper.h"
#include "corvex/core/DesignerObject.h"
#include "corvex/project/ImageResource.h"
#include "corvex/project/Project.h"
#include "corvex/project/Screen.h"
#include "corvex/project/elements/Element.h"

#include <QFileInfo>

using namespace Qt::StringLiterals;

namespace Halvane::Corvex::Designer {

using Common::LocalizationHelper;

namespace {

//! The object that already has the name that \a object cannot have; null if none is found.
const DesignerObject *ownerOfName(const DesignerObject &object, const QString &name)
{
    const Project *project = object.project();
    if (const DesignerObject *element = object.screen() ? object.screen()->getElement(name) : nullptr;
        element && element != &object) {
        return element;
    }
    const QList<SharedProperty> lists =
        project ? QList{object.listProperty(), project->variables(), project->screens()}
                : QList<SharedProperty>();
    for (const SharedProperty &list : lists) {
        const DesignerObject *found = list ? list->getListItem(name) : nullptr;
        if (found && found != &object) {
            return found;
        }
    }
    return nullptr;
}

} // namespace

QString Explanation::ofName(const DesignerObject &object, const QString &name, const QString &reason)
{
    if (kindCast<Project>(&object)) {
        return reason;
    }
    const bool isImage = kindCast<ImageResource>(&object);
    if (!isImage && name.size() < 2) {
        return LocalizationHelper::coreString(u"\"%1\" is too short. A name has at least 2 characters."_s)
            .arg(name);
    }
    const DesignerObject *other = ownerOfName(object, name);
    return other ? LocalizationHelper::coreString(u"%1 \"%2\" (%3) has this name."_s)
                       .arg(reason, other->objectPath(), other->className())
           : isImage ? ofImageName(name, reason)
                     : reason;
}

QString Explanation::ofImageName(const QString &name, const QString &reason)
{
    return name.startsWith(u'.') || name.startsWith(u' ')
               ? LocalizationHelper::coreString(
                     u"The name of an image cannot begin with a dot or a space: \"%1\"."_s)
                     .arg(name)
               : reason;
}

QString Explanation::ofItem(const DesignerObject &item, const SharedProperty &list, const QString &reason)
{
    const DesignerObject *owner = list->parentObject();
    const QString place = owner ? owner->objectPath() : list->id();
    if (owner == &item || place.startsWith(item.objectPath() + u'.')) {
        return LocalizationHelper::coreString(u"%1 \"%2\" cannot be put into itself."_s)
            .arg(reason, item.getIdName());
    }
    if (list->hasListItem(item.getIdName())) {
        return LocalizationHelper::coreString(
                   u"%1 There is already a \"%2\" in \"%3\". Rename one of the two first."_s)
            .arg(reason, item.getIdName(), place);
    }
    const bool isOfKind = list->objectFilters().isEmpty()
                          || std::ranges::any_of(list->objectFilters(), [&item](const QString &className) {
                                 return item.isKindOfClass(className);
                             });
    return isOfKind ? reason
                    : LocalizationHelper::coreString(u"%1 \"%2\" accepts %3, but \"%4\" is a %5."_s)
                          .arg(reason, place, list->objectFilters().join(u" or "_s), item.getIdName(),
                               item.className());
}

QString Explanation::ofImageFile(const QString &path)
{
    const QFileInfo info(path);
    QString format;
    if (Common::FileHelper::isValidImage(path, &format)) {
        return {};
    }
    if (!info.exists()) {
        return LocalizationHelper::coreString(u"There is no file \"%1\"."_s).arg(path);
    }
    if (!info.isFile()) {
        return LocalizationHelper::coreString(u"\"%1\" is not a file. Name a picture in it."_s).arg(path);
    }
    if (!info.isReadable()) {
        return LocalizationHelper::coreString(u"\"%1\" cannot be read. Ask its owner for read permission."_s)
            .arg(path);
    }
    if (format.isEmpty()) {
        return LocalizationHelper::coreString(
                   u"\"%1\" is not an image format that the device supports: %2."_s)
            .arg(path, Common::FileHelper::validImageExtensions().join(u", "_s));
    }
    const QString extension = info.suffix().toLower();
    return format == extension || (format == "jpg"_L1 && extension == "jpeg"_L1)
               ? LocalizationHelper::coreString(u"\"%1\" is damaged or incomplete. Restore it from a copy."_s)
                     .arg(path)
               : LocalizationHelper::coreString(
                     u"\"%1\" is an image in the format %2. Rename it to \"%3.%2\"."_s)
                     .arg(path, format, info.completeBaseName());
}

} // namespace Halvane::Corvex::Designer
