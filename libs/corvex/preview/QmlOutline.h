// SPDX-License-Identifier: MIT
#pragma once

#include <QList>
#include <QSet>
#include <QString>
#include <QStringList>

namespace Halvane::Corvex::Preview {

/*! The objects of a QML document, found without the QML engine, which reads nothing of a document with one
   wrong line. Takes any text; of one that is no QML the outline is empty or short. */
class QmlOutline
{
public:
    struct Object
    {
        QString className;
        QString path;  //!< "Main.group.label", of the names of the objects around it
        int firstLine; //!< from 1
        int lastLine;
        QStringList properties; //!< what is set, handlers among it: "width", "font.bold", "onPressed"
        QString variable;       //!< the text of the property "variable"
        QStringList lists;      //!< those of the properties that are set to a list
    };

    explicit QmlOutline(const QString &text = QString());

    //! In the order of the text, each before those inside it.
    const QList<Object> &objects() const { return m_objects; }
    //! The path of the innermost object around a line; empty when there is none.
    QString pathAt(int line) const;

private:
    QList<Object> m_objects;
};

} // namespace Halvane::Corvex::Preview
