// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/common/Export.h"
#include "corvex/editing/references/Mention.h"

#include <QList>

namespace Halvane::Corvex::Designer {

class DesignerProperty;

/*! In which form the value of a property names other objects.

    One table tells the form of each property, by the class of the property and, for lists and plain texts, by
    its owner and id. Everything that looks for references, be it to follow a rename or to show the user where
    a name is used, goes through visit().
*/
class CORVEX_EXPORT ReferenceForm
{
public:
    enum Form : quint8 {
        None,
        Link,        //!< ObjectLinkInfo; dropped: a link that is not set
        Expression,  //!< GeneralDataList, a single term included; dropped: a term without a name
        States,      //!< UpdateObjectList; dropped: the update goes
        Changes,     //!< PropertyList; dropped: the change goes
        Names,       //!< ListInfo of names; dropped: the name goes
        NamePairs,   //!< ListInfo of "name|text"; dropped: "|text"
        CommaNames,  //!< names joined with ", "; dropped: the name goes
        Expressions, //!< PairList of two expressions
    };

    static Form of(const DesignerProperty &property);

    /*! Shows all mentions of \a text, taken as a value of the property, in their order, and rewrites it when
        one was changed. A text that does not parse has none. \return whether \a text is another one now. */
    static bool visit(const DesignerProperty &property, QString &text, const MentionVisitor &visitor);
    static QList<Mention> mentions(const DesignerProperty &property, const QString &text);
    //! Those of the value that the property has, for which it is neither printed nor parsed.
    static QList<Mention> mentions(const DesignerProperty &property);
    //! For a text of that form which no property holds. A link then says itself what it may name.
    static bool visit(Form form, QString &text, const MentionVisitor &visitor);
};

} // namespace Halvane::Corvex::Designer
