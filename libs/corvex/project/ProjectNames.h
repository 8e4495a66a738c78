// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/common/Export.h"
#include "corvex/values/expressions/ExpressionText.h"

#include <QStringList>

namespace Halvane::Corvex::Designer {

class Element;
class Project;
class Screen;

/*! The variables of a project and the properties of its elements, as readable expressions name them:
    "level", "lamp.visible" for an element. A path may lead through groups and begin with the screen
    ("Main.group1.lamp.visible"). On a screen, only its own elements can be named, and the term has the
   element's name alone; elsewhere the path needs the screen and remains.
*/
class CORVEX_EXPORT ProjectNames : public ExpressionNames
{
public:
    //! \a screen contains the expression; null outside of screens. Both must outlive this object.
    explicit ProjectNames(const Project &project, const Screen *screen = nullptr)
        : m_project(project)
        , m_screen(screen)
    { }

    std::optional<GeneralDataInfo> find(const QString &path) const override;
    Traits traitsOf(const QString &path) const override;
    //! What an unknown \a path can mean, for a suggestion: properties of the element, if the path begins with
    //! one, otherwise variables and elements.
    QStringList candidates(const QString &path) const;

private:
    const Element *element(const QString &path) const;

    const Project &m_project;
    const Screen *m_screen;
};

} // namespace Halvane::Corvex::Designer
