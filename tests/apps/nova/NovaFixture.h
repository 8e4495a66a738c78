// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/project/Project.h"
#include "corvex/project/elements/Element.h"

#include "canvas/CanvasView.h"
#include "project/Workspace.h"
#include "window/MainWindow.h"

#include <QTemporaryDir>
#include <QTest>
#include <QTimer>

#include <gtest/gtest.h>

namespace Halvane::Corvex::Nova::Test {

//! A window with a copy of the example project, used with keys and mouse as a person does.
class NovaFixture : public testing::Test
{
protected:
    static void SetUpTestSuite();
    void SetUp() override;
    void TearDown() override;

    //! Waits until a project is open, or opening it has failed.
    void open(const QString &path);
    //! A message box will appear, to be answered with the button number \a answer. Any other is a failure.
    void answerNext(int answer);
    //! Runs the action with that id as its menu does.
    void trigger(const char *id) const;
    bool isEnabled(const char *id) const;

    Workspace &workspace() const { return *window->workspace(); }
    Designer::ProjectDocument &document() const { return workspace().document(); }
    QWidget *viewport() const { return window->canvas()->viewport(); }
    //! An element of the current screen.
    Designer::Element *element(const char *name) const;
    QString value(const char *name, const char *id) const;
    //! The middle of an element in coordinates of the viewport.
    QPoint middleOf(const char *name) const;
    //! Drags with the left button in small steps.
    void drag(const QPoint &from, const QPoint &to, Qt::KeyboardModifiers modifiers = {},
              bool releases = true) const;
    QByteArray savedBytes() const;

    QTemporaryDir folder;
    QString path; //!< of the project's file
    std::unique_ptr<MainWindow> window;
    QList<int> answers; //!< of message boxes to come

private:
    void answerMessage();

    QTimer messages;
};

} // namespace Halvane::Corvex::Nova::Test
