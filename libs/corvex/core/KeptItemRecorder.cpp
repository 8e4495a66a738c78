// SPDX-License-Identifier: MIT
#include "corvex/core/KeptItemRecorder.h"

#include "corvex/core/XmlText.h"
#include "corvex/values/IdentifierInfo.h"

namespace Halvane::Corvex::Designer {

namespace {

//! Where the properties of an item stand below the item itself.
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

void KeptItemRecorder::open(const char *name, const char **attributes)
{
    writeText();
    endOpenTag();
    startLine();
    m_item.xml.append('<').append(name);
    bool isId = false;
    for (; *attributes; attributes += 2) {
        m_item.xml.append(' ').append(attributes[0]).append("=\"");
        XmlText::appendAttribute(m_item.xml, QByteArrayView(attributes[1]));
        m_item.xml.append('"');
        isId = isId || (qstrcmp(attributes[0], "name") == 0 && qstrcmp(attributes[1], "id") == 0);
        if (isId && m_depth == propertyDepth && qstrcmp(attributes[0], "value") == 0) {
            m_item.name = IdentifierInfo(QString::fromUtf8(attributes[1]), nullptr).name();
        }
    }
    m_isTagOpen = true;
    ++m_depth;
}

void KeptItemRecorder::close(const char *name)
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
