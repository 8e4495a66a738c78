// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/common/Export.h"

#include <QList>
#include <QSet>
#include <QStringList>

namespace Halvane::Corvex::Designer {

class DesignerObject;
class Project;
class Screen;

/*! Finds names in the values of elements whose plug-ins are missing.

    A project keeps such elements as text from its file. Only the plug-in knows what their values mean, so no
    command updates them when another object is renamed or deleted. The user must know about them.
*/
class CORVEX_EXPORT KeptMentions
{
public:
    //! Reads the kept items of the project, except those in the objects \a leftOut. Searches the project only
    //! if it was loaded with such elements.
    explicit KeptMentions(const Project &project, const QSet<const DesignerObject *> &leftOut = {});

    //! The paths of the elements that contain the name as a word in a value, such as "Overview.gauge1", in
    //! file order: those on one screen, or all.
    QStringList of(const QString &name, const Screen *screen = nullptr) const;

private:
    struct Kept
    {
        QString path;
        const Screen *screen;
        QString text;
    };

    void read(const DesignerObject &object, const QSet<const DesignerObject *> &leftOut);

    QList<Kept> m_kept;
};

} // namespace Halvane::Corvex::Designer
