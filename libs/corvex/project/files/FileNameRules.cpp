// SPDX-License-Identifier: MIT
#include "corvex/project/files/FileNameRules.h"

#include "corvex/common/LocalizationHelper.h"
#include "corvex/common/TextHelper.h"
#include "corvex/common/files/FileHelper.h"

#include <QFileInfo>

using namespace Qt::StringLiterals;

namespace Halvane::Corvex::Designer {

namespace {

using Common::LocalizationHelper;
using Common::TextHelper;

QString forbiddenCharactersError(const QString &name)
{
    const QStringList characters = TextHelper::forbiddenFileNameCharacters(name);
    if (characters.isEmpty()) {
        return {};
    }
    const QString text =
        characters.size() == 1
            ? u"The name is in the wrong format. The following character may not be used: %1"_s
            : u"The name is in the wrong format. The following characters may not be used: %1"_s;
    return LocalizationHelper::coreString(text).arg(characters.join(u' '));
}

QString reservedNameError(const QString &name)
{
    return TextHelper::isReservedDeviceName(name)
               ? LocalizationHelper::coreString(u"This name is reserved."_s)
               : QString();
}

bool hasImageExtension(const QString &name)
{
    const qsizetype dot = name.lastIndexOf(u'.');
    return dot >= 0 && Common::FileHelper::validImageExtensions().contains(name.mid(dot + 1).toLower());
}

//! In the terms of FileHelper::isValidImage().
QString formatOf(const QString &name)
{
    const QString extension = name.section(u'.', -1).toLower();
    return extension == "jpeg"_L1 ? u"jpg"_s : extension;
}

} // namespace

QString FileNameRules::projectNameError(const QString &name)
{
    if (name.size() > longestProjectName) {
        return LocalizationHelper::coreString(u"The project's name cannot have more than 248 characters."_s);
    }
    if (name.size() < 2) {
        return LocalizationHelper::coreString(u"The project's name must have at least 2 characters."_s);
    }
    if (QString error = forbiddenCharactersError(name); !error.isEmpty()) {
        return error;
    }
    if (!TextHelper::isValidFileNameFormat(name)) {
        return LocalizationHelper::coreString(u"The project's name cannot begin with a space or a dot."_s);
    }
    // An identifier drops surrounding blanks, so the file would have a different name than the project.
    if (name.trimmed() != name) {
        return LocalizationHelper::coreString(u"The project's name cannot begin or end with a space."_s);
    }
    return reservedNameError(name);
}

QString FileNameRules::imageNameError(const QString &name)
{
    if (name.size() > longestImageName) {
        return LocalizationHelper::coreString(u"The image name cannot have more than 255 characters."_s);
    }
    if (!hasImageExtension(name)) {
        return LocalizationHelper::coreString(u"The name is in the wrong format. Please ensure you include "
                                              "the image's file extension: %1"_s)
            .arg(Common::FileHelper::validImageExtensions().join(u", "_s));
    }
    if (QString error = forbiddenCharactersError(name); !error.isEmpty()) {
        return error;
    }
    if (!TextHelper::isValidFileNameFormat(name)) {
        return LocalizationHelper::coreString(u"An error occurred."_s);
    }
    return reservedNameError(name);
}

QString FileNameRules::imageFileError(const QString &path, const QString &name)
{
    const QString file = QFileInfo(path).fileName();
    if (!QFileInfo(path).isFile()) {
        return LocalizationHelper::coreString(u"The file \"%1\" does not exist."_s).arg(file);
    }
    QString format;
    const bool isWhole = Common::FileHelper::isValidImage(path, &format);
    if (format.isEmpty()) {
        return LocalizationHelper::coreString(u"The file \"%1\" is not an image of one of these kinds: %2"_s)
            .arg(file, Common::FileHelper::validImageExtensions().join(u", "_s));
    }
    if (format != formatOf(name)) {
        return LocalizationHelper::coreString(
                   u"The file \"%1\" is an image of the kind %2. Its name must end with \".%2\", and \"%3\" does not."_s)
            .arg(file, format, name);
    }
    return isWhole || formatOf(file) != format
               ? QString()
               : LocalizationHelper::coreString(
                     u"The file \"%1\" is damaged: the image in it is not complete."_s)
                     .arg(file);
}

bool FileNameRules::haveSameFormat(const QString &name, const QString &otherName)
{
    return formatOf(name) == formatOf(otherName);
}

} // namespace Halvane::Corvex::Designer
