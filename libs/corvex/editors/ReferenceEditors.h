// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/editors/PropertyEditor.h"
#include "corvex/values/records/ObjectLinkInfo.h"

class QLabel;
class QListWidget;
class QListWidgetItem;
class QToolButton;

namespace Halvane::Corvex::Designer {

class ModelWatch;
class ObjectSelector;

//! The name of an object. While the user types, it explains the rule that the name breaks and offers the next
//! free one, or says how many places the renaming will update.
class CORVEX_EXPORT IdentifierEditor : public PropertyEditor
{
    Q_OBJECT

public:
    using PropertyEditor::PropertyEditor;

protected:
    void createFields() override;
    void showRow() override;
    PlannedCommand plan() const override;
    void followOffer(const QString &link) override;

private:
    void explain();
    //! The object, if there is only one.
    DesignerObject *object() const;

    KdLineEdit *m_line = nullptr;
    qsizetype m_uses = -1; //!< places that name the object; -1 before they are counted
};

/*! The name of another object: typed, or chosen in a popup with a search. What may be chosen follows from the
    link and from the parameters "scopeType" and "filterType". "Go to" requests the object.

    Also serves texts that are names; the two parameters then decide alone.
*/
class CORVEX_EXPORT LinkEditor : public PropertyEditor
{
    Q_OBJECT

public:
    using PropertyEditor::PropertyEditor;

    //! Opens the popup, with the typed text as its search.
    void choose();

protected:
    void createFields() override;
    void showRow() override;
    Entry entryFor(const DesignerProperty &property) const override;

    //! The objects to choose from; those that all edited objects can name.
    virtual QList<DesignerObject *> candidates() const;
    //! The object that the value names; null if it does not exist or if the values differ.
    virtual DesignerObject *target() const;
    //! What the user would type to name the object.
    virtual QString nameOf(const DesignerObject *object) const;
    //! The classes of objects that the user may want to create.
    virtual QStringList newClasses() const;

    //! The field; null if the value can only be read.
    KdLineEdit *line() const { return m_line; }

private:
    KdLineEdit *m_line = nullptr;
    QToolButton *m_choose = nullptr;
    QToolButton *m_goTo = nullptr;
    ModelWatch *m_watch = nullptr;
    QPointer<ObjectSelector> m_selector;
};

//! An object inside another one: shows its name, and "go to" requests it. For a text that names an object, it
//! is a LinkEditor.
class CORVEX_EXPORT ObjectEditor : public LinkEditor
{
    Q_OBJECT

public:
    using LinkEditor::LinkEditor;

protected:
    void showRow() override;
    DesignerObject *target() const override;
};

//! The image of an element, with a thumbnail and the size of the image.
class CORVEX_EXPORT ImageSourceEditor : public LinkEditor
{
    Q_OBJECT

public:
    using LinkEditor::LinkEditor;

protected:
    void createFields() override;
    void showRow() override;

private:
    QWidget *m_picture = nullptr; //!< thumbnail and size, beneath the line
    QLabel *m_thumbnail = nullptr;
    QLabel *m_size = nullptr;
};

//! The class of the elements whose settings the device saves. The user chooses an element of that class.
class CORVEX_EXPORT AutosaveObjectEditor : public LinkEditor
{
    Q_OBJECT

public:
    using LinkEditor::LinkEditor;

protected:
    QList<DesignerObject *> candidates() const override;
    DesignerObject *target() const override;
    QString nameOf(const DesignerObject *object) const override;
    QStringList newClasses() const override;
};

/*! A list of names or texts in an order: moved by dragging, by buttons, and by Alt+Up and Alt+Down. With the
    parameter "filterType" the user can also add objects of these classes from the scope "scopeType", remove
    items, and edit them.
*/
class CORVEX_EXPORT ItemsOrderEditor : public PropertyEditor
{
    Q_OBJECT

public:
    using PropertyEditor::PropertyEditor;

    bool isWide() const override { return true; }
    bool eventFilter(QObject *watched, QEvent *event) override;

protected:
    void createFields() override;
    void showRow() override;
    Entry entryFor(const DesignerProperty &property) const override;

private:
    QStringList itemsOf(const DesignerProperty &property) const;
    QString textOf(const DesignerProperty &property, const QStringList &items) const;
    void addItem(const QString &text);
    void moveCurrent(int by);
    void removeCurrent();
    void add();
    bool canAdd() const;
    void complete(bool isStep);

    QListWidget *m_list = nullptr;
    QLabel *m_count = nullptr;
    QList<QToolButton *> m_changers; //!< the buttons that add and remove
    bool m_isShowing = false;
};

} // namespace Halvane::Corvex::Designer
