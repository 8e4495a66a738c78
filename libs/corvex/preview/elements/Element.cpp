// SPDX-License-Identifier: MIT
#include "corvex/preview/elements/Element.h"

#include "corvex/preview/Panel.h"

namespace Halvane::Corvex::Preview {

void Element::componentComplete()
{
    m_panel = Panel::of(this);
    if (!m_panel) {
        return;
    }
    m_isCompleted = true;
    emit completedChanged();
    start();
}

void Element::perform(const std::function<void()> &handlers)
{
    const ScriptScope scope(*m_panel, Panel::pathOf(this));
    handlers();
}

} // namespace Halvane::Corvex::Preview
