// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/common/Export.h"
#include "corvex/core/DesignerObject.h"

#include <QColor>
#include <QObject>
#include <QPointer>

#include <functional>

namespace Halvane::Corvex::Designer {

/*! What editors want from the window around them. A window connects to the requests of its panel once, for
    all editors. Editors only offer what something is connected to.

    An answer changes nothing if its editor is gone or edits something else by then.
*/
class CORVEX_EXPORT EditorRequests : public QObject
{
    Q_OBJECT

public:
    enum Kind { Object, NewObject, Color, Recording };
    using ObjectAnswer = std::function<void(const Halvane::Corvex::Designer::DesignerObject *object)>;
    using ColorAnswer = std::function<void(const QColor &color)>;

    using QObject::QObject;

    //! Whether something is connected to the signal for that kind.
    bool isServed(Kind kind) const;

    //! The value that changes on the canvas are recorded into, such as a state; null for none. It remains
    //! when the user selects other objects.
    SharedProperty recorded() const;
    //! Starts or, with null, ends a recording.
    void setRecorded(const SharedProperty &changes);

signals:
    //! The user wants to go to the object.
    void objectRequested(Halvane::Corvex::Designer::DesignerObject *object);
    //! The user wants a new object of the class; the answer makes it the value. Answer before selecting it.
    void newObjectRequested(const QString &className,
                            const Halvane::Corvex::Designer::EditorRequests::ObjectAnswer &answer);
    //! The user wants to pick a color on the canvas.
    void colorRequested(const Halvane::Corvex::Designer::EditorRequests::ColorAnswer &answer);
    //! A recording begins or, with null, ends. Push ChangesEditor::recordOf() for each change on the canvas.
    void recordingRequested(const Halvane::Corvex::Designer::SharedProperty &changes);
    //! What is served or what is recorded has changed.
    void changed();

protected:
    void connectNotify(const QMetaMethod &signal) override;
    void disconnectNotify(const QMetaMethod &signal) override;

private:
    SharedProperty m_recorded;
    QPointer<DesignerObject> m_owner; //!< of the recorded property
};

} // namespace Halvane::Corvex::Designer
