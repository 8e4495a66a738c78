// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/common/Export.h"
#include "corvex/core/DirectoryObject.h"

namespace Halvane::Corvex::Designer {

class Configuration;

//! The device models in the folder "Configurations".
class CORVEX_EXPORT ConfigurationContainer : public DirectoryObject
{
    Q_OBJECT
    CORVEX_CLASS_NAMES(ConfigurationContainer, DirectoryObject)

public:
    //! "Configurations".
    QString createDirectoryName() const override;
    //! Reads all configuration files below the folder, which must exist. Skips other files and duplicate
    //! models with a warning. Does not follow links to folders.
    bool loadDirectory(const QString &path) override;
    //! Absolute; empty before a folder was created or loaded.
    QString configurationsPath() const { return fullPath(); }

    //! In natural order of their names.
    QList<Configuration *> configurations() const;
    //! Null if there is no such model.
    Configuration *configuration(const QString &model) const;
    //! The model to use for a project made for \a wanted: that model itself, or the first model that \a
    //! wanted lists as compatible, or a model that lists \a wanted. Null, with a text for the user in \a
    //! error, if no model matches.
    Configuration *match(const Configuration *wanted, QString *error = nullptr) const;

protected:
    explicit ConfigurationContainer(QObject *parent = nullptr)
        : DirectoryObject(parent)
    { }

    ObjectView *createGraphicsItem() override;
    bool initializeProperties() override;

private:
    Configuration *findMatch(const Configuration &wanted) const;
    void loadFile(const QString &path);

    SharedProperty m_configurations;
};

} // namespace Halvane::Corvex::Designer
