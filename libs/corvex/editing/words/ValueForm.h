// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/common/Export.h"

#include <QString>
#include <QStringList>

#include <span>

namespace Halvane::Corvex::Designer {

class DesignerProperty;

/*! A kind of value as users know it, such as "size", and how people write its values.

    Every property has one of these forms. The examples are values for properties of a project with the
   objects of ClassHelp::sampleProject().
*/
struct CORVEX_EXPORT ValueForm
{
    const char *word; //!< the kind in users' words; not translated
    bool (*isIts)(const DesignerProperty &property);
    //! A value that differs from that of the property; null if \a example is one.
    QString (*sample)(const DesignerProperty &property);
    const char *example;
    const char *sentences; //!< how values are written; not translated
    const char *lines;     //!< edits that set such values, one per line

    static std::span<const ValueForm> all();
    static const ValueForm &of(const DesignerProperty &property);

    QString name() const;        //!< the word, translated
    QString explanation() const; //!< the sentences, translated
    QStringList edits() const;

    //! A value that the property accepts and users may copy: that of its row, or else that of the kind. Empty
    //! for lists and objects.
    static QString exampleFor(const DesignerProperty &property);
};

} // namespace Halvane::Corvex::Designer
