// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/editors/expressions/private/ExpressionScope.h"

#include <QAbstractListModel>

namespace Halvane::Corvex::Designer {

/*! What can be written at a place of an expression: variables, elements and their properties, functions and
    words. The names are read once and stay sorted; filter() only selects rows.
*/
class ExpressionCompletions : public QAbstractListModel
{
    Q_OBJECT

public:
    enum Role {
        DetailRole = Qt::UserRole + 1, //!< the type and the value
        CallRole,                      //!< whether it is a function, which needs a parenthesis
        MemberRole,                    //!< whether a "." and another name must follow
    };
    using QAbstractListModel::QAbstractListModel;

    //! The names are read with the next filter().
    void setScope(const ExpressionScope &scope);
    //! Shows the names that contain \a text; those of the types first, and of these those that begin with it.
    //! \a text may be a path. \a operandDue: names, otherwise the words between values.
    void filter(const QString &text, quint32 types, bool operandDue);
    //! Whether \a text is one of the shown names.
    bool contains(const QString &text) const;

    int rowCount(const QModelIndex &parent = {}) const override;
    QVariant data(const QModelIndex &index, int role) const override;

private:
    enum class Kind : quint8 { Word, Operator, Function, Variable, Element, Screen, Property };
    struct Name
    {
        QString text;
        QString folded; //!< without case
        quint32 types;
        Kind kind;
    };
    using Names = std::vector<Name>;

    void add(Names &names, const QString &text, quint32 types, Kind kind) const;
    void readNames();
    void readMembers(const QString &place);
    const Name &nameAt(int row) const;
    QString detailOf(const Name &name) const;

    ExpressionScope m_scope;
    Names m_names;
    Names m_members; //!< of the element or screen before the last "."
    QString m_place; //!< its path, with the "."
    bool m_isRead = false;
    bool m_showsMembers = false;
    std::vector<quint32> m_rows; //!< indexes of the shown names
};

} // namespace Halvane::Corvex::Designer
