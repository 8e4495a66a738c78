// SPDX-License-Identifier: MIT
#pragma once

#include <QList>
#include <QSet>
#include <QString>
#include <QStringList>

namespace Halvane::Corvex::Preview {

//! Finds the objects of a QML document without the QML engine, which rejects the whole document because of
//! one wrong line. Accepts any text; if it is not QML, the outline is empty or incomplete.
class QmlOutline
{
public:
    struct Object
    {
        QString className;
        QString path;  //!< "Main.group.label", from the names of the enclosing objects
        int firstLine; //!< counted from 1
        int lastLine;
        QStringList properties; //!< everything that is set, including handlers: "width", "font.bold",
                                //!< "onPressed"
        QString variable;       //!< the text of the property "variable"
        QStringList lists;      //!< the properties whose values are lists
    };

    explicit QmlOutline(const QString &text = QString());

    //! In the order of the text, parents before children.
    const QList<Object> &objects() const { return m_objects; }
    //! The path of the innermost object at a line; empty outside of all objects.
    QString pathAt(int line) const;

private:
    QList<Object> m_objects;
};

} // namespace Halvane::Corvex::Preview
