// SPDX-License-Identifier: MIT
#include "window/MainWindow.h"

#include "corvex/common/LocalizationHelper.h"
#include "corvex/editing/commands/objects/Arrangement.h"
#include "corvex/editors/PropertyPanel.h"
#include "corvex/project/Project.h"
#include "corvex/project/Screen.h"
#include "corvex/widgets/IconSet.h"
#include "corvex/widgets/JobProgress.h"
#include "corvex/widgets/KdMessageBox.h"
#include "corvex/widgets/Theme.h"
#include "corvex/widgets/ZoomBox.h"

#include "actions/WindowActions.h"
#include "canvas/CanvasPage.h"
#include "canvas/CanvasView.h"
#include "panels/FindPanel.h"
#include "panels/Panels.h"
#include "panels/ProblemsPanel.h"
#include "panels/PropertiesPanel.h"
#include "project/ProjectFiles.h"
#include "project/Workspace.h"
#include "window/DesktopLook.h"
#include "window/WelcomePage.h"

#include <QAction>
#include <QApplication>
#include <QCloseEvent>
#include <QDockWidget>
#include <QMenu>
#include <QMenuBar>
#include <QStackedWidget>
#include <QStatusBar>
#include <QToolBar>
#include <QToolButton>

using namespace Qt::StringLiterals;

namespace Halvane::Corvex::Nova {

using namespace Designer;
using Common::LocalizationHelper;

namespace {

constexpr QSize firstSize(1360, 860);
constexpr int leftWidth = 260;
constexpr int rightWidth = 340;
constexpr int bottomHeight = 150;
constexpr int screensHeight = 280;
constexpr int noteTime = 8000; // milliseconds

} // namespace

MainWindow::MainWindow(const ConfigurationContainer &models)
    : m_models(models)
    , m_files(new ProjectFiles(*this))
    , m_pages(new QStackedWidget)
    , m_problems(new QToolButton)
    , m_zoom(new ZoomBox)
{
    setObjectName(u"MainWindow"_s);
    m_actions = new WindowActions(*this);
    m_actions->fillMenus(*menuBar());
    QToolBar *tools = addToolBar(LocalizationHelper::coreString(u"Tools"_s));
    tools->setObjectName(u"tools"_s);
    tools->setIconSize(QSize(20, 20));
    m_actions->fillToolBar(*tools);
    m_welcome = new WelcomePage({m_actions->action(u"file.new"_s), m_actions->action(u"file.open"_s)});
    connect(m_welcome, &WelcomePage::openRequested, m_files, qOverload<const QString &>(&ProjectFiles::open));
    m_pages->addWidget(m_welcome);
    setCentralWidget(m_pages);
    statusBar()->addPermanentWidget(m_files->progress());
    m_problems->setAutoRaise(true);
    connect(m_problems, &QToolButton::clicked, this, [this] { showPanel(u"panel.problems"_s); });
    statusBar()->addPermanentWidget(m_problems);
    statusBar()->addPermanentWidget(m_zoom);
    connect(m_zoom, &ZoomBox::scaleRequested, this, [this](double scale) { canvas()->setScale(scale); });
    connect(m_zoom, &ZoomBox::fitRequested, this, [this] { canvas()->fitScreen(); });
    connect(m_files, &ProjectFiles::busyChanged, this, &MainWindow::updateActions);
    makeDocks();
    resize(firstSize);
    resizeDocks({m_docks.value(u"panel.screens"_s), m_docks.value(u"panel.properties"_s)},
                {leftWidth, rightWidth}, Qt::Horizontal);
    resizeDocks({m_docks.value(u"panel.screens"_s), m_docks.value(u"panel.variables"_s)},
                {screensHeight, bottomHeight}, Qt::Vertical);
    m_firstState = saveState();
    restoreGeometry(UserSettings::windowGeometry());
    setProject(nullptr);
}

MainWindow::~MainWindow()
{
    setProject(nullptr);
}

CanvasView *MainWindow::canvas() const
{
    return m_canvas ? &m_canvas->view() : nullptr;
}

void MainWindow::makeDocks()
{
    setDockNestingEnabled(true);
    auto *view = menuBar()->findChild<QMenu *>(u"view"_s);
    view->addSeparator();
    m_panelsMenu = view->addMenu(LocalizationHelper::coreString(u"&Panels"_s));
    for (const PanelRow &row : panelRows()) {
        auto *dock = new QDockWidget(LocalizationHelper::coreString(QString::fromUtf8(row.title)));
        dock->setObjectName(QLatin1StringView(row.id));
        // Floating panels cannot be docked again on Wayland.
        if (QApplication::platformName() == "wayland"_L1) {
            dock->setFeatures(dock->features() & ~QDockWidget::DockWidgetFloatable);
        }
        addDockWidget(row.area, dock);
        if (row.tabOf) {
            QDockWidget *first = m_docks.value(QLatin1StringView(row.tabOf));
            tabifyDockWidget(first, dock);
            first->raise();
        }
        m_docks.insert(dock->objectName(), dock);
        QAction *toggle = dock->toggleViewAction();
        toggle->setObjectName(dock->objectName());
        toggle->setStatusTip(LocalizationHelper::coreString(u"Show or hide this panel."_s));
        m_panelsMenu->addAction(toggle);
        m_actions->add(toggle);
    }
}

void MainWindow::fillDocks()
{
    for (const PanelRow &row : panelRows()) {
        QDockWidget *dock = m_docks.value(QLatin1StringView(row.id));
        dock->setWidget(row.create(*m_workspace));
        dock->show();
    }
    m_panelsMenu->setEnabled(true);
    restoreState(m_firstState);
    restoreState(UserSettings::windowState());
}

void MainWindow::emptyDocks()
{
    for (QDockWidget *dock : std::as_const(m_docks)) {
        delete dock->widget();
        dock->hide();
    }
    m_panelsMenu->setEnabled(false);
}

QWidget *MainWindow::panel(const QString &id) const
{
    const QDockWidget *dock = m_docks.value(id);
    return dock ? dock->widget() : nullptr;
}

void MainWindow::showPanel(const QString &id)
{
    if (QDockWidget *dock = m_docks.value(id); dock && dock->widget()) {
        dock->show();
        dock->raise();
        dock->widget()->setFocus(Qt::ShortcutFocusReason);
    }
}

void MainWindow::setProject(std::unique_ptr<Project> project)
{
    if (m_workspace) {
        UserSettings::setWindowPlace(saveGeometry(), saveState());
    }
    emptyDocks();
    delete std::exchange(m_canvas, nullptr);
    m_workspace.reset();
    if (project) {
        m_workspace = std::make_unique<Workspace>(std::move(project), m_models);
        m_canvas = new CanvasPage(*m_workspace);
        m_pages->addWidget(m_canvas);
        m_pages->setCurrentWidget(m_canvas);
        fillDocks();
        connectWorkspace();
        m_canvas->setFocus();
    } else {
        m_welcome->refresh();
        m_pages->setCurrentWidget(m_welcome);
    }
    m_problems->setVisible(m_workspace != nullptr);
    m_zoom->setVisible(m_workspace != nullptr);
    updateTitle();
    m_actions->update();
}

void MainWindow::connectWorkspace()
{
    Workspace *workspace = m_workspace.get();
    ProjectDocument &document = workspace->document();
    connect(workspace, &Workspace::noted, this, &MainWindow::showNotes);
    connect(workspace, &Workspace::refused, this, [this](const QString &reason) {
        KdMessageBox::ask(this, {KdMessageBox::Warning, reason, {}, {}, {}});
    });
    connect(workspace, &Workspace::jobStarted, m_files->progress(), &JobProgress::follow);
    connect(workspace, &Workspace::screenChanged, this, &MainWindow::updateActions);
    connect(workspace, &Workspace::previewChanged, this, &MainWindow::updateActions);
    connect(&document, &ProjectDocument::selectionChanged, this, &MainWindow::updateActions);
    connect(&document, &ProjectDocument::modifiedChanged, this, &MainWindow::updateTitle);
    connect(&document.history(), &ProjectHistory::changed, this, &MainWindow::updateActions);
    connect(&document.history(), &ProjectHistory::changed, this, &MainWindow::updateTitle);
    connect(&document.history(), &ProjectHistory::forgotten, this,
            [this](const QString &reason) { showNotes({reason}); });
    connect(&workspace->problems(), &ProblemList::inserted, this, &MainWindow::updateProblems);
    connect(&workspace->problems(), &ProblemList::removed, this, &MainWindow::updateProblems);
    connect(&workspace->problems(), &ProblemList::changed, this, &MainWindow::updateProblems);
    connect(canvas(), &CanvasView::menuRequested, this, &MainWindow::showCanvasMenu);
    connect(&workspace->view(), &ViewState::flagsChanged, this, &MainWindow::updateActions);
    connect(canvas(), &CanvasView::scaleChanged, m_zoom, &ZoomBox::setScale);
    m_zoom->setScale(canvas()->scale());
    const auto *problems = qobject_cast<ProblemsPanel *>(panel(u"panel.problems"_s));
    auto *properties = qobject_cast<PropertiesPanel *>(panel(u"panel.properties"_s));
    const auto *places = qobject_cast<FindPanel *>(panel(u"panel.find"_s));
    const auto revealRow = [properties](const QString &id) { properties->rows().reveal(id); };
    connect(problems, &ProblemsPanel::propertyRequested, properties, revealRow);
    connect(places, &FindPanel::propertyRequested, properties, revealRow);
    updateProblems();
}

Needs MainWindow::state() const
{
    Needs state;
    state.setFlag(Need::Idle, !m_files->isBusy());
    if (!m_workspace) {
        return state;
    }
    ProjectDocument &document = m_workspace->document();
    const QList<DesignerObject *> elements = m_workspace->selectedElements();
    const QList<DesignerObject *> objects = document.selection();
    state |= Need::Project;
    state.setFlag(Need::Screen, m_workspace->screen());
    state.setFlag(Need::Element, !elements.isEmpty());
    state.setFlag(Need::Object, !objects.isEmpty() && objects.constFirst() != &m_workspace->project());
    state.setFlag(Need::Undo, document.history().canUndo());
    state.setFlag(Need::Redo, document.history().canRedo());
    state.setFlag(Need::Modified, document.isModified());
    state |= Needs::fromInt(Arrangement::abilities(elements).toInt() * int(Need::Align));
    return state;
}

void MainWindow::updateActions()
{
    // An edit may report several changes.
    if (!m_isUpdateDue) {
        m_isUpdateDue = true;
        QMetaObject::invokeMethod(
            this,
            [this] {
                m_isUpdateDue = false;
                m_actions->update();
            },
            Qt::QueuedConnection);
    }
}

//! The menu deletes itself.
void MainWindow::showCanvasMenu(const QPoint &place, const QList<DesignerObject *> &objects)
{
    auto *menu = new QMenu(this);
    menu->setAttribute(Qt::WA_DeleteOnClose);
    if (!objects.isEmpty()) {
        QMenu *stack = menu->addMenu(LocalizationHelper::coreString(u"Select here"_s));
        const QList<DesignerObject *> selection = m_workspace->document().selection();
        for (DesignerObject *object : objects) {
            QAction *entry = stack->addAction(IconSet::objectIcon(object->classNames()),
                                              QString(object->getIdName()).replace(u'&', u"&&"_s), this,
                                              [this, chosen = QPointer(object)] {
                                                  if (chosen) {
                                                      m_workspace->document().select({chosen});
                                                  }
                                              });
            entry->setCheckable(true);
            entry->setChecked(selection.contains(object));
        }
        menu->addSeparator();
    }
    m_actions->update();
    m_actions->fillMenu(*menu, canvasActions());
    menu->popup(place);
}

void MainWindow::updateTitle()
{
    setWindowModified(m_workspace && m_workspace->document().isModified());
    setWindowFilePath(m_workspace ? m_workspace->project().fullFilePath() : QString());
    setWindowTitle(m_workspace ? u"%1[*]"_s.arg(m_workspace->project().getIdName())
                               : QApplication::applicationDisplayName());
}

void MainWindow::updateProblems()
{
    const ProblemList &problems = m_workspace->problems();
    const qsizetype errors = problems.count(Severity::Error);
    const qsizetype warnings = problems.count(Severity::Warning);
    m_problems->setText(errors == 0 && warnings == 0
                            ? LocalizationHelper::coreString(u"No problems"_s)
                            : LocalizationHelper::coreString(u"Errors: %1   Warnings: %2"_s)
                                  .arg(QString::number(errors), QString::number(warnings)));
}

void MainWindow::setLook(UserSettings::Look look)
{
    UserSettings::setLook(look);
    DesktopLook::apply();
}

void MainWindow::showNotes(const QStringList &notes)
{
    statusBar()->showMessage(notes.join(u' '), noteTime);
}

void MainWindow::showAbout()
{
    KdMessageBox::ask(
        this, {KdMessageBox::Note,
               u"%1 %2"_s.arg(QApplication::applicationDisplayName(), QApplication::applicationVersion()),
               LocalizationHelper::coreString(u"Designs the screens of operator panels."_s),
               {},
               {}});
}

void MainWindow::closeEvent(QCloseEvent *event)
{
    if (m_workspace && !m_files->close()) {
        event->ignore();
        return;
    }
    QMainWindow::closeEvent(event);
}

} // namespace Halvane::Corvex::Nova
