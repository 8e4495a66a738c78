// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/preview/AutoSettings.h"
#include "corvex/preview/BuildFolder.h"
#include "corvex/preview/Panel.h"

#include <QImage>
#include <QPointer>
#include <QQmlComponent>
#include <QQuickItem>

#include <optional>

namespace Halvane::Corvex::Preview {

//! Runs a build. Shows one screen at a time in an item for a window, and logs all problems. Needs a GUI
//! application; Qt Quick must be set to software graphics before the first window.
class PreviewSession : public QObject
{
    Q_OBJECT

public:
    explicit PreviewSession(QObject *parent = nullptr);
    ~PreviewSession() override;

    //! The file for saved values. Call it before open(). Returns false, with a text for the user, if the file
    //! contains anything else.
    bool keepStateIn(const QString &file, QString *error);
    //! Writes unsaved values to that file.
    void flushState() { m_state.flush(); }
    //! Reads a build and loads its first screen in a thread of its own. Returns false, with a text for the
    //! user, if there is nothing to show.
    bool load(const QString &path, QString *error);
    //! Initializes the variables and shows the first screen. Call it once, after load().
    void start();
    //! Calls load() and start().
    bool open(const QString &path, QString *error);
    const BuildFolder &build() const { return m_build; }
    Panel &panel() { return *m_panel; }
    //! The item for the window. It has the size of the screen.
    QQuickItem *frame() { return m_frame.get(); }

    //! Identifier names, "Main", in file order.
    QStringList screens() const;
    //! The identifier name of the current screen; empty without one.
    QString screen() const;
    QQuickItem *screenItem() const { return m_screen; }
    //! Returns false, and logs a problem, if the screen does not exist or cannot be loaded.
    bool showScreen(const QString &name);
    //! Completes all pending work that does not need time to pass.
    void settle();

    //! An element of the screen by name or by path, which may include the screen's name; null if there is
    //! none.
    QObject *find(QStringView path) const;
    //! The item itself, or the item that a function element works with; null if the element cannot be
    //! touched.
    QQuickItem *touchedItem(QObject *element) const;
    //! The value of a variable, "speed", or of a property of an element on the current screen,
    //! "Main.lamp.visible", as a text: "true", "1.5", "abc", "#FFC62828". Nothing if it has no such text.
    std::optional<QString> valueOf(const QString &name);
    //! In coordinates of the frame.
    QPointF middleOf(const QQuickItem *item) const;

signals:
    void screenChanged();
    //! A value of valueOf() has changed. The name is empty if it is a property that was asked for, or a
    //! property of a new screen.
    void valueChanged(const QString &name);

private:
    Q_SLOT void reportProperty();
    void addVariables();
    void addVariable(const QString &name, const QVariantMap &record);
    void restoreState();
    void takeWarnings(const QList<QQmlError> &warnings);
    QString locate(const QString &file, int line) const;
    QUrl urlOf(const QString &id) const;
    QQuickItem *makeScreen(const QString &id);
    void removeScreen();

    bool m_isStateKept = false;
    BuildFolder m_build;
    SavedState m_state;
    AutoSettings m_settings;
    std::unique_ptr<Panel> m_panel;
    std::unique_ptr<QQmlComponent> m_first; //!< the first screen while it is being loaded
    std::unique_ptr<QQuickItem> m_frame;
    QPointer<QQuickItem> m_screen;
    QString m_screenId;
};

} // namespace Halvane::Corvex::Preview
