// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/common/Export.h"
#include "corvex/inspector/PropertySheet.h"

class QWidget;

namespace Halvane::Corvex::Designer {

class PropertyEditor;

//! The editors of the library, by the names that property tables use.
class CORVEX_EXPORT Editors
{
public:
    //! All names, in the order of the table.
    static QStringList names();
    //! Null for an unknown name.
    static PropertyEditor *create(const QString &name, QWidget *parent);

    //! The editor for a row: the one that it names, or the one for its kind if it only names the base class.
    static QString nameFor(const SheetRow &row);
    //! Whether the value of the row must not be seen: it is neither copied nor searched for.
    static bool isSecret(const SheetRow &row);
    //! Creates the editor for a row, through the factory of the application if there is one, so that editors
    //! of plug-ins are found. A row with an unknown editor gets the base class, which edits every kind.
    static PropertyEditor *createFor(const SheetRow &row, QWidget *parent);
};

} // namespace Halvane::Corvex::Designer
