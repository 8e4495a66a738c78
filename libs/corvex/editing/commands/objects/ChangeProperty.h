// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/common/Export.h"
#include "corvex/editing/commands/ModelCommand.h"

namespace Halvane::Corvex::Designer {

/*! Sets a value, with all consequences: references follow a new name, states follow a new linked element, and
    channel lists follow the switches of the device's configuration.

    The name of an image or of a project with a file is also a file name; the file is renamed as by
    RenameImage and RenameProject.

    Refuses a value that shows an image whose file is missing, and an invalid name.
*/
class CORVEX_EXPORT ChangeProperty : public ModelCommand
{
public:
    ChangeProperty(const SharedProperty &property, const QString &value, bool selected,
                   UndoCommand *parent = nullptr);

    bool isValid() const override;
    QString errorString() const override;
    SharedProperty soleProperty() const override;

    const QString &oldValue() const { return m_before; }
    const QString &newValue() const { return m_after; }

protected:
    bool redoOwn(QString &error) override;
    bool undoOwn(QString &error) override;
    void appendOwnChanges(QList<ValueChange> &changes) const override;

private:
    void setupCommand();
    bool renamesFile();
    void followLinkedElement();
    void followName();
    QString findMissingImage() const;
    QString nameError() const;
    bool set(const QString &value);

    QString m_before;
    QString m_after;
    QString m_missingImage; //!< an image in the new value that has no file
    bool m_sortsList = false;
};

} // namespace Halvane::Corvex::Designer
