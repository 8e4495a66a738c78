// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/core/DesignerObject.h"
#include "corvex/core/DesignerProperty.h"
#include "corvex/document/LiveValues.h"
#include "corvex/project/ProjectNames.h"

#include <QPointer>

#include <optional>

namespace Halvane::Corvex::Designer {

/*! The place of an expression: how it is read, printed and translated there, and what its names mean. An
    expression is the value of a property, or a part of it, such as the condition of a rule.

    Without an owner in a project there are no names, and nothing can be read.
*/
class ExpressionScope
{
public:
    ExpressionScope() = default;
    //! The value of \a property: an expression, assignments, terms or rules.
    explicit ExpressionScope(const SharedProperty &property);
    //! A part of the value of \a property.
    ExpressionScope(const SharedProperty &property, const ExpressionPurpose &purpose);

    bool isValid() const;
    //! Whether the text consists of rules, and not of the terms of one expression.
    bool hasRules() const { return m_hasRules; }
    ExpressionPurpose purposeOf(const GeneralDataList &terms) const;

    struct Reading
    {
        GeneralDataList terms; //!< empty for rules
        QString stored;        //!< empty after an error
        std::optional<ExpressionText::Error> error;
    };
    Reading read(const QString &text) const;
    //! Null if the text has no readable form.
    QString print(const QString &stored) const;
    //! The number of the first term that has no readable form, from 0; -1 if each of them has one.
    qsizetype firstUnreadable(const GeneralDataList &terms) const;
    //! The code for the device; empty if the terms cannot be translated.
    QString codeOf(const GeneralDataList &terms) const;

    //! A part of an expression with its own purpose, the first one that fits; no terms if none does.
    struct Part
    {
        GeneralDataList terms;
        ExpressionPurpose purpose;
    };
    Part readPart(const QString &text) const;

    //! What the user probably meant; empty if nothing is similar.
    QString suggestionFor(const ExpressionText::Error &error) const;

    std::optional<GeneralDataInfo> find(const QString &path) const;
    const DesignerObject *owner() const { return m_owner; }
    //! The value of a variable or property of an element: of the running project, or else in the project; a
    //! null text if it has none.
    QString valueOf(const GeneralDataInfo &term) const;
    //! Whether that is a value of the running project.
    bool isLive(const GeneralDataInfo &term) const { return liveValueOf(term).has_value(); }
    //! The name of the variable or property in LiveValues; empty for other terms.
    QString liveNameOf(const GeneralDataInfo &term) const;
    //! Null without a project.
    LiveValues *liveValues() const;
    //! The element with that name, which begins with the screen if the expression is not on a screen.
    const DesignerObject *elementNamed(const QString &path) const;

    //! The type of the value of an expression, in the words of users; empty if it has none.
    static QString typeOf(const ExpressionPurpose &purpose, const GeneralDataList &terms);
    //! "number", "text", ...; empty for types without a word.
    static QString nameOf(GeneralDataInfo::DataType type);
    //! The bits of the data types that a word of a signature, such as "number", means; all for other words.
    static quint32 typesNamed(const QString &word);
    static constexpr quint32 allTypes = ~0U;
    //! The types of values that are expected as the result.
    quint32 resultTypes() const;

private:
    ProjectNames names() const;
    std::optional<QString> liveValueOf(const GeneralDataInfo &term) const;

    SharedProperty m_property;
    QPointer<DesignerObject> m_owner;
    std::optional<ExpressionPurpose> m_purpose; //!< of a part
    bool m_hasRules = false;
};

} // namespace Halvane::Corvex::Designer
