// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/core/ModelObserver.h"

#include <functional>
#include <optional>

class QColor;

namespace Halvane::Corvex::Designer {

class Screen;

//! The contrast of a text with what its screen shows beneath it. Reports edits of the screen, which may
//! change it.
class TextContrast : private ModelObserver
{
public:
    //! \a changed is called once in the event loop after edits.
    explicit TextContrast(std::function<void()> changed);
    ~TextContrast() override;

    void follow(const DesignerObject &text);

    //! 1 to 21, at the center of the text. Nothing if the color beneath is not known before run time, or if
    //! the screen has very many elements.
    static std::optional<double> of(const DesignerObject &text, const QColor &color);
    //! The lowest contrast at which texts are easy to read.
    static constexpr double enough = 4.5;
    //! Between two opaque colors.
    static double between(const QColor &first, const QColor &second);

private:
    void valueChanged(const SharedProperty &property, const QString &previousValue) override;
    void inserted(const SharedProperty &list, qsizetype index, DesignerObject *object) override;
    void removed(const SharedProperty &list, qsizetype index, DesignerObject *object) override;
    void moved(const SharedProperty &list, qsizetype from, qsizetype to) override;
    void reordered(const SharedProperty &list) override;
    void report(const SharedProperty &property);

    std::function<void()> m_changed;
    const Screen *m_screen = nullptr;  //!< only compared
    std::shared_ptr<bool> m_isPending; //!< true while a call waits in the event loop
};

} // namespace Halvane::Corvex::Designer
