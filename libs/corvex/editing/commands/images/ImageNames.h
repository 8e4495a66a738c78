// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/common/Export.h"

#include <QHash>
#include <QPair>
#include <QSet>
#include <QString>

namespace Halvane::Corvex::Designer {

class Project;

//! The names and contents of a project's images, for adding new ones.
class CORVEX_EXPORT ImageNames
{
public:
    explicit ImageNames(const Project *project);

    //! The image whose file has that MD5 digest and that extension in lower case; empty if no image has them.
    QString withContents(const QString &digest, const QString &extension);
    //! \a wanted or, if it is in use by an image or a file, the name with the first free number: "pump2.png".
    //! The returned name counts as used.
    QString freeName(const QString &wanted);
    //! Records an image that is about to be added.
    void add(const QString &name, const QString &digest);

private:
    static QString extensionOf(const QString &name);

    const Project *m_project;
    QSet<QString> m_names; //!< in lower case, for case-insensitive file systems
    QHash<QPair<QString, QString>, QString> m_byContents;
    bool m_contentsKnown = false;
};

} // namespace Halvane::Corvex::Designer
