// SPDX-License-Identifier: MIT
#include "panels/PropertiesPanel.h"

#include "corvex/common/LocalizationHelper.h"
#include "corvex/core/DesignerFactory.h"
#include "corvex/editors/PropertyPanel.h"
#include "corvex/widgets/IconSet.h"
#include "corvex/widgets/SearchLine.h"
#include "corvex/widgets/Theme.h"

#include "project/NewObject.h"
#include "project/Workspace.h"

#include <QKeyEvent>
#include <QLabel>
#include <QVBoxLayout>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace Halvane::Corvex::Nova {

using namespace Designer;
using Common::LocalizationHelper;

PropertiesPanel::PropertiesPanel(Workspace &workspace, QWidget *parent)
    : QWidget(parent)
    , m_workspace(workspace)
    , m_icon(new QLabel)
    , m_title(new QLabel)
    , m_kind(new QLabel)
    , m_filter(new SearchLine)
    , m_rows(new PropertyPanel(workspace.document()))
{
    m_title->setTextFormat(Qt::PlainText);
    QFont bold = m_title->font();
    bold.setBold(true);
    m_title->setFont(bold);
    m_title->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    Theme::setTextColor(m_kind, Theme::muted);
    m_filter->setPlaceholderText(LocalizationHelper::coreString(u"Filter properties"_s));
    m_filter->setAccessibleName(m_filter->placeholderText());
    auto *what = new QHBoxLayout;
    what->setSpacing(Theme::gap);
    what->addWidget(m_icon);
    what->addWidget(m_title, 1);
    what->addWidget(m_kind);
    auto *head = new QVBoxLayout;
    head->setContentsMargins(Theme::margin, Theme::margin, Theme::margin, Theme::gap);
    head->setSpacing(Theme::margin);
    head->addLayout(what);
    head->addWidget(m_filter);
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    layout->addLayout(head);
    layout->addWidget(m_rows, 1);
    connect(m_filter, &QLineEdit::textChanged, m_rows, &PropertyPanel::setFilter);
    connect(&m_rows->requests(), &EditorRequests::objectRequested, &workspace, &Workspace::reveal);
    connect(&m_rows->requests(), &EditorRequests::newObjectRequested, &workspace,
            [&workspace](const QString &className, const EditorRequests::ObjectAnswer &answer) {
                if (const DesignerObject *added = NewObject::add(workspace, className)) {
                    answer(added);
                }
            });
    connect(m_rows, &PropertyPanel::noted, &workspace, &Workspace::noted);
    connect(&workspace.document(), &ProjectDocument::selectionChanged, this,
            &PropertiesPanel::describeSelection);
    connect(&workspace.document().history(), &ProjectHistory::changed, this,
            &PropertiesPanel::describeSelection);
    describeSelection();
}

void PropertiesPanel::describeSelection()
{
    const QList<DesignerObject *> objects = m_workspace.document().selection();
    if (objects.isEmpty()) {
        m_icon->clear();
        m_title->clear();
        m_kind->clear();
        return;
    }
    const DesignerObject *first = objects.constFirst();
    const auto isAlike = [first](const DesignerObject *object) {
        return object->className() == first->className();
    };
    const bool areAlike = std::ranges::all_of(objects, isAlike);
    m_title->setText(objects.size() == 1
                         ? first->getIdName()
                         : LocalizationHelper::coreString(u"%1 objects"_s).arg(objects.size()));
    m_kind->setText(areAlike ? DesignerFactory::displayNameOf(first) : QString());
    m_icon->setPixmap(areAlike ? IconSet::objectIcon(first->classNames())
                                     .pixmap(QSize(IconSet::size, IconSet::size), devicePixelRatioF())
                               : QPixmap());
}

bool PropertiesPanel::event(QEvent *event)
{
    // In the panel, the key of the search finds rows, not places of the project.
    if (event->type() == QEvent::ShortcutOverride
        && static_cast<QKeyEvent *>(event)->matches(QKeySequence::Find)) {
        event->accept();
        return true;
    }
    return QWidget::event(event);
}

void PropertiesPanel::changeEvent(QEvent *event)
{
    QWidget::changeEvent(event);
    if (event->type() == QEvent::PaletteChange) {
        describeSelection();
    }
}

void PropertiesPanel::keyPressEvent(QKeyEvent *event)
{
    if (event->matches(QKeySequence::Find)) {
        m_filter->setFocus(Qt::ShortcutFocusReason);
        m_filter->selectAll();
    } else {
        QWidget::keyPressEvent(event);
    }
}

} // namespace Halvane::Corvex::Nova
