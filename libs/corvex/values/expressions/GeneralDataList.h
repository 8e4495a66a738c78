// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/common/Export.h"
#include "corvex/values/expressions/GeneralDataInfo.h"
#include "corvex/values/text/RecordList.h"

namespace Halvane::Corvex::Designer {

//! An expression: a list of terms in reading order. The terms are stored without a kind; checks and
//! translations take the kind as an argument.
class CORVEX_EXPORT GeneralDataList : public RecordList<GeneralDataInfo>
{
public:
    using ValueType = GeneralDataInfo::ValueType;
    using DataType = GeneralDataInfo::DataType;
    using OutputType = GeneralDataInfo::OutputType;
    using NameKind = GeneralDataInfo::NameKind;

    //! The kind that a list is checked and translated as. Any other number gives false and no code.
    enum InfoType : int {
        GeneralExpression = 0,
        AssignExpression = 1,
        BoolExpression = 2,
        MathExpression = 3,
        StringExpression = 4,
    };

    using RecordList::RecordList;
    GeneralDataList() = default;
    //! Reads the form that toString() writes, in linear time. The list is empty if any term is invalid. An
    //! empty text is an empty list.
    explicit GeneralDataList(const QString &text, bool *ok = nullptr);

    //! "" for an empty list, the text of a single term, "<a><b><c>" for several.
    QString toString() const;

    using RecordList::append;
    void append(ValueType valueType, DataType dataType, const QString &value);
    using RecordList::prepend;
    void prepend(ValueType valueType, DataType dataType, const QString &value);
    using RecordList::insert;
    bool insert(qsizetype index, ValueType valueType, DataType dataType, const QString &value);
    using RecordList::replace;
    bool replace(qsizetype index, ValueType valueType, DataType dataType, const QString &value);

    // Whether every term passes the check of that name, as a term of this kind. True for an empty list.
    bool isValidValueType(InfoType infoType) const;
    bool isValidDataType(InfoType infoType) const;
    bool isValidValue(InfoType infoType) const;

    //! The whole list as JavaScript: one expression or, for AssignExpression, one statement per line. Empty
    //! if a term cannot be translated to \a output, if the sequence of terms would be parsed differently, or
    //! if a condition before "?" would need a conversion to a text or a colour.
    QString toQmlString(const OutputType &output, const InfoType &infoType) const;
    //! Whether the terms form one complete expression, or complete assignments.
    bool isComplete(InfoType infoType) const;
    //! Why the list is not a valid expression of that kind, for the user: names the first term that is not
    //! allowed or, failing that, the first one in a wrong place. Empty if the list is valid.
    QString obstacle(InfoType infoType) const;

    // The functions of GeneralDataInfo, applied to every term. Returned numbers count the changed terms.
    bool containsObject(const QString &name, NameKind kind = GeneralDataInfo::AnyName) const;
    bool containsScreenObject(const QString &name) const;
    int replaceObject(const QString &oldName, const QString &newName,
                      NameKind kind = GeneralDataInfo::AnyName);
    int replaceScreenObject(const QString &oldName, const QString &newName);
    int removeObject(const QString &name, NameKind kind = GeneralDataInfo::AnyName);
    int removeScreenObject(const QString &name);
};

} // namespace Halvane::Corvex::Designer
