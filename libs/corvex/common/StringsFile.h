// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/common/Export.h"

#include <QHash>
#include <QString>

namespace Halvane::Corvex::Common {

//! A table of translated texts in the form of "Localizable.strings" files: entries "key" = "value"; with the
//! escapes of C in the texts and with comments of both kinds of C between them. Encoded in UTF-8, or in
//! UTF-16 with a byte order mark.
class CORVEX_COMMON_EXPORT StringsFile
{
public:
    //! Both replace what the table held. On an error, which names the line, the table is left empty.
    bool load(const QString &path, QString *error = nullptr);
    bool parse(const QByteArray &bytes, QString *error = nullptr);

    //! Of a key that stands twice the last value counts.
    bool contains(const QString &key) const { return m_values.contains(key); }
    //! The key itself when the table does not hold it.
    QString value(const QString &key) const { return m_values.value(key, key); }
    qsizetype count() const { return m_values.size(); }

private:
    QHash<QString, QString> m_values;
};

} // namespace Halvane::Corvex::Common
