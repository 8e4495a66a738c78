// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/common/Export.h"

#include <QHash>
#include <QString>

namespace Halvane::Corvex::Common {

//! A table of translated texts in the format of "Localizable.strings" files: entries "key" = "value"; with C
//! escapes in the texts and both kinds of C comments between the entries. The encoding is UTF-8, or UTF-16
//! with a byte order mark.
class CORVEX_COMMON_EXPORT StringsFile
{
public:
    //! Both replace the contents of the table. On an error, which names the line, the table is empty.
    bool load(const QString &path, QString *error = nullptr);
    bool parse(const QByteArray &bytes, QString *error = nullptr);

    //! If a key occurs twice, the last value counts.
    bool contains(const QString &key) const { return m_values.contains(key); }
    //! The key itself if the table does not contain it.
    QString value(const QString &key) const { return m_values.value(key, key); }
    qsizetype count() const { return m_values.size(); }

private:
    QHash<QString, QString> m_values;
};

} // namespace Halvane::Corvex::Common
