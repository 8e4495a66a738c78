// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/common/Export.h"

#include <QString>

namespace Halvane::Corvex::Common {

class StringsFile;

//! Translated texts. All functions may be called from any thread.
class CORVEX_COMMON_EXPORT LocalizationHelper
{
public:
    //! The name of the current locale ("de_DE"), by default that of the system.
    static QString currentLocale();
    static void setCurrentLocale(const QString &name);

    /*! Sets the folder with the library's own texts: one sub-folder per locale or language ("de_DE", "de"),
        each with a "Localizable.strings". By default no folder is set and texts are English. Returns false if
        the table of the current locale exists but cannot be read; texts are then English. A missing table is
        not an error.
    */
    static bool setLocalizationsPath(const QString &path, QString *error = nullptr);

    //! The text in the current locale, or the English text if there is no translation. Both have the same
    //! placeholders, which the caller fills in one call.
    static QString coreString(const QString &english);

    //! The text with that key; the key itself if the table does not contain it.
    static QString localizedString(const StringsFile &table, const QString &key);
};

} // namespace Halvane::Corvex::Common
