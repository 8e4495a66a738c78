// SPDX-License-Identifier: MIT
#include "corvex/preview/window/PreviewWindow.h"

#include "corvex/preview/Bounds.h"
#include "corvex/preview/window/ChannelsView.h"
#include "corvex/preview/window/PanelView.h"
#include "corvex/preview/window/ProblemsModel.h"
#include "corvex/preview/window/VariablesModel.h"

#include <QApplication>
#include <QComboBox>
#include <QDockWidget>
#include <QHeaderView>
#include <QLineEdit>
#include <QSignalBlocker>
#include <QSortFilterProxyModel>
#include <QStatusBar>
#include <QTableView>
#include <QThreadPool>
#include <QToolBar>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

namespace Halvane::Corvex::Preview {

namespace {

// The interval at which the folder is checked, in milliseconds.
constexpr int watchInterval = 500;
constexpr int sideWidth = 400;
constexpr int bottomHeight = 120;

QTableView *makeTable(QAbstractItemModel *model, int wideColumn)
{
    auto *table = new QTableView;
    table->setModel(model);
    table->verticalHeader()->hide();
    table->verticalHeader()->setDefaultSectionSize(table->fontMetrics().height() + 6);
    table->setSelectionBehavior(QAbstractItemView::SelectRows);
    table->setWordWrap(false);
    table->horizontalHeader()->setSectionResizeMode(QHeaderView::ResizeToContents);
    table->horizontalHeader()->setSectionResizeMode(wideColumn, QHeaderView::Stretch);
    return table;
}

//! The table of variables below a filter field.
QWidget *makeVariables(VariablesModel *model)
{
    auto *content = new QWidget;
    auto *layout = new QVBoxLayout(content);
    layout->setContentsMargins(0, 0, 0, 0);
    auto *filter = new QLineEdit;
    filter->setPlaceholderText(PreviewWindow::tr("Filter"));
    filter->setClearButtonEnabled(true);
    auto *proxy = new QSortFilterProxyModel(content);
    proxy->setSourceModel(model);
    proxy->setFilterCaseSensitivity(Qt::CaseInsensitive);
    QObject::connect(filter, &QLineEdit::textChanged, proxy, &QSortFilterProxyModel::setFilterFixedString);
    QTableView *table = makeTable(proxy, VariablesModel::Value);
    table->setSortingEnabled(true);
    table->sortByColumn(VariablesModel::Name, Qt::AscendingOrder);
    layout->addWidget(filter);
    layout->addWidget(table);
    return content;
}

//! The system searches all its fonts for the first text. Trigger that before a screen exists.
void findFonts()
{
    QThreadPool::globalInstance()->start([font = QApplication::font()] { QFontInfo(font).family(); });
}

} // namespace

PreviewWindow::PreviewWindow()
    : m_variables(new VariablesModel(this))
    , m_problems(new ProblemsModel(this))
{
    findFonts();
    connect(&m_watch, &QTimer::timeout, this, &PreviewWindow::reloadIfNew);
}

PreviewWindow::~PreviewWindow()
{
    if (m_session) {
        use(nullptr);
    }
}

void PreviewWindow::makeView()
{
    m_view = new PanelView;
    setCentralWidget(m_view);
    makeToolBar();
    makeDocks();
}

void PreviewWindow::makeToolBar()
{
    m_screens = new QComboBox;
    QToolBar *bar = addToolBar(tr("Panel"));
    bar->setMovable(false);
    m_screens->setToolTip(tr("Screen"));
    m_screens->setSizeAdjustPolicy(QComboBox::AdjustToContents);
    bar->addWidget(m_screens);
    auto *zoom = new QComboBox;
    zoom->setToolTip(tr("Size of the panel"));
    zoom->addItems({u"50 %"_s, u"75 %"_s, u"100 %"_s, u"150 %"_s, u"200 %"_s, u"300 %"_s});
    zoom->setCurrentText(u"100 %"_s);
    bar->addWidget(zoom);
    QAction *reloading = bar->addAction(tr("Restart"), this, &PreviewWindow::reload);
    reloading->setToolTip(tr("Switch the panel off and on again"));
    reloading->setShortcut(QKeySequence::Refresh);
    bar->addAction(tr("Clear problems"), this, [this] { m_session->panel().problems().clear(); });
    connect(m_screens, &QComboBox::textActivated, this,
            [this](const QString &name) { m_session->showScreen(name); });
    connect(zoom, &QComboBox::textActivated, this, &PreviewWindow::showZoom);
}

void PreviewWindow::showZoom(const QString &text)
{
    m_view->setZoom(text.section(u' ', 0, 0).toInt() / 100.0);
}

QDockWidget *PreviewWindow::addDock(const QString &title, Qt::DockWidgetArea area)
{
    auto *dock = new QDockWidget(title);
    addDockWidget(area, dock);
    return dock;
}

//! The user waits for the panel, so create the docks after it.
void PreviewWindow::makeDocks()
{
    m_variablesDock = addDock(tr("Variables"), Qt::RightDockWidgetArea);
    m_channelsDock = addDock(tr("Inputs and outputs"), Qt::RightDockWidgetArea);
    m_problemsDock = addDock(tr("Problems"), Qt::BottomDockWidgetArea);
    resizeDocks({m_variablesDock}, {sideWidth}, Qt::Horizontal);
    resizeDocks({m_problemsDock}, {bottomHeight}, Qt::Vertical);
    connect(m_view, &PanelView::drawn, this, &PreviewWindow::fillDocks,
            Qt::ConnectionType(Qt::QueuedConnection | Qt::SingleShotConnection));
}

void PreviewWindow::fillDocks()
{
    m_variablesDock->setWidget(makeVariables(m_variables));
    m_problemsDock->setWidget(makeTable(m_problems, ProblemsModel::Message));
    m_channels = new ChannelsView;
    m_channels->setPanel(m_session ? &m_session->panel() : nullptr);
    auto *scrolling = new QScrollArea;
    scrolling->setWidget(m_channels);
    scrolling->setWidgetResizable(true);
    m_channelsDock->setWidget(scrolling);
    resizeDocks({m_variablesDock}, {sideWidth}, Qt::Horizontal);
    resizeDocks({m_problemsDock}, {bottomHeight}, Qt::Vertical);
}

bool PreviewWindow::open(const QString &folder, const QString &stateFile, QString *error)
{
    m_folder = folder;
    m_stateFile = stateFile;
    m_stamp = BuildFolder::stampOf(folder);
    auto session = std::make_unique<PreviewSession>();
    if (!stateFile.isEmpty() && !session->keepStateIn(stateFile, error)) {
        return false;
    }
    if (!session->load(folder, error)) {
        return false;
    }
    // Create the window while the screen is being read.
    if (!m_view) {
        makeView();
    }
    session->start();
    use(std::move(session));
    m_watch.start(watchInterval);
    return true;
}

void PreviewWindow::use(std::unique_ptr<PreviewSession> session)
{
    Panel *panel = session ? &session->panel() : nullptr;
    m_variables->setPanel(panel);
    m_problems->setLog(panel ? &panel->problems() : nullptr);
    if (m_channels) {
        m_channels->setPanel(panel);
    }
    m_view->setSession(session.get());
    m_session = std::move(session);
    if (!m_session) {
        return;
    }
    m_screens->clear();
    m_screens->addItems(m_session->screens());
    connect(m_session.get(), &PreviewSession::screenChanged, this, &PreviewWindow::showScreen);
    showScreen();
    panel->clock().runFreely();
    emit restarted();
}

void PreviewWindow::showScreen()
{
    m_screens->setCurrentText(m_session->screen());
    const QSizeF size = m_session->frame()->size();
    setWindowTitle(tr("%1 - Preview").arg(m_session->screen()));
    statusBar()->showMessage(tr("%1 x %2 pixels").arg(size.width()).arg(size.height()));
}

void PreviewWindow::reload()
{
    const QString shown = m_session->screen();
    m_session->flushState();
    QString error;
    if (!open(m_folder, m_stateFile, &error)) {
        m_session->panel().problems().report(QString(), error);
    } else if (m_session->screens().contains(shown)) {
        m_session->showScreen(shown);
    }
}

void PreviewWindow::reloadIfNew()
{
    Bounds::renew();
    if (BuildFolder::stampOf(m_folder) != m_stamp) {
        reload();
    }
}

} // namespace Halvane::Corvex::Preview
