// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/common/Export.h"
#include "corvex/core/DesignerObject.h"

namespace Halvane::Corvex::Designer {

//! An object that represents a folder: "parentPath/directoryName".
class CORVEX_EXPORT DirectoryObject : public DesignerObject
{
    Q_OBJECT
    CORVEX_CLASS_NAMES(DirectoryObject, DesignerObject)

public:
    QString baseName() const override;
    QString displayName() const override;

    //! Creates the folder in the existing folder \a path, unless it exists, and uses it.
    virtual bool createDirectory(const QString &path);
    //! Uses the folder in \a path, or \a path itself if it has the folder's name. It must exist.
    virtual bool loadDirectory(const QString &path);
    //! The name of the folder, without a path.
    virtual QString createDirectoryName() const = 0;

    //! Absolute; like the names below, empty without a folder.
    const QString &parentPath() const { return m_parentPath; }
    const QString &directoryName() const { return m_directoryName; }
    QString fullPath() const;

protected:
    explicit DirectoryObject(QObject *parent = nullptr)
        : DesignerObject(parent)
    { }

private:
    QString m_parentPath;
    QString m_directoryName;
};

} // namespace Halvane::Corvex::Designer
