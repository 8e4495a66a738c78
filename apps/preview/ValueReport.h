// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>
#include <QSet>
#include <QTimer>

namespace Halvane::Corvex::Preview {

class PreviewWindow;

//! Prints the values of the variables on standard output, for the program that has started this one: one JSON
//! object per line, with all values when the panel starts and later only those that have changed.
class ValueReport : public QObject
{
    Q_OBJECT

public:
    //! The window must outlive the report.
    explicit ValueReport(PreviewWindow &window);

private:
    void begin();
    void print();

    PreviewWindow &m_window;
    QSet<QString> m_changed;
    QTimer m_pause;
};

} // namespace Halvane::Corvex::Preview
