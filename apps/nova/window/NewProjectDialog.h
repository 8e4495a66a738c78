// SPDX-License-Identifier: MIT
#pragma once

#include <QDialog>

class QDialogButtonBox;
class QLabel;
class QLineEdit;
class QListWidget;

namespace Halvane::Corvex::Designer {
class ConfigurationContainer;
class KdLineEdit;
} // namespace Halvane::Corvex::Designer

namespace Halvane::Corvex::Nova {

//! Asks for the name, the folder and the device model of a new project, and creates it.
class NewProjectDialog : public QDialog
{
    Q_OBJECT

public:
    //! \a models must outlive the dialog.
    NewProjectDialog(const Designer::ConfigurationContainer &models, QWidget *parent);

    //! The file of the created project, after the dialog was accepted.
    const QString &path() const { return m_path; }

    void accept() override;

private:
    void browse();
    void check();

    const Designer::ConfigurationContainer &m_models;
    QLineEdit *m_name;
    QLineEdit *m_folder;
    QListWidget *m_list;
    QLabel *m_error;
    QDialogButtonBox *m_buttons;
    QString m_path;
};

} // namespace Halvane::Corvex::Nova
