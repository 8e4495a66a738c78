// SPDX-License-Identifier: MIT
// Private to the sources of ObjectXmlReader; not installed.
#pragma once

#include "corvex/core/xml/private/XmlTokens.h"

namespace Halvane::Corvex::Designer {

//! Receives the parts of an XML text in order. Texts are UTF-8 and valid during the call.
class XmlHandler
{
public:
    virtual void startElement(QByteArrayView name, std::span<const XmlAttribute> attributes) = 0;
    virtual void endElement(QByteArrayView name) = 0;
    //! An element without contents.
    virtual void emptyElement(QByteArrayView name, std::span<const XmlAttribute> attributes) = 0;
    //! Text between two tags that is not only whitespace. It may come in several pieces.
    virtual void characters(QByteArrayView text) = 0;
    virtual void comment() = 0;
    virtual void processingInstruction() = 0;

protected:
    ~XmlHandler() = default;
};

} // namespace Halvane::Corvex::Designer
