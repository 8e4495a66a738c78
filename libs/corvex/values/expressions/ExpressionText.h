// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/common/Export.h"
#include "corvex/values/expressions/ExpressionPurpose.h"
#include "corvex/values/text/PairList.h"

#include <optional>

namespace Halvane::Corvex::Designer {

//! The names that a readable expression can use, with their types.
class CORVEX_EXPORT ExpressionNames
{
public:
    virtual ~ExpressionNames() = default;

    //! The term for a variable ("level") or for a property of an element ("lamp.visible",
    //! "Main.lamp.visible"), with its types; empty if the name is unknown.
    virtual std::optional<GeneralDataInfo> find(const QString &path) const = 0;

    //! How the device treats a property of an element.
    struct Traits
    {
        //! For a property that is a percentage in the project and a fraction on the device, the largest
        //! fraction; otherwise 0.
        double largestFraction = 0;
        bool isReadOnly = false;
    };
    virtual Traits traitsOf(const QString &) const { return {}; }
};

/*! Expressions as people write them: `level > 10 and pump.visible`, `concat("Level ", level)`.

    - Operators are those of the terms; `and`, `or` and `not` can replace `&&`, `||` and `== false`. In a
      text, true and false are compared as 1 and 0.
    - In a text, `+` joins texts, and adds two numbers: `a + b` is then stored as `a - -b`. `xor` is the
      exclusive or.
    - Constants: `12`, `2.5`, `true`, `"text"`, `#C62828`, `PI`. A whole number of the type float is `12f`,
      one of the type number `12n`. Hexadecimal data are `0x1A2B`.
    - Names stand for themselves. A name that is a word of the language or has other characters than letters,
      digits and "_" is in single quotes: `'and'`. A name that the project does not have, or has with another
      type, needs its type: `level::number`.
    - A call is a name and "(". Assignments are `lamp.color = #C62828; level = 0`. Terms that form no
   expression are separated by ",".
    - Rules are `when level > 10 do alarm = true; level = 0 when level <= 8 do alarm = false`.
*/
class CORVEX_EXPORT ExpressionText
{
public:
    struct Error
    {
        qsizetype position = 0; //!< in the text
        qsizetype length = 0;   //!< 0 at the end of the text
        QString message;        //!< translated; without the position
        QString unknownName;    //!< the name that find() does not know, so that the caller can suggest one
    };
    struct Reading
    {
        GeneralDataList terms; //!< what could be read before the error
        std::optional<Error> error;
    };
    //! Reads the readable form. There is an error if the text is incorrect, and also if the device has no
    //! code for the terms.
    static Reading read(const QString &text, const ExpressionPurpose &purpose, const ExpressionNames &names);

    //! The readable form, which read() reads as the same terms. Null for a list that has none, such as one
    //! with an unknown function.
    static QString print(const GeneralDataList &terms, const ExpressionPurpose &purpose,
                         const ExpressionNames &names);

    struct RuleReading
    {
        PairList rules; //!< the stored forms of a condition and of its assignments
        std::optional<Error> error;
    };
    static RuleReading readRules(const QString &text, const ExpressionNames &names);
    //! Null if a part has no readable form.
    static QString printRules(const PairList &rules, const ExpressionNames &names);

    //! Whether the text is meant as the stored form: it begins with "<", or with two numbers of types.
    static bool isStored(const QString &text);
};

} // namespace Halvane::Corvex::Designer
