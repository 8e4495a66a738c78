// SPDX-License-Identifier: MIT
// Private to the sources of ObjectXmlReader; not installed.
#pragma once

#include "corvex/core/ItemList.h"
#include "corvex/core/xml/private/XmlTokens.h"

namespace Halvane::Corvex::Designer {

//! Records an element that the reader cannot turn into an object, in the format of ObjectXmlWriter. An
//! element written by that writer gives the same bytes.
class KeptItemRecorder
{
public:
    void start(const QString &className);
    void open(QByteArrayView name, std::span<const XmlAttribute> attributes);
    void close(QByteArrayView name);
    //! Adds text between elements, trimmed.
    void addText(QByteArrayView utf8) { m_text.append(utf8); }
    KeptItem take() { return std::exchange(m_item, {}); }

private:
    void endOpenTag();
    void writeText();
    void startLine();

    KeptItem m_item;
    QByteArray m_text;
    int m_depth = 0;
    bool m_isTagOpen = false; //!< the last start tag may still become an empty element
};

} // namespace Halvane::Corvex::Designer
