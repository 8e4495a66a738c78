// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/preview/AutoSettings.h"
#include "corvex/preview/BuildFolder.h"
#include "corvex/preview/Panel.h"

#include <QImage>
#include <QPointer>
#include <QQmlComponent>
#include <QQuickItem>

namespace Halvane::Corvex::Preview {

/*! A build, running. Shows one screen at a time in an item that a window takes up, and keeps a log of all
   that goes wrong. Needs a GUI application, and Qt Quick to be set to software graphics before there is a
   window. */
class PreviewSession : public QObject
{
    Q_OBJECT

public:
    explicit PreviewSession(QObject *parent = nullptr);
    ~PreviewSession() override;

    /*! Where the panel keeps what outlives it; before open. False, with a text for the user, for a file that
        holds something else. */
    bool keepStateIn(const QString &file, QString *error);
    //! Writes what is not in that file yet.
    void flushState() { m_state.flush(); }
    /*! Reads a build, of which a thread of its own then reads the first screen. False, with a text for the
       user, when there is nothing to show. */
    bool load(const QString &path, QString *error);
    //! Gives the variables their values and shows the first screen; once, after load.
    void start();
    //! Loads and starts.
    bool open(const QString &path, QString *error);
    const BuildFolder &build() const { return m_build; }
    Panel &panel() { return *m_panel; }
    //! What the window shows. It is as large as the screen.
    QQuickItem *frame() { return m_frame.get(); }

    //! Identifier names, "Main", in the order of the files.
    QStringList screens() const;
    //! The identifier name of the screen that is shown; empty without one.
    QString screen() const;
    QQuickItem *screenItem() const { return m_screen; }
    //! False, with a problem in the log, for a screen that there is none of or that does not load.
    bool showScreen(const QString &name);
    //! Lets all that is under way come to an end, time apart.
    void settle();

    //! An element of the screen by its name or by the path of names to it, the screen's own included; null
    //! when there is none.
    QObject *find(QStringView path) const;
    //! The item itself, or what a function element works with; null for an element that is not touched.
    QQuickItem *touchedItem(QObject *element) const;
    //! On the frame.
    QPointF middleOf(const QQuickItem *item) const;

signals:
    void screenChanged();

private:
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
    std::unique_ptr<QQmlComponent> m_first; //!< the first screen on its way, until it is there
    std::unique_ptr<QQuickItem> m_frame;
    QPointer<QQuickItem> m_screen;
    QString m_screenId;
};

} // namespace Halvane::Corvex::Preview
