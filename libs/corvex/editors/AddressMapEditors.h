// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/editors/TermTableEditor.h"

namespace Halvane::Corvex::Designer {

//! The Modbus registers of one kind ("RegType"): address and source of each, with what follows from the kind.
class CORVEX_EXPORT AddressMapEditor : public TermTableEditor
{
    Q_OBJECT

public:
    using TermTableEditor::TermTableEditor;

protected:
    const std::vector<TermColumn> &columns() const override;
    QHash<int, QString> conflicts() const override;
};

//! The same for virtual strings.
class CORVEX_EXPORT StringAddressMapEditor : public AddressMapEditor
{
    Q_OBJECT

public:
    using AddressMapEditor::AddressMapEditor;
};

} // namespace Halvane::Corvex::Designer
