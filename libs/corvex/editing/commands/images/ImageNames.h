// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/common/Export.h"

#include <QHash>
#include <QPair>
#include <QSet>
#include <QString>

namespace Halvane::Corvex::Designer {

class Project;

//! The names and contents of the images that a project has, for those that are to be added.
class CORVEX_EXPORT ImageNames
{
public:
    explicit ImageNames(const Project *project);

    //! The image whose file has that MD5 digest and that extension, in lower case; empty when there is none.
    QString withContents(const QString &digest, const QString &extension);
    //! \a wanted, or with the first number that makes it a name that no image and no file has: "pump2.png".
    //! From here on it is taken.
    QString freeName(const QString &wanted);
    //! An image that is about to be added.
    void add(const QString &name, const QString &digest);

private:
    static QString extensionOf(const QString &name);

    const Project *m_project;
    QSet<QString> m_names; //!< in lower case, for file systems that do not tell cases apart
    QHash<QPair<QString, QString>, QString> m_byContents;
    bool m_contentsKnown = false;
};

} // namespace Halvane::Corvex::Designer
