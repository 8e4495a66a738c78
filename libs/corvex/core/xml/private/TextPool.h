// SPDX-License-Identifier: MIT
// Private to the sources of ObjectXmlReader; not installed.
#pragma once

#include <QHash>
#include <QString>

#include <array>

namespace Halvane::Corvex::Designer {

//! Converts UTF-8 to texts. A text that occurs repeatedly, like most values in a file, is a single shared
//! QString.
class TextPool
{
public:
    QString text(QByteArrayView utf8);

private:
    QHash<QByteArray, QString> m_texts; //!< the texts that occurred at least twice
    std::array<quint32, 1024> m_seen{}; //!< hashes of texts that occurred once, indexed by their low bits
};

} // namespace Halvane::Corvex::Designer
