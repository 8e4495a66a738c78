// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/common/Export.h"
#include "corvex/common/Job.h"

#include <QPointer>
#include <QTimer>
#include <QWidget>

class QLabel;
class QProgressBar;
class QToolButton;

namespace Halvane::Corvex::Designer {

//! Shows what a job does, how far it is, and a button that cancels it. Hidden while there is no job, and for
//! jobs that end at once.
class CORVEX_EXPORT JobProgress : public QWidget
{
    Q_OBJECT

public:
    explicit JobProgress(QWidget *parent = nullptr);

    //! Follows the job until it ends or until there is another one; null for none. Not owned.
    void follow(Common::Job *job);

    //! A job that is done within this time is not shown.
    static constexpr int delay = 300; // milliseconds

private:
    void showState(const Common::Progress::State &state);
    void end();

    QPointer<Common::Job> m_job;
    QLabel *m_text;
    QProgressBar *m_bar;
    QToolButton *m_cancel;
    QTimer m_delay;
};

} // namespace Halvane::Corvex::Designer
