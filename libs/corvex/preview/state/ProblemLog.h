// SPDX-License-Identifier: MIT
#pragma once

#include <QHash>
#include <QList>
#include <QObject>
#include <QString>

namespace Halvane::Corvex::Preview {

struct PanelProblem
{
    QString element; //!< "Main.label1", or a file of the build; empty when the problem is of neither
    QString message;
    int count = 1; //!< how often it came

    //! "element: message"
    QString toString() const;
};

//! What went wrong on the panel, in the order in which it came first.
class ProblemLog : public QObject
{
    Q_OBJECT

public:
    using QObject::QObject;

    void report(const QString &element, const QString &message);
    const QList<PanelProblem> &problems() const { return m_problems; }
    void clear();

signals:
    //! A new problem, or one that came again; -1 after clear.
    void changed(qsizetype index);

private:
    QList<PanelProblem> m_problems;
    QHash<QString, qsizetype> m_indexes;
};

} // namespace Halvane::Corvex::Preview
