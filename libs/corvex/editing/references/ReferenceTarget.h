// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/common/Export.h"
#include "corvex/editing/references/Mention.h"

#include <QSet>

namespace Halvane::Corvex::Designer {

class DesignerObject;
class Project;
class Screen;

/*! What references are looked for: an element (with all elements below it), a variable, a screen or an image.

    Names match whole segments of a path. An element is known on its own screen and in variables, which have
    no screen; a path that starts with the name of another screen means an element of that one.
*/
class CORVEX_EXPORT ReferenceTarget
{
public:
    ReferenceTarget() = default;
    //! The object and all below it, under the names that they bear now; not valid when nothing can refer to
    //! them.
    explicit ReferenceTarget(const DesignerObject *object);
    //! The object without what stands below it.
    static ReferenceTarget toItself(const DesignerObject *object);
    //! Whatever bears that name somewhere in the project.
    ReferenceTarget(const Project *project, const QString &name);

    bool isValid() const { return m_project && m_kinds; }
    Project *project() const { return const_cast<Project *>(m_project); }
    const Screen *screen() const { return m_screen; }
    NamedKinds kinds() const { return m_kinds; }
    //! The names of the object and of what stands below it.
    const QSet<QString> &names() const { return m_names; }
    //! Looks for more objects of the same kind and, being elements, of the same screen.
    void add(const ReferenceTarget &other);

    //! Whether a mention in a property of \a owner means one of them.
    bool isMeantBy(const Mention &mention, const DesignerObject *owner) const;

private:
    bool isElementMeant(const Mention &mention, const DesignerObject *owner) const;

    const Project *m_project = nullptr;
    const Screen *m_screen = nullptr; //!< that of elements; null for any
    NamedKinds m_kinds;
    QSet<QString> m_names;
};

} // namespace Halvane::Corvex::Designer
