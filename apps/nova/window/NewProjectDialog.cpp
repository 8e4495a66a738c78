// SPDX-License-Identifier: MIT
#include "window/NewProjectDialog.h"

#include "corvex/common/LocalizationHelper.h"
#include "corvex/hardware/Configuration.h"
#include "corvex/hardware/ConfigurationContainer.h"
#include "corvex/project/Project.h"
#include "corvex/project/files/FileNameRules.h"
#include "corvex/templates/NewProject.h"
#include "corvex/values/text/ValueConversion.h"
#include "corvex/widgets/IconSet.h"
#include "corvex/widgets/Theme.h"

#include "UserSettings.h"

#include <QAction>
#include <QDialogButtonBox>
#include <QDir>
#include <QFileDialog>
#include <QFormLayout>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QStandardPaths>

using namespace Qt::StringLiterals;

namespace Halvane::Corvex::Nova {

using namespace Designer;
using Common::LocalizationHelper;

namespace {

constexpr QSize dialogSize(560, 440);

//! The folder with the user's projects: that of the last one, or the documents.
QString usualFolder()
{
    const QString last = UserSettings::recentProjects().value(0);
    return last.isEmpty() ? QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation)
                          : QFileInfo(QFileInfo(last).path()).path();
}

} // namespace

NewProjectDialog::NewProjectDialog(const ConfigurationContainer &models, QWidget *parent)
    : QDialog(parent)
    , m_models(models)
    , m_name(new QLineEdit(LocalizationHelper::coreString(u"Panel"_s)))
    , m_folder(new QLineEdit(QDir::toNativeSeparators(usualFolder())))
    , m_list(new QListWidget)
    , m_error(new QLabel)
    , m_buttons(new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel))
{
    setWindowTitle(LocalizationHelper::coreString(u"New project"_s));
    for (const Configuration *model : models.configurations()) {
        const QSizeF size = ValueConversion::toSize(model->screenSize()->valueString());
        auto *item = new QListWidgetItem(
            IconSet::objectIcon({u"Configuration"_s}),
            u"%1   %2 × %3"_s.arg(model->getIdName()).arg(size.width()).arg(size.height()));
        item->setData(Qt::UserRole, model->getIdName());
        item->setToolTip(model->description()->valueString());
        m_list->addItem(item);
    }
    m_list->setCurrentRow(0);
    m_list->setAccessibleName(LocalizationHelper::coreString(u"Device model"_s));
    auto *browse = m_folder->addAction(IconSet::icon(IconSet::Folder), QLineEdit::TrailingPosition);
    browse->setText(LocalizationHelper::coreString(u"Choose a folder"_s));
    connect(browse, &QAction::triggered, this, &NewProjectDialog::browse);
    m_error->setWordWrap(true);
    m_error->setTextFormat(Qt::PlainText);
    Theme::setTextColor(m_error, Theme::error);
    m_buttons->button(QDialogButtonBox::Ok)->setText(LocalizationHelper::coreString(u"Create"_s));
    auto *form = new QFormLayout;
    form->setSpacing(Theme::margin);
    form->addRow(LocalizationHelper::coreString(u"Name"_s), m_name);
    form->addRow(LocalizationHelper::coreString(u"Folder"_s), m_folder);
    form->addRow(LocalizationHelper::coreString(u"Device model"_s), m_list);
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(2 * Theme::margin, 2 * Theme::margin, 2 * Theme::margin, 2 * Theme::margin);
    layout->setSpacing(Theme::margin);
    layout->addLayout(form);
    layout->addWidget(m_error);
    layout->addWidget(m_buttons);
    resize(dialogSize);
    connect(m_buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(m_buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    connect(m_name, &QLineEdit::textChanged, this, &NewProjectDialog::check);
    connect(m_folder, &QLineEdit::textChanged, this, &NewProjectDialog::check);
    connect(m_list, &QListWidget::itemActivated, this, &QDialog::accept);
    m_name->selectAll();
    check();
}

void NewProjectDialog::browse()
{
    const QString folder = QFileDialog::getExistingDirectory(
        this, LocalizationHelper::coreString(u"Choose a folder"_s), m_folder->text());
    if (!folder.isEmpty()) {
        m_folder->setText(QDir::toNativeSeparators(folder));
    }
}

void NewProjectDialog::check()
{
    const QString name = m_name->text();
    const QDir folder(QDir::fromNativeSeparators(m_folder->text()));
    QString error = FileNameRules::projectNameError(name);
    if (error.isEmpty() && (m_folder->text().isEmpty() || !folder.exists())) {
        error = LocalizationHelper::coreString(u"This folder does not exist."_s);
    } else if (error.isEmpty() && folder.exists(name)) {
        error = LocalizationHelper::coreString(u"The folder already contains \"%1\". Choose another name."_s)
                    .arg(name);
    }
    m_error->setText(error);
    m_buttons->button(QDialogButtonBox::Ok)->setEnabled(error.isEmpty() && m_list->currentItem());
}

void NewProjectDialog::accept()
{
    const QListWidgetItem *item = m_list->currentItem();
    const Configuration *model = item ? m_models.configuration(item->data(Qt::UserRole).toString()) : nullptr;
    if (!model || !m_buttons->button(QDialogButtonBox::Ok)->isEnabled()) {
        return;
    }
    QString error;
    const std::unique_ptr<Project> project =
        NewProject::create(QDir::fromNativeSeparators(m_folder->text()), m_name->text(), *model, error);
    if (!project) {
        m_error->setText(error);
        return;
    }
    m_path = project->fullFilePath();
    QDialog::accept();
}

} // namespace Halvane::Corvex::Nova
