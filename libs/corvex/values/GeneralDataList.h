// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/values/GeneralDataInfo.h"

#include <QList>

namespace Halvane::Corvex::Designer {

//! An expression: terms in the order in which they are read. The terms are stored plain; the checks and the
//! translation take each one as a term of the kind that they are asked for.
class GeneralDataList
{
public:
    using ValueType = GeneralDataInfo::ValueType;
    using DataType = GeneralDataInfo::DataType;
    using OutputType = GeneralDataInfo::OutputType;
    using NameKind = GeneralDataInfo::NameKind;
    using const_iterator = QList<GeneralDataInfo>::const_iterator;

    //! What a list is checked and translated as. Any other number is answered with false and with no code.
    enum InfoType : int {
        GeneralExpression = 0,
        AssignExpression = 1,
        BoolExpression = 2,
        MathExpression = 3,
        StringExpression = 4,
    };

    GeneralDataList() = default;
    GeneralDataList(const QList<GeneralDataInfo> &terms)
        : m_terms(terms)
    { }
    //! Reads what toString() writes, in linear time; the list is empty when any term is refused. An empty
    //! text is the empty list.
    explicit GeneralDataList(const QString &text, bool *ok = nullptr);

    //! "" for no term, the text of a single term, "<a><b><c>" for more.
    QString toString() const;

    void append(const GeneralDataInfo &term) { m_terms.append(term); }
    void append(ValueType valueType, DataType dataType, const QString &value);
    void append(const GeneralDataList &list) { m_terms.append(list.m_terms); }
    void append(const QList<GeneralDataInfo> &terms) { m_terms.append(terms); }
    void prepend(const GeneralDataInfo &term) { m_terms.prepend(term); }
    void prepend(ValueType valueType, DataType dataType, const QString &value);
    //! False, with nothing changed, when \a index is not in 0 to count().
    bool insert(qsizetype index, const GeneralDataInfo &term);
    bool insert(qsizetype index, ValueType valueType, DataType dataType, const QString &value);
    //! False, with nothing changed, when there is no term at \a index.
    bool replace(qsizetype index, const GeneralDataInfo &term);
    bool replace(qsizetype index, ValueType valueType, DataType dataType, const QString &value);

    //! Of an empty list they give an empty term, as do first(), last(), and value() of an index outside the
    //! list.
    GeneralDataInfo takeFirst() { return m_terms.isEmpty() ? GeneralDataInfo() : m_terms.takeFirst(); }
    GeneralDataInfo takeLast() { return m_terms.isEmpty() ? GeneralDataInfo() : m_terms.takeLast(); }
    void removeFirst() { takeFirst(); }
    void removeLast() { takeLast(); }
    bool removeAt(qsizetype index);
    void clear() { m_terms.clear(); }
    GeneralDataInfo first() const { return m_terms.value(0); }
    GeneralDataInfo last() const { return m_terms.value(m_terms.size() - 1); }
    GeneralDataInfo value(qsizetype index) const { return m_terms.value(index); }
    const GeneralDataInfo &at(qsizetype index) const { return m_terms.at(index); }
    const GeneralDataInfo &operator[](qsizetype index) const { return m_terms.at(index); }
    GeneralDataInfo &operator[](qsizetype index) { return m_terms[index]; }

    bool contains(const GeneralDataInfo &term) const { return m_terms.contains(term); }
    qsizetype indexOf(const GeneralDataInfo &term, qsizetype from = 0) const
    {
        return m_terms.indexOf(term, from);
    }
    qsizetype lastIndexOf(const GeneralDataInfo &term, qsizetype from = -1) const
    {
        return m_terms.lastIndexOf(term, from);
    }
    qsizetype count() const { return m_terms.size(); }
    qsizetype count(const GeneralDataInfo &term) const { return m_terms.count(term); }
    qsizetype size() const { return m_terms.size(); }
    bool isEmpty() const { return m_terms.isEmpty(); }
    bool startsWith(const GeneralDataInfo &term) const { return !isEmpty() && m_terms.first() == term; }
    bool endsWith(const GeneralDataInfo &term) const { return !isEmpty() && m_terms.last() == term; }
    const_iterator begin() const { return m_terms.cbegin(); }
    const_iterator end() const { return m_terms.cend(); }
    const QList<GeneralDataInfo> &toList() const { return m_terms; }

    GeneralDataList &operator<<(const GeneralDataInfo &term);
    GeneralDataList &operator<<(const GeneralDataList &list);
    GeneralDataList &operator<<(const QList<GeneralDataInfo> &terms);

    // Every term, taken as the kind that the info type names, passes the check of that name. An empty list
    // does.
    bool isValidValueType(InfoType infoType) const;
    bool isValidDataType(InfoType infoType) const;
    bool isValidValue(InfoType infoType) const;

    /*!
        The whole list as JavaScript: one expression, or for AssignExpression one statement a line. Empty
        when any term cannot be translated to \a output.
    */
    QString toQmlString(const OutputType &output, const InfoType &infoType) const;

    // The operations of GeneralDataInfo on every term; the numbers returned are those of the terms changed.
    bool containsObject(const QString &name, NameKind kind = GeneralDataInfo::AnyName) const;
    bool containsScreenObject(const QString &name) const;
    int replaceObject(const QString &oldName, const QString &newName,
                      NameKind kind = GeneralDataInfo::AnyName);
    int replaceScreenObject(const QString &oldName, const QString &newName);
    int removeObject(const QString &name, NameKind kind = GeneralDataInfo::AnyName);
    int removeScreenObject(const QString &name);

    friend bool operator==(const GeneralDataList &a, const GeneralDataList &b)
    {
        return a.m_terms == b.m_terms;
    }
    friend bool operator!=(const GeneralDataList &a, const GeneralDataList &b) { return !(a == b); }

private:
    QList<GeneralDataInfo> m_terms;
};

} // namespace Halvane::Corvex::Designer
