// SPDX-License-Identifier: MIT
// Private to the sources of ObjectXmlReader; not installed.
#pragma once

#include <QHash>
#include <QString>

#include <array>

namespace Halvane::Corvex::Designer {

/*! Makes texts of UTF-8. A text that comes again and again, as most values of a file do, is one QString that
   all of its users share. */
class TextPool
{
public:
    QString text(QByteArrayView utf8);

private:
    QHash<QByteArray, QString> m_texts; //!< those that came twice at least
    std::array<quint32, 1024> m_seen{}; //!< hashes of texts that came once, each at its last digits
};

} // namespace Halvane::Corvex::Designer
