// SPDX-License-Identifier: MIT
#include "corvex/core/XmlTokens.h"

#include <cstring>

namespace Halvane::Corvex::Designer {

// A token is its kind, its line and its column; then, for elements and texts, the text; then, for the start
// of an element, the count of its attributes' texts and these. A text is its size, its bytes and a zero byte.

void XmlTokens::clear()
{
    m_bytes.clear();
    m_openBlank = noText;
    m_error.clear();
    m_errorPlace = {};
}

void XmlTokens::addStart(XmlPlace place, const char *name, const char **attributes)
{
    putHead(place, Start);
    putText(name);
    const size_t countPlace = m_bytes.size();
    quint32 count = 0;
    putNumber(count);
    for (; attributes[count]; ++count) {
        putText(attributes[count]);
    }
    std::memcpy(m_bytes.data() + countPlace, &count, sizeof count);
}

void XmlTokens::addEnd(XmlPlace place, const char *name)
{
    putHead(place, End);
    putText(name);
}

void XmlTokens::addText(XmlPlace place, QByteArrayView text, bool isBlank)
{
    if (isBlank && m_openBlank != noText) {
        quint32 size = 0;
        std::memcpy(&size, m_bytes.data() + m_openBlank, sizeof size);
        size += quint32(text.size());
        std::memcpy(m_bytes.data() + m_openBlank, &size, sizeof size);
        m_bytes.pop_back();
        m_bytes.insert(m_bytes.end(), text.begin(), text.end());
        m_bytes.push_back('\0');
        return;
    }
    putHead(place, isBlank ? Blank : Text);
    const size_t start = m_bytes.size();
    putText(text);
    m_openBlank = isBlank ? start : noText;
}

void XmlTokens::add(XmlPlace place, Kind kind)
{
    putHead(place, kind);
}

void XmlTokens::setError(XmlPlace place, const QString &message)
{
    m_error = message;
    m_errorPlace = place;
}

template<typename Number>
void XmlTokens::putNumber(Number number)
{
    const size_t place = m_bytes.size();
    m_bytes.resize(place + sizeof number);
    std::memcpy(m_bytes.data() + place, &number, sizeof number);
}

void XmlTokens::putText(QByteArrayView text)
{
    const size_t place = m_bytes.size();
    const auto size = quint32(text.size());
    m_bytes.resize(place + sizeof size + size + 1);
    char *bytes = m_bytes.data() + place;
    std::memcpy(bytes, &size, sizeof size);
    std::memcpy(bytes + sizeof size, text.data(), size);
    bytes[sizeof size + size] = '\0';
}

void XmlTokens::putHead(XmlPlace place, Kind kind)
{
    m_openBlank = noText;
    putNumber(kind);
    putNumber(place);
}

template<typename Number>
Number XmlTokens::Cursor::takeNumber()
{
    Number number;
    std::memcpy(&number, m_next, sizeof number);
    m_next += sizeof number;
    return number;
}

QByteArrayView XmlTokens::Cursor::takeText()
{
    const auto size = takeNumber<quint32>();
    const QByteArrayView text(m_next, qsizetype(size));
    m_next += size + 1;
    return text;
}

bool XmlTokens::Cursor::next()
{
    if (m_next == m_end) {
        return false;
    }
    m_kind = takeNumber<Kind>();
    m_place = takeNumber<XmlPlace>();
    const bool hasText = m_kind != Comment && m_kind != Instruction;
    m_text = hasText ? takeText() : QByteArrayView();
    if (m_kind == Start) {
        const auto count = takeNumber<quint32>();
        m_attributes.clear();
        for (quint32 i = 0; i < count; ++i) {
            m_attributes.push_back(takeText().data());
        }
        m_attributes.push_back(nullptr);
    }
    return true;
}

} // namespace Halvane::Corvex::Designer
