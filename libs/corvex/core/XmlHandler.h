// SPDX-License-Identifier: MIT
// Private to the sources of ObjectXmlReader; not installed.
#pragma once

#include <QByteArrayView>

namespace Halvane::Corvex::Designer {

//! Hears what stands in a text, in its order. Texts are UTF-8 and valid during the call.
class XmlHandler
{
public:
    //! \a attributes holds names and values by turns and ends with null.
    virtual void startElement(const char *name, const char **attributes) = 0;
    virtual void endElement(const char *name) = 0;
    //! What lies between two tags may come in several pieces, each of which is blank or is not.
    virtual void characters(QByteArrayView text, bool isBlank) = 0;
    virtual void comment() = 0;
    virtual void processingInstruction() = 0;

protected:
    ~XmlHandler() = default;
};

} // namespace Halvane::Corvex::Designer
