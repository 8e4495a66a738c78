// SPDX-License-Identifier: MIT
#include "panels/PalettePanel.h"

#include "corvex/common/LocalizationHelper.h"
#include "corvex/core/DesignerFactory.h"
#include "corvex/editing/words/ClassHelp.h"
#include "corvex/project/Screen.h"
#include "corvex/project/elements/VisualElement.h"
#include "corvex/widgets/IconSet.h"
#include "corvex/widgets/SearchLine.h"
#include "corvex/widgets/Theme.h"

#include "project/NewElement.h"
#include "project/NewObject.h"
#include "project/Workspace.h"

#include <QListView>
#include <QStandardItemModel>
#include <QVBoxLayout>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace Halvane::Corvex::Nova {

using namespace Designer;
using Common::LocalizationHelper;

namespace {

constexpr int classNameRole = Qt::UserRole + 1;

class PaletteModel : public QStandardItemModel
{
public:
    using QStandardItemModel::QStandardItemModel;

    QMimeData *mimeData(const QModelIndexList &indexes) const override
    {
        return indexes.isEmpty() ? nullptr
                                 : NewElement::dragged(indexes.constFirst().data(classNameRole).toString());
    }
};

//! The classes of elements that users can add: drawn ones first, then by title.
QList<ClassHelp> elementClasses()
{
    QList<ClassHelp> classes;
    for (const QString &name : DesignerFactory::instance()->creatableNames()) {
        std::optional<ClassHelp> help = ClassHelp::summaryOf(name);
        if (help && help->bases.contains(Element::kindName()) && !help->bases.contains(u"GroupElement"_s)
            && name != "GroupElement"_L1) {
            classes.append(*std::move(help));
        }
    }
    std::ranges::sort(classes, [](const ClassHelp &a, const ClassHelp &b) {
        const bool aIsDrawn = a.bases.contains(VisualElement::kindName());
        const bool bIsDrawn = b.bases.contains(VisualElement::kindName());
        return aIsDrawn != bIsDrawn ? aIsDrawn : a.title.localeAwareCompare(b.title) < 0;
    });
    return classes;
}

} // namespace

PalettePanel::PalettePanel(Workspace &workspace, QWidget *parent)
    : QWidget(parent)
    , m_workspace(workspace)
    , m_model(new PaletteModel(this))
    , m_search(new SearchLine)
    , m_view(new QListView)
{
    for (const ClassHelp &help : elementClasses()) {
        QStringList names = help.bases;
        std::ranges::reverse(names);
        auto *item = new QStandardItem(IconSet::objectIcon(names << help.className), help.title);
        item->setData(help.className, classNameRole);
        item->setToolTip(help.description);
        item->setEditable(false);
        m_model->appendRow(item);
    }
    m_view->setModel(m_model);
    m_view->setFrameShape(QFrame::NoFrame);
    m_view->setDragEnabled(true);
    m_view->setUniformItemSizes(true);
    m_view->setAccessibleName(LocalizationHelper::coreString(u"Palette"_s));
    m_search->setView(m_view);
    auto *head = new QVBoxLayout;
    head->setContentsMargins(Theme::margin, Theme::margin, Theme::margin, Theme::gap);
    head->addWidget(m_search);
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    layout->addLayout(head);
    layout->addWidget(m_view, 1);
    connect(m_search, &QLineEdit::textChanged, this, &PalettePanel::filter);
    connect(m_search, &SearchLine::chosen, this, &PalettePanel::insert);
    connect(m_view, &QListView::activated, this, &PalettePanel::insert);
}

void PalettePanel::filter(const QString &text)
{
    for (int row = 0; row < m_model->rowCount(); ++row) {
        const QStandardItem *item = m_model->item(row);
        m_view->setRowHidden(
            row, !item->text().contains(text, Qt::CaseInsensitive)
                     && !item->data(classNameRole).toString().contains(text, Qt::CaseInsensitive));
    }
}

void PalettePanel::insert(const QModelIndex &index)
{
    if (m_workspace.screen()) {
        NewObject::add(m_workspace, index.data(classNameRole).toString());
    }
}

} // namespace Halvane::Corvex::Nova
