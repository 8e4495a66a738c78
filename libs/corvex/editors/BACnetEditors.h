// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/editors/TermTableEditor.h"

namespace Halvane::Corvex::Designer {

class KdComboBox;

//! The identifier of a BACnet object: its type, by name, and its instance.
class CORVEX_EXPORT BACObjIdEditor : public PropertyEditor
{
    Q_OBJECT

public:
    using PropertyEditor::PropertyEditor;

protected:
    void createFields() override;
    void showRow() override;
    Entry entryFor(const DesignerProperty &property) const override;

private:
    KdComboBox *m_type = nullptr;
    KdLineEdit *m_instance = nullptr;
};

//! The properties of the device's own BACnet object.
class CORVEX_EXPORT BACDeviceEditor : public PropertyEditor
{
    Q_OBJECT

public:
    using PropertyEditor::PropertyEditor;

    bool isWide() const override { return true; }

protected:
    void createFields() override;
    void showRow() override;
    Entry entryFor(const DesignerProperty &property) const override;

private:
    QList<KdLineEdit *> m_lines; //!< in the order of the table of fields
};

//! The properties of a BACnet object: name, data type and source of each.
class CORVEX_EXPORT BACnetPropertiesEditor : public TermTableEditor
{
    Q_OBJECT

public:
    using TermTableEditor::TermTableEditor;

protected:
    const std::vector<TermColumn> &columns() const override;
    QHash<int, QString> conflicts() const override;
};

} // namespace Halvane::Corvex::Designer
