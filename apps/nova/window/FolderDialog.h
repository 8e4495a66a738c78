// SPDX-License-Identifier: MIT
#pragma once

#include <QDialog>

class QLineEdit;

namespace Halvane::Corvex::Nova {

//! Asks for a folder, which need not exist yet.
class FolderDialog : public QDialog
{
    Q_OBJECT

public:
    FolderDialog(const QString &title, const QString &folder, QWidget *parent);

    QString folder() const;

private:
    void browse();

    QLineEdit *m_line;
};

} // namespace Halvane::Corvex::Nova
