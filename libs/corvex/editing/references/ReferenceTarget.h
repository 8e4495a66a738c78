// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/common/Export.h"
#include "corvex/editing/references/Mention.h"

#include <QSet>

namespace Halvane::Corvex::Designer {

class DesignerObject;
class Project;
class Screen;

/*! The target of a search for references: an element (including all elements below it), a variable, a screen
    or an image.

    Names match whole segments of a path. An element is known on its own screen and in variables, which have
    no screen. A path that begins with the name of another screen refers to an element of that screen.
*/
class CORVEX_EXPORT ReferenceTarget
{
public:
    ReferenceTarget() = default;
    //! The object and everything below it, with their current names. Invalid if nothing can refer to them.
    explicit ReferenceTarget(const DesignerObject *object);
    //! Only the object itself.
    static ReferenceTarget toItself(const DesignerObject *object);
    //! Anything with that name in the project.
    ReferenceTarget(const Project *project, const QString &name);

    bool isValid() const { return m_project && m_kinds; }
    Project *project() const { return const_cast<Project *>(m_project); }
    const Screen *screen() const { return m_screen; }
    NamedKinds kinds() const { return m_kinds; }
    //! The names of the object and of everything below it.
    const QSet<QString> &names() const { return m_names; }
    //! Adds objects of the same kind; elements must be on the same screen.
    void add(const ReferenceTarget &other);

    //! Whether a mention in a property of \a owner refers to the target.
    bool isMeantBy(const Mention &mention, const DesignerObject *owner) const;

private:
    bool isElementMeant(const Mention &mention, const DesignerObject *owner) const;

    const Project *m_project = nullptr;
    const Screen *m_screen = nullptr; //!< the screen of elements; null for any screen
    NamedKinds m_kinds;
    QSet<QString> m_names;
};

} // namespace Halvane::Corvex::Designer
