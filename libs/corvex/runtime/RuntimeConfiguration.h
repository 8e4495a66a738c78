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

/*! What the device reads beside the screens: the project with its variables, the CAN groups and the BACnet
    devices, a file each, written with FileHelper::variantToFile() without compression.

    config.kdrc holds "defaultScreen" (the QML id), "version" (the project's build tag), four passwords
   ("retreivePassword", "uploadPassword", "comControlPassword", "reintializePassword") and "variables".
   Passwords are hashes (see PasswordHash), empty where none is asked for. A variable is a record under its
   name: "persistent", "type" (EnumHelper::VariableType) and "value", which is invalid when the text of the
   variable stands for none. An auto-setting variable stands under "OBJECT TYPE.NAME". Mappings, logs and what
   is in the two other files are left out.
*/
class CORVEX_EXPORT RuntimeConfiguration
{
public:
    //! Collects from \a project, an object with lists "screens" and "variables". False, with a text for the
    //! user, when a password cannot be hashed.
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
    // A project may have 20,000 variables: they become a map only for those who ask for one.
    std::vector<Variable> m_variables;
    QVariantMap m_settings;
};

} // namespace Halvane::Corvex::Designer
