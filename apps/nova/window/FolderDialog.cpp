// SPDX-License-Identifier: MIT
#include "window/FolderDialog.h"

#include "corvex/common/LocalizationHelper.h"
#include "corvex/widgets/IconSet.h"
#include "corvex/widgets/Theme.h"

#include <QAction>
#include <QDialogButtonBox>
#include <QDir>
#include <QFileDialog>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

namespace Halvane::Corvex::Nova {

using namespace Designer;
using Common::LocalizationHelper;

namespace {

constexpr int lineWidth = 420;

} // namespace

FolderDialog::FolderDialog(const QString &title, const QString &folder, QWidget *parent)
    : QDialog(parent)
    , m_line(new QLineEdit(QDir::toNativeSeparators(folder)))
{
    setWindowTitle(title);
    m_line->setMinimumWidth(lineWidth);
    auto *label = new QLabel(title);
    label->setBuddy(m_line);
    m_line->setAccessibleName(title);
    QAction *choose = m_line->addAction(IconSet::icon(IconSet::Folder), QLineEdit::TrailingPosition);
    choose->setText(LocalizationHelper::coreString(u"Choose a folder"_s));
    connect(choose, &QAction::triggered, this, &FolderDialog::browse);
    auto *buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel);
    connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    connect(m_line, &QLineEdit::textChanged, this, [buttons](const QString &text) {
        buttons->button(QDialogButtonBox::Ok)->setEnabled(!text.trimmed().isEmpty());
    });
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(2 * Theme::margin, 2 * Theme::margin, 2 * Theme::margin, 2 * Theme::margin);
    layout->setSpacing(Theme::margin);
    layout->addWidget(label);
    layout->addWidget(m_line);
    layout->addWidget(buttons);
}

QString FolderDialog::folder() const
{
    return QDir::cleanPath(QDir::fromNativeSeparators(m_line->text().trimmed()));
}

void FolderDialog::browse()
{
    const QString chosen = QFileDialog::getExistingDirectory(this, windowTitle(), folder());
    if (!chosen.isEmpty()) {
        m_line->setText(QDir::toNativeSeparators(chosen));
    }
}

} // namespace Halvane::Corvex::Nova
