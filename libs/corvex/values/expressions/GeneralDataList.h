// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/common/Export.h"
#include "corvex/values/expressions/GeneralDataInfo.h"
#include "corvex/values/text/RecordList.h"

namespace Halvane::Corvex::Designer {

//! An expression: terms in the order in which they are read. The terms are stored plain; the checks and the
//! translation take each one as a term of the kind that they are asked for.
class CORVEX_EXPORT GeneralDataList : public RecordList<GeneralDataInfo>
{
public:
    using ValueType = GeneralDataInfo::ValueType;
    using DataType = GeneralDataInfo::DataType;
    using OutputType = GeneralDataInfo::OutputType;
    using NameKind = GeneralDataInfo::NameKind;

    //! What a list is checked and translated as. Any other number is answered with false and with no code.
    enum InfoType : int {
        GeneralExpression = 0,
        AssignExpression = 1,
        BoolExpression = 2,
        MathExpression = 3,
        StringExpression = 4,
    };

    using RecordList::RecordList;
    GeneralDataList() = default;
    //! Reads what toString() writes, in linear time; the list is empty when any term is refused. An empty
    //! text is the empty list.
    explicit GeneralDataList(const QString &text, bool *ok = nullptr);

    //! "" for no term, the text of a single term, "<a><b><c>" for more.
    QString toString() const;

    using RecordList::append;
    void append(ValueType valueType, DataType dataType, const QString &value);
    using RecordList::prepend;
    void prepend(ValueType valueType, DataType dataType, const QString &value);
    using RecordList::insert;
    bool insert(qsizetype index, ValueType valueType, DataType dataType, const QString &value);
    using RecordList::replace;
    bool replace(qsizetype index, ValueType valueType, DataType dataType, const QString &value);

    // Every term, taken as the kind that the info type names, passes the check of that name. An empty list
    // does.
    bool isValidValueType(InfoType infoType) const;
    bool isValidDataType(InfoType infoType) const;
    bool isValidValue(InfoType infoType) const;

    /*!
        The whole list as JavaScript: one expression, or for AssignExpression one statement a line. Empty
        when any term cannot be translated to \a output, when the terms in a row would be read as something
        else, and when a condition before "?" would have to become a text or a colour.
    */
    QString toQmlString(const OutputType &output, const InfoType &infoType) const;
    //! Whether the terms follow each other as those of one complete expression, or of assignments.
    bool isComplete(InfoType infoType) const;
    //! Why the list is no expression of that kind, for the user: the first term that cannot be used, else
    //! the first that cannot stand where it does. Empty when there is nothing of that.
    QString obstacle(InfoType infoType) const;

    // The operations of GeneralDataInfo on every term; the numbers returned are those of the terms changed.
    bool containsObject(const QString &name, NameKind kind = GeneralDataInfo::AnyName) const;
    bool containsScreenObject(const QString &name) const;
    int replaceObject(const QString &oldName, const QString &newName,
                      NameKind kind = GeneralDataInfo::AnyName);
    int replaceScreenObject(const QString &oldName, const QString &newName);
    int removeObject(const QString &name, NameKind kind = GeneralDataInfo::AnyName);
    int removeScreenObject(const QString &name);
};

} // namespace Halvane::Corvex::Designer
