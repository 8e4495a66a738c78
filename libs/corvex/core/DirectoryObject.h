// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/common/Export.h"
#include "corvex/core/DesignerObject.h"

namespace Halvane::Corvex::Designer {

//! An object that is a folder: "parentPath/directoryName".
class CORVEX_EXPORT DirectoryObject : public DesignerObject
{
    Q_OBJECT
    CORVEX_CLASS_NAMES(DirectoryObject, DesignerObject)

public:
    QString baseName() const override;
    QString displayName() const override;

    //! Makes the folder in the existing folder \a path, unless it is there, and takes it as its own.
    virtual bool createDirectory(const QString &path);
    //! Takes the folder in \a path, or \a path itself when that bears the folder's name. It must exist.
    virtual bool loadDirectory(const QString &path);
    //! The name of the folder, a single name.
    virtual QString createDirectoryName() const = 0;

    //! Absolute; empty without a folder, like the names below.
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
