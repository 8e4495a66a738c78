// SPDX-License-Identifier: MIT
#include "corvex/editors/NetworkEditors.h"

#include "corvex/widgets/KdAddressEdit.h"

#include <QHBoxLayout>

namespace Halvane::Corvex::Designer {

int NetworkAddressEditor::kind() const
{
    return KdAddressEdit::IPv4;
}

int MACAddressEditor::kind() const
{
    return KdAddressEdit::Mac;
}

void NetworkAddressEditor::createFields()
{
    m_address = new KdAddressEdit(KdAddressEdit::Kind(kind()), this);
    m_example = m_address->placeholderText();
    prepareLine(m_address);
    fields()->addWidget(m_address, 1);
    connect(m_address, &KdAddressEdit::stepped, this, [this] { completeStep(); });
}

void NetworkAddressEditor::showRow()
{
    m_address->setPlaceholderText(row().isMixed ? mixedText() : m_example);
    // Keeps the octet that the user changes by steps.
    const int place = m_address->cursorPosition();
    m_address->setShownText(row().value);
    if (m_address->hasFocus()) {
        m_address->setCursorPosition(place);
    }
}

PropertyEditor::Entry NetworkAddressEditor::entryFor(const DesignerProperty &) const
{
    const auto [address, error] = KdAddressEdit::read(KdAddressEdit::Kind(kind()), m_address->text());
    return {address, error};
}

} // namespace Halvane::Corvex::Designer
