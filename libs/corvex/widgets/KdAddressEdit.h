// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/widgets/KdLineEdit.h"

namespace Halvane::Corvex::Designer {

/*! A field for a network address, written octet by octet: the separator follows a complete octet, Up and Down
    change the octet at the cursor, and a pasted text may be longer than the address in it.
*/
class CORVEX_EXPORT KdAddressEdit : public KdLineEdit
{
    Q_OBJECT

public:
    enum Kind {
        IPv4, //!< "192.168.0.10"
        Mac   //!< "00:1A:2B:3C:4D:5E", or the number of a station on a serial bus: "17"
    };
    explicit KdAddressEdit(Kind kind, QWidget *parent = nullptr);

    struct Reading
    {
        QString address; //!< in the usual form; empty if there is none
        QString error;   //!< for the user
    };
    //! Accepts the usual separators. An empty text is no address, and no error.
    static Reading read(Kind kind, const QString &text);

signals:
    //! The user has changed an octet by a step.
    void stepped();

protected:
    void keyPressEvent(QKeyEvent *event) override;

private:
    bool pasteAddress();
    bool stepOctet(int step);
    void addSeparator();

    Kind m_kind;
};

} // namespace Halvane::Corvex::Designer
