// SPDX-License-Identifier: MIT
// Private to the sources of ObjectXmlReader; not installed.
#pragma once

#include "corvex/core/ItemList.h"
#include "corvex/core/xml/private/XmlTokens.h"

namespace Halvane::Corvex::Designer {

/*! Writes down an element that the reader cannot make into an object, in the form of ObjectXmlWriter: what
   that writer wrote comes out as the same bytes. */
class KeptItemRecorder
{
public:
    void start(const QString &className);
    void open(QByteArrayView name, std::span<const XmlAttribute> attributes);
    void close(QByteArrayView name);
    //! Text between elements; blanks around it are dropped.
    void addText(QByteArrayView utf8) { m_text.append(utf8); }
    KeptItem take() { return std::exchange(m_item, {}); }

private:
    void endOpenTag();
    void writeText();
    void startLine();

    KeptItem m_item;
    QByteArray m_text;
    int m_depth = 0;
    bool m_isTagOpen = false; //!< the last start tag may yet become an empty element
};

} // namespace Halvane::Corvex::Designer
