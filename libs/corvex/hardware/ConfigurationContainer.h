// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/common/Export.h"
#include "corvex/core/DirectoryObject.h"

namespace Halvane::Corvex::Designer {

class Configuration;

//! The folder "Configurations" and the device models in it.
class CORVEX_EXPORT ConfigurationContainer : public DirectoryObject
{
    Q_OBJECT
    CORVEX_CLASS_NAMES(ConfigurationContainer, DirectoryObject)

public:
    //! "Configurations".
    QString createDirectoryName() const override;
    /*! Reads every configuration file below the folder, which must exist. What is no configuration, and a
       model that is there already, is passed over with a warning. Links to folders are not followed. */
    bool loadDirectory(const QString &path) override;
    //! Absolute; empty before a folder was made or loaded.
    QString configurationsPath() const { return fullPath(); }

    //! In the natural order of their names.
    QList<Configuration *> configurations() const;
    //! Null when there is no such model.
    Configuration *configuration(const QString &model) const;
    /*! The model for a project that was made for \a wanted: that model itself, else the first that \a wanted
       lists as compatible, else one that lists \a wanted. Null, with a text for the user in \a error, when
       there is none. */
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
