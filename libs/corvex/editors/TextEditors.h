// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/editors/PropertyEditor.h"

class QToolButton;

namespace Halvane::Corvex::Designer {

class KdTextEdit;

class CORVEX_EXPORT SingleLineEditor : public PropertyEditor
{
    Q_OBJECT

public:
    using PropertyEditor::PropertyEditor;
};

//! A text with line breaks. The field grows with the text; Ctrl+Enter completes an entry.
class CORVEX_EXPORT PlainTextEditor : public PropertyEditor
{
    Q_OBJECT

public:
    using PropertyEditor::PropertyEditor;

protected:
    void createFields() override;
    void showRow() override;
    Entry entryFor(const DesignerProperty &property) const override;

private:
    KdTextEdit *m_text = nullptr;
};

//! A value that users read and copy, but do not change here.
class CORVEX_EXPORT ReadOnlyLineEditor : public PropertyEditor
{
    Q_OBJECT

public:
    using PropertyEditor::PropertyEditor;

protected:
    void createFields() override;
    void showRow() override;
    KdLineEdit *line() const { return m_line; }

private:
    KdLineEdit *m_line = nullptr;
};

//! The file that an image was imported from, with a button that shows it in its folder.
class CORVEX_EXPORT OriginalLocationEditor : public ReadOnlyLineEditor
{
    Q_OBJECT

public:
    using ReadOnlyLineEditor::ReadOnlyLineEditor;

protected:
    void createFields() override;
    void showRow() override;

private:
    void showInFolder();

    QToolButton *m_folder = nullptr;
};

//! A password: hidden, shown while a button is pressed, with a hint of its strength while the user types.
class CORVEX_EXPORT ProjectPasswordEditor : public PropertyEditor
{
    Q_OBJECT

public:
    using PropertyEditor::PropertyEditor;

protected:
    void createFields() override;
    void showRow() override;
    Entry entryFor(const DesignerProperty &property) const override;

private:
    void showStrength();

    KdLineEdit *m_line = nullptr;
    QToolButton *m_show = nullptr;
};

} // namespace Halvane::Corvex::Designer
