// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/common/Export.h"
#include "corvex/core/Form.h"
#include "corvex/editing/references/Mention.h"

#include <QList>

namespace Halvane::Corvex::Designer {

class DesignerProperty;

/*! Finds the names of other objects in values.

    Each property defines how its value refers to others (DesignerProperty::references()). Everything that
    searches references, whether to follow a renaming or to list uses, goes through visit().
*/
class CORVEX_EXPORT ReferenceForm
{
public:
    using Form = Forms::Form;
    using enum Forms::Form;

    //! The same as property.references().
    static Form of(const DesignerProperty &property);

    //! Visits all mentions in \a text, read as a value of the property, in order, and rewrites the text if
    //! one was changed. An invalid text has no mentions. \return whether \a text has changed.
    static bool visit(const DesignerProperty &property, QString &text, const MentionVisitor &visitor);
    static QList<Mention> mentions(const DesignerProperty &property, const QString &text);
    //! The mentions in the current value, without printing or parsing it.
    static QList<Mention> mentions(const DesignerProperty &property);
    //! For a text of that form outside of a property. Links then define themselves what they may refer to.
    static bool visit(Form form, QString &text, const MentionVisitor &visitor);
};

} // namespace Halvane::Corvex::Designer
