// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/common/Export.h"
#include "corvex/core/xml/XmlText.h"

#include <cstring>
#include <vector>

namespace Halvane::Corvex::Designer {

//! A byte buffer for many short pieces: a project file has about ten for each property.
class CORVEX_EXPORT XmlBuffer
{
public:
    void append(char byte)
    {
        *room(1) = byte;
        ++m_size;
    }
    template<size_t Size>
    void append(const char (&literal)[Size])
    {
        std::memcpy(room(Size), literal, Size);
        m_size += Size - 1;
    }
    void append(QByteArrayView bytes)
    {
        std::memcpy(room(size_t(bytes.size())), bytes.data(), size_t(bytes.size()));
        m_size += size_t(bytes.size());
    }
    void appendBlanks(int count)
    {
        std::memset(room(size_t(count)), ' ', size_t(count));
        m_size += size_t(count);
    }
    //! Like XmlText::putAttribute().
    void appendEscaped(QStringView text)
    {
        char *out = room(size_t(text.size() * XmlText::longestPerUnit));
        m_size += size_t(XmlText::putAttribute(out, text) - out);
    }

    //! Valid until the next change.
    QByteArrayView bytes() const { return {m_bytes.data(), qsizetype(m_size)}; }
    void clear() { m_size = 0; }

private:
    //! Returns a place with space for at least so many bytes.
    char *room(size_t size)
    {
        if (m_bytes.size() - m_size < size) {
            m_bytes.resize(2 * m_bytes.size() + size);
        }
        return m_bytes.data() + m_size;
    }

    std::vector<char> m_bytes = std::vector<char>(1024); //!< its size is the capacity of the buffer
    size_t m_size = 0;
};

} // namespace Halvane::Corvex::Designer
