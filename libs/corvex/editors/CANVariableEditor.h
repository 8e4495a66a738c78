// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/editors/TermTableEditor.h"

namespace Halvane::Corvex::Designer {

class CanBitsView;

//! A J1939 parameter group: its number, priority and source address, the table of its parameters, and the
//! eight data bytes as a picture in which overlapping bits are red. A message of a CAN database can replace
//! it.
class CORVEX_EXPORT CANVariableEditor : public TermTableEditor
{
    Q_OBJECT

public:
    using TermTableEditor::TermTableEditor;

    //! Lets the user choose a message of a CAN database (DBC), which becomes one entry. Shows the reason if
    //! the file cannot be used.
    void importFrom(const QString &file);

protected:
    const std::vector<TermColumn> &columns() const override;
    qsizetype headSize() const override;
    void createMore(QVBoxLayout *layout) override;
    void showMore() override;
    QHash<int, QString> conflicts() const override;
    Entry entryFor(const DesignerProperty &property) const override;

private:
    void chooseFile();
    //! The other variables with the parameter group.
    QStringList othersWith(int pgn) const;

    QList<KdLineEdit *> m_head;
    CanBitsView *m_bits = nullptr;
};

} // namespace Halvane::Corvex::Designer
