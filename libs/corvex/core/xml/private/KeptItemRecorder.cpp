// SPDX-License-Identifier: MIT
#include "corvex/core/xml/private/KeptItemRecorder.h"

#include "corvex/core/xml/XmlText.h"
#include "corvex/values/records/IdentifierInfo.h"

namespace Halvane::Corvex::Designer {

namespace {

//! The depth of an item's properties below the item.
constexpr int propertyDepth = 2;

} // namespace

void KeptItemRecorder::start(const QString &className)
{
    m_item = {};
    m_item.className = className;
    m_text.clear();
    m_depth = 0;
    m_isTagOpen = false;
}

void KeptItemRecorder::startLine()
{
    if (!m_item.xml.isEmpty()) {
        m_item.xml.append('\n');
    }
    m_item.xml.append(m_depth, ' ');
}

void KeptItemRecorder::endOpenTag()
{
    if (m_isTagOpen) {
        m_item.xml.append('>');
        m_isTagOpen = false;
    }
}

void KeptItemRecorder::writeText()
{
    const QByteArray text = std::exchange(m_text, {}).trimmed();
    if (!text.isEmpty()) {
        endOpenTag();
        startLine();
        XmlText::appendAttribute(m_item.xml, QByteArrayView(text));
    }
}

void KeptItemRecorder::open(QByteArrayView name, std::span<const XmlAttribute> attributes)
{
    writeText();
    endOpenTag();
    startLine();
    m_item.xml.append('<').append(name);
    bool isId = false;
    for (const XmlAttribute &attribute : attributes) {
        m_item.xml.append(' ').append(attribute.name).append("=\"");
        XmlText::appendAttribute(m_item.xml, attribute.value);
        m_item.xml.append('"');
        isId = isId || (attribute.name == "name" && attribute.value == "id");
        if (isId && m_depth == propertyDepth && attribute.name == "value") {
            m_item.name = IdentifierInfo(QString::fromUtf8(attribute.value), nullptr).name();
        }
    }
    m_isTagOpen = true;
    ++m_depth;
}

void KeptItemRecorder::close(QByteArrayView name)
{
    writeText();
    --m_depth;
    if (m_isTagOpen) {
        m_item.xml.append("/>");
        m_isTagOpen = false;
    } else {
        startLine();
        m_item.xml.append("</").append(name).append('>');
    }
}

} // namespace Halvane::Corvex::Designer
