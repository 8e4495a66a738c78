// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/common/Export.h"
#include "corvex/runtime/BACnetConfiguration.h"
#include "corvex/runtime/CanConfiguration.h"

#include <QVariantMap>

#include <vector>

namespace Halvane::Corvex::Common::VariantStream {
class MapWriter;
}

namespace Halvane::Corvex::Designer {

class DesignerObject;
class ProjectVariable;

/*! The files that the device reads in addition to the screens: the project with its variables, the CAN groups
    and the BACnet devices. Each is written with FileHelper::variantToFile(), without compression.

    config.kdrc contains "defaultScreen" (the QML id), "version" (the project's build tag), four passwords
    ("retreivePassword", "uploadPassword", "comControlPassword", "reintializePassword") and "variables".
    Passwords are hashed (see PasswordHash), or empty if none is required. A variable is a record under its
    name: "persistent", "type" (EnumHelper::VariableType) and "value", which is invalid if the text of the
    variable is not a value. An auto-setting variable has the name "OBJECT TYPE.NAME". Mappings, logs and the
    contents of the two other files are omitted.
*/
class CORVEX_EXPORT RuntimeConfiguration
{
public:
    //! Collects the data from \a project, an object with lists "screens" and "variables". Returns false, with
    //! a text for the user, if a password cannot be hashed.
    bool collect(const DesignerObject &project, QString *error);
    //! Writes canConfig.kdrc, bacConfig.kdrc and config.kdrc, in this order, into \a folder.
    bool write(const QString &folder, QString *error) const;

    QVariantMap canMap() const { return m_can.toMap(); }
    QVariantMap bacnetMap() const { return m_bacnet.toMap(); }
    QVariantMap configMap() const;

private:
    struct Variable
    {
        QString key;
        bool isPersistent;
        int type;
        QVariant value;
    };

    void addVariable(const ProjectVariable &variable);
    void addRecord(const QString &key, const ProjectVariable &variable);
    void sortVariables();
    bool addPasswords(const DesignerObject &project, QString *error);
    void writeVariables(Common::VariantStream::MapWriter &writer) const;
    bool writeConfig(const QString &path, QString *error) const;

    CanConfiguration m_can;
    BACnetConfiguration m_bacnet;
    // A project may have 20,000 variables; they are converted to a map only on request.
    std::vector<Variable> m_variables;
    QVariantMap m_settings;
};

} // namespace Halvane::Corvex::Designer
