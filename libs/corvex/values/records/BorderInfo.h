// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/common/Export.h"

#include <QColor>
#include <QString>

namespace Halvane::Corvex::Designer {

//! The border of a shape: its width in pixels and its colour.
class CORVEX_EXPORT BorderInfo
{
public:
    BorderInfo() = default;
    BorderInfo(int width, const QColor &color);
    //! "color: #FFFF0000; width: 2;"
    explicit BorderInfo(const QString &text, bool *ok = nullptr);

    int width() const { return m_width; }
    void setWidth(int width) { m_width = width; }
    const QColor &color() const { return m_color; }
    void setColor(const QColor &color) { m_color = color; }

    QString toString() const;
    //! The width is 0 to 100 and the colour is valid.
    bool isValid() const;

    friend bool operator==(const BorderInfo &, const BorderInfo &) = default;

private:
    int m_width = 0;
    QColor m_color = Qt::black;
};

} // namespace Halvane::Corvex::Designer
