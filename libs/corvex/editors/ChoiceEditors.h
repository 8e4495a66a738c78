// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/editors/PropertyEditor.h"

#include <QMap>

class QAbstractButton;
class QButtonGroup;
class QCheckBox;
class QLabel;

namespace Halvane::Corvex::Designer {

class KdComboBox;
class OriginPicture;

class CORVEX_EXPORT BooleanEditor : public PropertyEditor
{
    Q_OBJECT

public:
    using PropertyEditor::PropertyEditor;

protected:
    void createFields() override;
    void showRow() override;
    Entry entryFor(const DesignerProperty &property) const override;
    //! The text beside the box.
    virtual QString note() const { return {}; }

private:
    QCheckBox *m_box = nullptr;
};

//! A list of the words for the values of an enumeration.
class CORVEX_EXPORT EnumEditor : public PropertyEditor
{
    Q_OBJECT

public:
    using PropertyEditor::PropertyEditor;

protected:
    void createFields() override;
    void showRow() override;
    Entry entryFor(const DesignerProperty &property) const override;

private:
    KdComboBox *m_box = nullptr;
    QStringList m_keys; //!< of the items
};

//! The nine points of an element, as a picture.
class CORVEX_EXPORT TransformOriginEditor : public PropertyEditor
{
    Q_OBJECT

public:
    using PropertyEditor::PropertyEditor;

protected:
    void createFields() override;
    void showRow() override;
    Entry entryFor(const DesignerProperty &property) const override;

private:
    OriginPicture *m_picture = nullptr;
    QLabel *m_name = nullptr;
    QString m_chosen; //!< what the user has clicked
};

//! The four quarter turns of a screen.
class CORVEX_EXPORT ScreenOrientationEditor : public PropertyEditor
{
    Q_OBJECT

public:
    using PropertyEditor::PropertyEditor;

protected:
    void createFields() override;
    void showRow() override;
    Entry entryFor(const DesignerProperty &property) const override;

private:
    QButtonGroup *m_turns = nullptr;
};

//! The base of editors of records of flags, "busy: false, offline: true": a box for each flag.
class CORVEX_EXPORT FlagsEditor : public PropertyEditor
{
    Q_OBJECT

public:
    using PropertyEditor::PropertyEditor;

    bool isWide() const override { return true; } // the words for a flag are sentences

protected:
    void createFields() override;
    void showRow() override;
    Entry entryFor(const DesignerProperty &property) const override;

    //! What a flag means, by its key in the text.
    virtual QString wordsFor(const QString &key) const = 0;

private:
    QMap<QString, QCheckBox *> m_boxes; //!< by key
    QString m_clicked;                  //!< the key of the box that the user has clicked last
};

//! The errors of messages that are sent or received.
class CORVEX_EXPORT ErrorFlagsEditor : public FlagsEditor
{
    Q_OBJECT

public:
    using FlagsEditor::FlagsEditor;

protected:
    QString wordsFor(const QString &key) const override;
};

//! The errors of inputs and outputs.
class CORVEX_EXPORT IOErrorFlagsEditor : public FlagsEditor
{
    Q_OBJECT

public:
    using FlagsEditor::FlagsEditor;

protected:
    QString wordsFor(const QString &key) const override;
};

} // namespace Halvane::Corvex::Designer
