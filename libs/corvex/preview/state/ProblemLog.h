// SPDX-License-Identifier: MIT
#pragma once

#include <QHash>
#include <QList>
#include <QObject>
#include <QString>

namespace Halvane::Corvex::Preview {

struct PanelProblem
{
    QString element; //!< "Main.label1", or a file of the build; empty if it concerns neither
    QString message;
    int count = 1; //!< the number of occurrences

    //! "element: message"
    QString toString() const;
};

//! The problems on the panel, in order of their first occurrence.
class ProblemLog : public QObject
{
    Q_OBJECT

public:
    using QObject::QObject;

    void report(const QString &element, const QString &message);
    const QList<PanelProblem> &problems() const { return m_problems; }
    void clear();

signals:
    //! A new or repeated problem; -1 after clear().
    void changed(qsizetype index);

private:
    QList<PanelProblem> m_problems;
    QHash<QString, qsizetype> m_indexes;
};

} // namespace Halvane::Corvex::Preview
