// SPDX-License-Identifier: MIT
#include "elements/visual/Image.h"

#include "corvex/core/DesignerFactory.h"
#include "corvex/core/QmlText.h"
#include "corvex/core/properties/BasicProperties.h"
#include "corvex/core/properties/ShapeProperties.h"
#include "corvex/project/ImageResource.h"
#include "corvex/project/RuntimeTable.h"
#include "corvex/values/records/ObjectLinkInfo.h"

#include "elements/Rows.h"
#include "elements/Validators.h"

using namespace Qt::StringLiterals;
using namespace Halvane::Corvex::Designer;

namespace Halvane::Corvex::Elements {

namespace {

//! Writes the file name as a URL, in which "%" and "#" have special meanings.
QmlBindings sourceToQml(const DesignerProperty *property)
{
    QString name = ObjectLinkInfo(property->valueString()).objectId();
    name.replace(u'%', "%25"_L1).replace(u'#', "%23"_L1);
    return {property->id(), QmlText::quoted(name)};
}

} // namespace

bool Image::initializeProperties()
{
    static const PropertyTable table{
        projectLinkRow("source", "Source", "The image of the project that is shown.", "ImageResource")
            .rank(2)
            .needsPictures()
            .editor("ImageSourceEditor")
            .validator(&linkTargetValidator)
            .qml(&sourceToQml),
        row<SizeProperty>("size", "Size", QSizeF(100, 100))
            .description("The width and the height at which the image is drawn, in pixels.")
            .rank(3)
            .allowInvalid(),
        row<BooleanProperty>("keepRatio", "Keep Proportions", true)
            .description(
                "Whether the canvas keeps the proportions of width and height when the image is resized.")
            .rank(4)
            .flags(notAtRuntime)
            .editor("KeepRatioEditor"),
    };
    return StandardVisual::initializeProperties() && addProperties(table);
}

void Image::setProject(Project *newProject)
{
    StandardVisual::setProject(newProject);
    showResource();
}

void Image::afterPropertyChanged(const DesignerProperty *property, const QString &previousValue)
{
    StandardVisual::afterPropertyChanged(property, previousValue);
    if (property->id() == QLatin1StringView("source")) {
        showResource();
    }
}

//! Notifies the image resources that it refers to now and before.
void Image::showResource()
{
    ImageResource *resource = ImageResource::imageElement(this);
    if (resource == m_resource) {
        return;
    }
    if (m_resource) {
        m_resource->unlinkElement(this);
    }
    m_resource = resource;
    if (m_resource) {
        m_resource->linkElement(this);
    }
}

ObjectView *Image::createGraphicsItem()
{
    return DesignerFactory::createObjectView(u"GraphicsImage"_s, this);
}

RuntimePropertyList Image::runtimeProperties() const
{
    using Common::EnumHelper;
    static constexpr RuntimeRow rows[] = {
        {"source", "Source", EnumHelper::StringVariable, EnumHelper::ReadWrite},
        {"width", "Width", EnumHelper::NumberVariable, EnumHelper::ReadWrite},
        {"height", "Height", EnumHelper::NumberVariable, EnumHelper::ReadWrite},
    };
    static const RuntimePropertyList list = extended(StandardVisual::runtimeProperties(), rows);
    return list;
}

} // namespace Halvane::Corvex::Elements
