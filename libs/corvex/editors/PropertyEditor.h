// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/common/Export.h"
#include "corvex/editing/commands/Commands.h"
#include "corvex/editors/EditorRequests.h"
#include "corvex/inspector/PropertySheet.h"

#include <QPointer>
#include <QWidget>

#include <functional>
#include <optional>

class QHBoxLayout;
class QLabel;
class QVBoxLayout;

namespace Halvane::Corvex::Designer {

class KdLineEdit;
class UndoCommand;

/*! A widget that edits one property of one or several objects: the row of a PropertySheet.

    An editor shows the row, collects what the user enters, and turns it into a command. It never changes the
    model itself: it emits entered(), and whoever owns the editor pushes createUpdateCommand(). Then the model
    changes, and the editor shows the new value. A refused entry stays in the field, with the reason beneath.

    A derived class creates its fields in createFields(), shows a row in showRow(), and returns what the user
    entered in entryFor(). This class does the rest: it follows the model, and handles mixed values, errors,
    read-only rows, accessible names and the wheel. It is itself an editor for any kind of value, as a line of
    readable text.
*/
class CORVEX_EXPORT PropertyEditor : public QWidget
{
    Q_OBJECT

public:
    explicit PropertyEditor(QWidget *parent = nullptr);
    ~PropertyEditor() override;

    //! Edits the row with that id. The editor continues when the sheet gets other objects that have such a
    //! row, and is hidden while it has none.
    void setProperty(PropertySheet *sheet, const QString &id);
    /*! Edits a value for \a property that is stored elsewhere, such as in a state of a button. \a row
       describes the property and holds the value. The owner stores what takeEntry() returns after entered().
    */
    void setElsewhere(const SharedProperty &property, const SheetRow &row);
    //! The stored text of the entry for setElsewhere(). Nothing if there is no entry, or if the property
    //! refuses it; the editor shows the reason then.
    std::optional<QString> takeEntry();
    //! Passes the requests of this editor to \a requests; null if there is nobody who could serve them.
    void setRequests(EditorRequests *requests);
    PropertySheet *sheet() const { return m_sheet; }
    const QString &propertyId() const { return m_row.id; }
    //! The row as it is shown.
    const SheetRow &row() const { return m_row; }
    //! The property of each object, the active object first.
    QList<SharedProperty> properties() const;
    //! The first of properties(), without collecting the others; null if there is none.
    SharedProperty firstProperty() const;
    //! Whether there is more than one.
    bool hasSeveral() const;

    /*! The command for what the user has entered. Null if nothing changes, or if the entry is refused;
        errorString() gives the reason then. The caller pushes the command before the next edit, and owns it
        until then.
    */
    UndoCommand *createUpdateCommand();
    //! Shows why the last command could not be executed. The entry stays in the field.
    void refuse(const QString &reason);
    //! Discards the entry and shows the value.
    void restore();
    //! Whether the user has entered something that was neither accepted nor restored.
    bool hasEntry() const { return m_hasEntry; }

    //! The text beneath the field: why the entry was refused, or why the value is invalid.
    QString errorString() const;
    //! What the user must know about the last command.
    const QStringList &notes() const { return m_notes; }

    //! Whether the editor needs the width of the panel, with its title above it.
    virtual bool isWide() const { return false; }
    //! Whether scrub() changes the value.
    virtual bool canScrub() const { return false; }
    //! Changes the value by a number of steps, such as while the user drags the title. Emits entered().
    virtual void scrub(double steps);

signals:
    //! The user has completed an entry.
    void entered();
    //! The user has changed the value by a step of the wheel or an arrow key. Steps in quick succession form
    //! one step of the history.
    void stepped();
    //! All entries until gestureEnded() form one step of the history, such as while a slider is dragged.
    void gestureBegan();
    void gestureEnded();
    //! The user has given up the gesture; the value before it must be restored.
    void gestureCancelled();
    //! The height that the editor needs may have changed.
    void heightChanged();

protected:
    //! The entry for one property: its text as it is stored, or why it cannot be used.
    struct Entry
    {
        QString text;
        QString error;
    };

    enum class Hint {
        Advice,
        Warning,
        Offer, //!< with links, as HTML; also shown beside an error
    };

    //! Creates the fields with addField() and addLine(). Called once, before the first showRow().
    virtual void createFields();
    //! Shows row() in the fields. Values that differ are shown as mixedText(), a read-only row without
    //! fields for input. Called after each change of the row.
    virtual void showRow();
    //! What the user has entered, for one of properties().
    virtual Entry entryFor(const DesignerProperty &property) const;
    //! The stored value that is edited for one of properties(). It is not that of the property if the value
    //! is stored elsewhere.
    QString valueOf(const DesignerProperty &property) const;
    //! The command for the entry; by default a change of all values to their entries.
    virtual PlannedCommand plan() const;

    //! The layout of the fields. The error is beneath it.
    QHBoxLayout *fields() const { return m_fields; }
    //! Adds a field to the layout and prepares it. \a part names the field if the editor has several, such as
    //! "width".
    void addField(QWidget *field, const QString &part = {}, int stretch = 0);
    //! The same for a field that has a layout of its own.
    void prepareField(QWidget *field, const QString &part = {});
    //! Adds a line whose completed text is an entry.
    KdLineEdit *addLine(const QString &part = {}, int stretch = 1);
    KdLineEdit *prepareLine(KdLineEdit *line, const QString &part = {});

    //! The user has changed something, but has not completed the entry.
    void markEdited();
    //! The user has completed an entry, for example with a click.
    void completeEntry();
    //! The same for a step of the wheel or an arrow key.
    void completeStep();

    //! Advice on the value, in a line beneath the fields; empty for none. An error replaces it.
    void setHint(const QString &text, Hint kind = Hint::Advice);
    //! The user has clicked a link of an offer.
    virtual void followOffer(const QString &link);

    //! Null if nobody serves requests. Editors show what they offer in showRow(), which is called again when
    //! that changes.
    EditorRequests *requests() const { return m_requests; }
    //! Passes an answer to \a take if the editor still exists and edits the same values.
    template<class Value>
    std::function<void(Value)> answerFor(std::function<void(Value)> take)
    {
        return [editor = QPointer(this), asked = properties(), take = std::move(take)](Value value) {
            if (editor && editor->properties() == asked) {
                take(value);
            }
        };
    }

    //! The text for values that differ.
    static QString mixedText();
    //! A parameter of the editor, from the row of the property.
    QVariant parameter(const char *key) const
    {
        return m_row.editorParameters.value(QString::fromLatin1(key));
    }

private:
    struct Field
    {
        QPointer<QWidget> widget;
        QString part;
    };
    void follow();
    void update(const SheetRow &row);
    void setError(const QString &text);
    bool showMessage(QLabel *&label, const QString &text);
    void updateAccess();
    void updateAccess(const Field &field, const QString &description) const;

    QPointer<PropertySheet> m_sheet;
    QPointer<EditorRequests> m_requests;
    SharedProperty m_elsewhere; //!< the property of a value that is stored elsewhere
    SheetRow m_row;
    QVBoxLayout *m_layout;
    QHBoxLayout *m_fields;
    QLabel *m_errorLabel = nullptr; //!< created with the first error
    QLabel *m_hintLabel = nullptr;  //!< the same with the first hint
    std::vector<Field> m_parts;
    QPointer<KdLineEdit> m_text; //!< of this class as an editor
    QString m_refusal;
    QString m_hint;
    Hint m_hintKind = Hint::Advice;
    QStringList m_notes;
    bool m_hasFields = false;
    bool m_hasEntry = false;
    bool m_isHiddenByRow = false;
};

} // namespace Halvane::Corvex::Designer
