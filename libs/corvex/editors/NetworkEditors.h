// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/editors/PropertyEditor.h"

namespace Halvane::Corvex::Designer {

class KdAddressEdit;

//! An IP address, such as "192.168.0.10".
class CORVEX_EXPORT NetworkAddressEditor : public PropertyEditor
{
    Q_OBJECT

public:
    using PropertyEditor::PropertyEditor;

protected:
    void createFields() override;
    void showRow() override;
    Entry entryFor(const DesignerProperty &property) const override;
    //! A value of KdAddressEdit::Kind.
    virtual int kind() const;

private:
    KdAddressEdit *m_address = nullptr;
    QString m_example; //!< of an address, in an empty field
};

//! The address of a device on its network: six octets, or the number of a station on a serial bus.
class CORVEX_EXPORT MACAddressEditor : public NetworkAddressEditor
{
    Q_OBJECT

public:
    using NetworkAddressEditor::NetworkAddressEditor;

protected:
    int kind() const override;
};

} // namespace Halvane::Corvex::Designer
