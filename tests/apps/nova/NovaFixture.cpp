// SPDX-License-Identifier: MIT
#include "apps/nova/NovaFixture.h"

#include "corvex/core/DesignerFactory.h"
#include "corvex/editing/graphics/GraphicsItem.h"
#include "corvex/hardware/HardwareConfigurations.h"
#include "corvex/project/Screen.h"
#include "corvex/widgets/KdMessageBox.h"

#include "actions/WindowActions.h"
#include "project/ProjectFiles.h"

#include <QAction>
#include <QApplication>
#include <QDialogButtonBox>
#include <QDirIterator>
#include <QGraphicsItem>
#include <QPushButton>
#include <QSignalSpy>

using namespace Qt::StringLiterals;

namespace Halvane::Corvex::Nova::Test {

using namespace Designer;

namespace {

void copyFolder(const QString &from, const QString &to)
{
    QDirIterator files(from, QDir::Files, QDirIterator::Subdirectories);
    while (files.hasNext()) {
        const QString file = files.next();
        const QString target = to + file.mid(from.size());
        ASSERT_TRUE(QDir().mkpath(QFileInfo(target).path()));
        ASSERT_TRUE(QFile::copy(file, target)) << qPrintable(target);
    }
}

} // namespace

void NovaFixture::SetUpTestSuite()
{
    if (!DesignerFactory::instance()) {
        ASSERT_TRUE(DesignerFactory::createInstance(QStringLiteral(CORVEX_LIBRARY)));
        ASSERT_TRUE(HardwareConfigurations::createInstance(QStringLiteral(CORVEX_DATA)));
    }
}

void NovaFixture::SetUp()
{
    QObject::connect(&messages, &QTimer::timeout, &messages, [this] { answerMessage(); });
    messages.start(5);
    copyFolder(QStringLiteral(CORVEX_EXAMPLE), folder.filePath(u"PumpStation"_s));
    path = folder.filePath(u"PumpStation/PumpStation.kdproj"_s);
    window = std::make_unique<MainWindow>(*HardwareConfigurations::instance()->installed());
    window->show();
    QApplication::setActiveWindow(window.get()); // offscreen windows are never activated by a user
    open(path);
}

void NovaFixture::TearDown()
{
    messages.stop();
    window.reset();
    EXPECT_TRUE(answers.isEmpty()) << "a message did not appear";
}

void NovaFixture::open(const QString &file)
{
    QSignalSpy opened(&window->files(), &ProjectFiles::opened);
    window->files().open(file);
    ASSERT_TRUE(!opened.isEmpty() || opened.wait());
    QCoreApplication::processEvents();
}

void NovaFixture::answerNext(int answer)
{
    answers.append(answer);
}

//! Answers the message box that is open. One that no test expects is a failure.
void NovaFixture::answerMessage()
{
    const auto *box = qobject_cast<KdMessageBox *>(QApplication::activeModalWidget());
    if (!box) {
        return;
    }
    if (answers.isEmpty()) {
        ADD_FAILURE() << qPrintable(box->text());
    }
    QList<QAbstractButton *> choices;
    const auto *buttons = box->findChild<QDialogButtonBox *>();
    for (QAbstractButton *button : buttons->buttons()) {
        if (buttons->buttonRole(button) == QDialogButtonBox::ActionRole) {
            choices.append(button);
        }
    }
    const int answer = answers.isEmpty() ? int(choices.size()) - 1 : answers.takeFirst();
    ASSERT_LT(answer, choices.size());
    QTest::mouseClick(choices.at(answer), Qt::LeftButton);
}

void NovaFixture::trigger(const char *id) const
{
    QAction *action = window->actions().action(QString::fromLatin1(id));
    ASSERT_TRUE(action) << id;
    QCoreApplication::processEvents();
    ASSERT_TRUE(action->isEnabled()) << id;
    action->trigger();
}

bool NovaFixture::isEnabled(const char *id) const
{
    QCoreApplication::processEvents();
    return window->actions().action(QString::fromLatin1(id))->isEnabled();
}

Element *NovaFixture::element(const char *name) const
{
    Element *element = workspace().screen()->getElement(QString::fromLatin1(name));
    EXPECT_TRUE(element) << name;
    return element;
}

QString NovaFixture::value(const char *name, const char *id) const
{
    return element(name)->getProperty(QString::fromLatin1(id))->valueString();
}

QPoint NovaFixture::middleOf(const char *name) const
{
    const GraphicsItem *item = GraphicsItem::of(element(name));
    return window->canvas()->mapFromScene(item->graphic()->mapToScene(item->frame().center()));
}

void NovaFixture::drag(const QPoint &from, const QPoint &to, Qt::KeyboardModifiers modifiers,
                       bool releases) const
{
    constexpr int steps = 8;
    QTest::mousePress(viewport(), Qt::LeftButton, modifiers, from);
    for (int step = 1; step <= steps; ++step) {
        // QTest::mouseMove() passes neither buttons nor modifiers.
        const QPointF place = QPointF(from) + QPointF(to - from) * step / steps;
        QMouseEvent move(QEvent::MouseMove, place, viewport()->mapToGlobal(place), Qt::NoButton,
                         Qt::LeftButton, modifiers);
        QCoreApplication::sendEvent(viewport(), &move);
    }
    if (releases) {
        QTest::mouseRelease(viewport(), Qt::LeftButton, modifiers, to);
    }
}

QByteArray NovaFixture::savedBytes() const
{
    return DesignerObject::toString(&workspace().project()).toUtf8();
}

} // namespace Halvane::Corvex::Nova::Test
