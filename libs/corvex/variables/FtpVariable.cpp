// SPDX-License-Identifier: MIT
#include "corvex/variables/FtpVariable.h"

#include "corvex/core/PropertyTable.h"
#include "corvex/core/properties/BasicProperties.h"
#include "corvex/core/properties/EnumProperty.h"

using namespace Qt::StringLiterals;

namespace Halvane::Corvex::Designer {

bool FtpVariable::initializeProperties()
{
    const auto text = [](const char *id, const char *title) {
        return row<StringProperty>(id, title, QString()).allowInvalid();
    };
    static const PropertyTable table{
        fixedPersistence(true),
        text("host", "Host")
            .description("The name or the IP address of the server that receives the files.")
            .example("ftp.example.com")
            .rank(12),
        enumRow("type", "Type", "FtpType")
            .description("The protocol of the upload; FTPS and SFTP are encrypted.")
            .rank(13),
        text("user", "User")
            .description("The name of the user at the server.")
            .example("operator")
            .rank(14)
            .hidden(),
        text("password", "Password")
            .description("The password of the user at the server.")
            .example("secret")
            .rank(15)
            .editor("ProjectPasswordEditor")
            .hidden(),
        text("remotePath", "Remote Path")
            .description("The folder of the server into which the files are put.")
            .example("logs/pump1")
            .rank(16),
        row<IntegerProperty>("fileCount", "Upload file count", 5)
            .rank(17)
            .allowInvalid()
            .parameter("minimum", 1)
            .parameter("maximum", 10)
            .parameter("singelStep", 1)
            .description("Data logged is split into mutiple files if logged with 'Save and Reset' option "
                         "provided in the Log Variable.\n\nUploads the most recent set of Log files."),
        row<BooleanProperty>("fileRemove", "Delete after upload", true)
            .description("Whether the device deletes a file after it was uploaded.")
            .rank(18)
            .allowInvalid(),
    };
    if (!ProjectVariable::initializeProperties() || !addProperties(table)) {
        return false;
    }
    m_host = getProperty(u"host");
    m_type = getProperty(u"type");
    m_user = getProperty(u"user");
    m_password = getProperty(u"password");
    m_fileRemove = getProperty(u"fileRemove");
    return true;
}

SharedProperty FtpVariable::initializeValueProperty()
{
    static const PropertyRow prototype =
        row<StringProperty>("value", "Ftp Value", QString())
            .description("The text that the variable has when the device starts.")
            .rank(10)
            .allowInvalid();
    return prototype.make(this);
}

void FtpVariable::afterPropertyChanged(const DesignerProperty *property, const QString &previousValue)
{
    ProjectVariable::afterPropertyChanged(property, previousValue);
    if (property == m_type) {
        const bool asksWho = m_type->valueString() != "FTP"_L1;
        m_user->setEditorParameter(u"visible"_s, asksWho);
        m_password->setEditorParameter(u"visible"_s, asksWho);
    }
}

} // namespace Halvane::Corvex::Designer
