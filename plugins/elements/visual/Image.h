// SPDX-License-Identifier: MIT
#pragma once

#include "elements/visual/StandardVisual.h"

#include <QPointer>

namespace Halvane::Corvex::Designer {
class ImageResource;
}

namespace Halvane::Corvex::Elements {

//! Shows one of the project's image resources, which knows the elements that show it.
class Image : public StandardVisual
{
    Q_OBJECT
    CORVEX_CLASS_NAMES(Image, Designer::VisualElement)

public:
    void setProject(Designer::Project *project) override;
    Designer::RuntimePropertyList runtimeProperties() const override;

protected:
    using StandardVisual::StandardVisual;
    Designer::ObjectView *createGraphicsItem() override;
    bool initializeProperties() override;
    void afterPropertyChanged(const Designer::DesignerProperty *property,
                              const QString &previousValue) override;

private:
    void showResource();

    QPointer<Designer::ImageResource> m_resource;
};

} // namespace Halvane::Corvex::Elements
