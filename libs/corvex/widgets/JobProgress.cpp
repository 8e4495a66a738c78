// SPDX-License-Identifier: MIT
#include "corvex/widgets/JobProgress.h"

#include "corvex/common/LocalizationHelper.h"
#include "corvex/widgets/IconSet.h"
#include "corvex/widgets/Theme.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QProgressBar>
#include <QToolButton>

using namespace Qt::StringLiterals;

namespace Halvane::Corvex::Designer {

using Common::Job;
using Common::LocalizationHelper;

namespace {

constexpr int barWidth = 160;
constexpr int percents = 100;

} // namespace

JobProgress::JobProgress(QWidget *parent)
    : QWidget(parent)
    , m_text(new QLabel)
    , m_bar(new QProgressBar)
    , m_cancel(new QToolButton)
{
    m_text->setTextFormat(Qt::PlainText);
    m_bar->setFixedWidth(barWidth);
    m_bar->setTextVisible(false);
    m_cancel->setIcon(IconSet::icon(IconSet::Remove));
    m_cancel->setAutoRaise(true);
    m_cancel->setText(LocalizationHelper::coreString(u"Cancel"_s));
    m_cancel->setToolTip(m_cancel->text());
    auto *layout = new QHBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(Theme::gap);
    layout->addWidget(m_text, 1);
    layout->addWidget(m_bar);
    layout->addWidget(m_cancel);
    m_delay.setSingleShot(true);
    connect(&m_delay, &QTimer::timeout, this, &QWidget::show);
    connect(m_cancel, &QToolButton::clicked, this, [this] {
        if (m_job) {
            m_cancel->setEnabled(false);
            m_job->cancel();
        }
    });
    hide();
}

void JobProgress::follow(Job *job)
{
    if (m_job) {
        disconnect(m_job, nullptr, this, nullptr);
    }
    end();
    m_job = job;
    if (!job || job->outcome() != Job::Outcome::None) {
        return;
    }
    connect(job, &Job::progressed, this, &JobProgress::showState);
    connect(job, &Job::finished, this, &JobProgress::end);
    connect(job, &QObject::destroyed, this, &JobProgress::end);
    showState(job->progress());
    m_cancel->setEnabled(true);
    m_delay.start(delay);
}

void JobProgress::showState(const Common::Progress::State &state)
{
    m_text->setText(state.text);
    m_bar->setAccessibleName(state.text);
    const int percent = state.percent();
    m_bar->setRange(0, percent < 0 ? 0 : percents);
    m_bar->setValue(percent);
}

void JobProgress::end()
{
    m_delay.stop();
    hide();
}

} // namespace Halvane::Corvex::Designer
