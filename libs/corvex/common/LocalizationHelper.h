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
    //! The name of the locale whose texts are shown ("de_DE"); that of the system until another is set.
    static QString currentLocale();
    static void setCurrentLocale(const QString &name);

    //! The folder with one sub-folder per locale or language ("de_DE", "de") that holds a
    //! "Localizable.strings" with the library's own texts. None by default: texts are shown in English then.
    //! False, with English texts, when the table of the current locale is there and cannot be read; a locale
    //! without a table is no error.
    static bool setLocalizationsPath(const QString &path, QString *error = nullptr);

    //! The text in the current locale; the English text itself when there is no translation. Placeholders are
    //! the same in both and are filled by the caller, in one call.
    static QString coreString(const QString &english);

    //! The text of a table; the key itself when the table does not hold it.
    static QString localizedString(const StringsFile &table, const QString &key);
};

} // namespace Halvane::Corvex::Common
