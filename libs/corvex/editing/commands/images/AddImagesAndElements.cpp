// SPDX-License-Identifier: MIT
#include "corvex/editing/commands/images/AddImagesAndElements.h"

#include "corvex/common/LocalizationHelper.h"
#include "corvex/common/TextHelper.h"
#include "corvex/editing/commands/images/AddImage.h"
#include "corvex/editing/commands/objects/AddObject.h"
#include "corvex/project/ImageResource.h"
#include "corvex/project/Project.h"
#include "corvex/project/Screen.h"

using namespace Qt::StringLiterals;

namespace Halvane::Corvex::Designer {

AddImagesAndElements::AddImagesAndElements(const QMap<ImageResource *, QString> &images,
                                           const QList<DesignerObject *> &elements, Screen *screen,
                                           UndoCommand *parent)
    : ModelCommand({}, true, parent)
{
    const qsizetype count = std::max(images.size(), elements.size());
    if (!screen || !screen->project() || count == 0 || images.contains(nullptr)
        || elements.contains(nullptr)) {
        refuse(Common::LocalizationHelper::coreString(u"There is no image to add, or no screen."_s),
               elements);
        hold(QList<DesignerObject *>(images.keyBegin(), images.keyEnd()));
        return;
    }
    if (count == 1) {
        setTitle(u"Add 1 Image"_s);
    } else {
        setTitle(u"Add %1 Images"_s, QString::number(count));
    }
    QList<ImageResource *> ordered = images.keys();
    std::sort(ordered.begin(), ordered.end(), [](const ImageResource *left, const ImageResource *right) {
        return Common::TextHelper::fileNameLess(left->getIdName(), right->getIdName());
    });
    for (ImageResource *image : std::as_const(ordered)) {
        new AddImage(image, images.value(image), screen->project(), {}, this);
    }
    for (DesignerObject *element : elements) {
        new AddObject(screen->elements(), element, true, this);
    }
}

} // namespace Halvane::Corvex::Designer
