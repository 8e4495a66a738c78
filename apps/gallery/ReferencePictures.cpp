// SPDX-License-Identifier: MIT
// Pictures of what the editors of names and of hardware open or show while the user works with them.
#include "corvex/editors/Editors.h"
#include "corvex/editors/PropertyEditor.h"
#include "corvex/project/Project.h"
#include "corvex/widgets/KdLineEdit.h"
#include "corvex/widgets/ObjectSelector.h"
#include "corvex/widgets/Theme.h"

#include "Pictures.h"

#include <QMenu>
#include <QToolButton>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

namespace Halvane::Corvex::Gallery {

using namespace Designer;

namespace {

//! An editor on a page of its own.
struct Page
{
    Page(ProjectDocument &document, DesignerObject *object, const QString &id)
        : sheet(document.project())
    {
        sheet.setObjects({object});
        editor = Editors::createFor(sheet.row(sheet.rowOf(id)), &widget);
        editor->setProperty(&sheet, id);
        auto *layout = new QVBoxLayout(&widget);
        layout->setContentsMargins(Theme::margin, Theme::margin, Theme::margin, Theme::margin);
        layout->addWidget(editor);
        fit();
        widget.show();
    }
    void fit()
    {
        constexpr int width = 340;
        widget.resize(width,
                      widget.hasHeightForWidth() ? widget.heightForWidth(width) : widget.sizeHint().height());
    }
    //! Types into the first field, without completing the entry.
    void type(const QString &text, bool complete = false)
    {
        auto *line = editor->findChild<KdLineEdit *>();
        line->enterText(text);
        if (complete) {
            emit line->entered();
        }
        fit();
    }

    PropertySheet sheet;
    QWidget widget;
    PropertyEditor *editor;
};

} // namespace

void Pictures::drawReferences()
{
    ProjectDocument &document = m_stage.document();
    const QMap<QString, DesignerObject *> objects = m_stage.objects();

    const auto savePopup = [this](ObjectSelector *popup, const QString &picture) {
        popup->openAt(popup);
        save(*popup, picture);
        popup->close(); // deletes it
    };
    auto *elements = new ObjectSelector;
    elements->setObjects(document.project().screens()->listItems(true), objects.value(u"Text"_s));
    elements->offerNothing(u"None"_s);
    savePopup(elements, u"popup-elements"_s);
    auto *images = new ObjectSelector;
    images->setObjects(document.project().imageResources()->listItems());
    images->offerNew(u"ImageResource"_s);
    savePopup(images, u"popup-images"_s);
    auto *nothing = new ObjectSelector;
    nothing->setObjects(document.project().variables()->listItems());
    nothing->setSearch(u"zzz"_s);
    savePopup(nothing, u"popup-no-object"_s);

    Page name(document, objects.value(u"Text"_s), u"id"_s);
    name.type(objects.value(u"Rectangle"_s)->getIdName());
    save(name.widget, u"editor-name-taken"_s);
    Page model(document, objects.value(u"Configuration"_s), u"id"_s);
    model.type(u"VTR 38-K"_s, true);
    save(model.widget, u"editor-model-question"_s);
    Page channel(document, objects.value(u"AnalogInput"_s), u"channel"_s);
    channel.editor->findChild<QToolButton *>()->click();
    auto *menu = channel.editor->findChild<QMenu *>();
    save(*menu, u"popup-channels"_s);
    menu->close();

    // The rows of the configuration that appear with its switches.
    DesignerObject *configuration = objects.value(u"Configuration"_s);
    const struct
    {
        QString id;
        QString value;
        QString shown;
    } rows[] = {
        {u"enableRS485"_s, u"true"_s, u"serialRS485Ports"_s},
        {u"enableSPIChipSelect"_s, u"true"_s, u"SPIChipSelect"_s},
        {u"compatibleModels"_s, u"VTR 50-K|VTR 1"_s, u"compatibleModels"_s},
    };
    for (const auto &[id, value, shown] : rows) {
        configuration->changePropertyValue(configuration->getProperty(id), value);
        Page page(document, configuration, shown);
        save(page.widget, u"editor-"_s + shown);
    }
}

} // namespace Halvane::Corvex::Gallery
