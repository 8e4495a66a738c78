// SPDX-License-Identifier: MIT
#include "Pictures.h"

#include "corvex/editors/Editors.h"
#include "corvex/editors/PropertyEditor.h"
#include "corvex/editors/PropertyPanel.h"
#include "corvex/widgets/Theme.h"

#include <QApplication>
#include <QDir>
#include <QLabel>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

namespace Halvane::Corvex::Gallery {

using namespace Designer;

namespace {

constexpr int panelWidth = 340;

QLabel *caption(const QString &text)
{
    auto *label = new QLabel(text);
    Theme::setTextColor(label, &Theme::muted);
    return label;
}

} // namespace

Pictures::Pictures(Stage &stage, const QString &folder)
    : m_stage(stage)
    , m_folder(folder)
{
    serve(m_requests);
}

void Pictures::serve(EditorRequests &requests) const
{
    const auto ignore = [] {};
    QObject::connect(&requests, &EditorRequests::objectRequested, &m_stage.document(), ignore);
    QObject::connect(&requests, &EditorRequests::newObjectRequested, &m_stage.document(), ignore);
    QObject::connect(&requests, &EditorRequests::colorRequested, &m_stage.document(), ignore);
    QObject::connect(&requests, &EditorRequests::recordingRequested, &m_stage.document(), ignore);
}

QStringList Pictures::draw()
{
    if (!QDir().mkpath(m_folder)) {
        return {u"%1: The folder cannot be created."_s.arg(m_folder)};
    }
    drawIcons();
    drawPanels();
    drawColorPopups();
    drawEditors();
    drawReferences();
    drawExpressions();
    return m_errors;
}

void Pictures::save(QWidget &widget, const QString &name)
{
    constexpr int rounds = 3; // a layout may show a scroll bar, which changes the layout
    widget.ensurePolished();
    for (int round = 0; round < rounds; ++round) {
        QApplication::processEvents();
    }
    const QString path = m_folder + u'/' + name + ".png"_L1;
    if (!widget.grab().save(path)) {
        m_errors.append(u"%1: The picture cannot be written."_s.arg(path));
    }
}

//! The panel of an object of each class, in full height.
void Pictures::drawPanels()
{
    const QMap<QString, DesignerObject *> objects = m_stage.objects();
    for (auto object = objects.begin(); object != objects.end(); ++object) {
        m_stage.document().select({object.value()});
        PropertyPanel panel(m_stage.document());
        serve(panel.requests());
        panel.resize(panelWidth, 4000);
        panel.show();
        QApplication::processEvents(); // fields in tables take their height
        panel.resize(panelWidth, panel.widget()->height());
        save(panel, "panel-"_L1 + object.key());
    }
}

//! Each editor with the first property that uses it, if possible one that panels show at first.
void Pictures::drawEditors()
{
    QSet<QString> drawn;
    const QMap<QString, DesignerObject *> objects = m_stage.objects();
    for (const bool showsHidden : {false, true}) {
        for (auto object = objects.begin(); object != objects.end(); ++object) {
            PropertySheet sheet(m_stage.document().project());
            sheet.setObjects({object.value()});
            for (int row = 0; row < sheet.rowCount(); ++row) {
                const QString name = Editors::nameFor(sheet.row(row));
                if (!drawn.contains(name) && (showsHidden || sheet.row(row).isVisible)) {
                    drawn.insert(name);
                    drawEditor(name, object.key(), sheet.row(row).id);
                }
            }
        }
    }
    // The base is an editor for kinds of plug-ins. Sheets have no rows for objects.
    drawn.insert(u"PropertyEditor"_s);
    drawn.insert(u"ObjectEditor"_s);
    for (const QString &name : Editors::names()) {
        if (!drawn.contains(name)) {
            m_errors.append(u"%1: No property uses this editor."_s.arg(name));
        }
    }
}

//! The editor with a value, with values that differ, and with an error.
void Pictures::drawEditor(const QString &name, const QString &className, const QString &id)
{
    QWidget page;
    auto *layout = new QVBoxLayout(&page);
    PropertySheet sheet(m_stage.document().project());
    DesignerObject *first = m_stage.objects().value(className);
    sheet.setObjects({first});
    const auto add = [&](const QString &state, PropertySheet &shown) {
        layout->addWidget(caption(u"%1: %2"_s.arg(name, state)));
        PropertyEditor *editor = Editors::createFor(shown.row(shown.rowOf(id)), &page);
        editor->setRequests(&m_requests);
        editor->setProperty(&shown, id);
        layout->addWidget(editor);
        editor->show(); // also if the panel hides the row
        return editor;
    };
    add(u"a value"_s, sheet);

    PropertySheet several(m_stage.document().project());
    DesignerObject *second = m_stage.another(className);
    if (second) {
        several.setObjects({first, second});
        if (several.rowOf(id) >= 0) {
            add(u"two objects"_s, several);
        }
    }
    add(u"refused"_s, sheet)->refuse(u"This is what a refused entry looks like."_s);
    page.resize(panelWidth, page.sizeHint().height());
    page.show();
    save(page, "editor-"_L1 + name);
}

} // namespace Halvane::Corvex::Gallery
