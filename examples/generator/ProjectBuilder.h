// SPDX-License-Identifier: MIT
#pragma once

#include "ExpressionReader.h"

#include <memory>

namespace Halvane::Corvex::Designer {
class DesignerObject;
class Project;
class Screen;
} // namespace Halvane::Corvex::Designer

namespace Halvane::Corvex::Examples {

//! Builds a project with the library, object by object, like a designer. After a failure it continues and
//! records the problem. The project owns the returned objects.
class ProjectBuilder
{
public:
    explicit ProjectBuilder(const QString &name);
    ~ProjectBuilder();

    Designer::Project &project() const { return *m_project; }
    std::unique_ptr<Designer::Project> takeProject();

    //! Sets the installed device model with that name.
    void setModel(const QString &model);
    //! A file in the project's folder "Images".
    void addImage(const QString &fileName);
    Designer::DesignerObject *addVariable(const QString &className, const QString &name,
                                          const QString &value = {});
    Designer::Screen *addScreen(const QString &name);
    //! \a owner is a screen or a group.
    Designer::DesignerObject *addElement(Designer::DesignerObject *owner, const QString &className,
                                         const QString &name);
    //! Fits a group to its members. Add the members first.
    void closeGroup(Designer::DesignerObject *group);
    Designer::DesignerObject *addFilter(Designer::Screen *screen, const QString &name,
                                        const QStringList &elementNames);

    //! Sets a property to a text in its canonical form.
    void set(Designer::DesignerObject *object, const char *propertyId, const QString &value);
    //! Links a property to the object with that name in the scope of the link.
    void link(Designer::DesignerObject *object, const char *propertyId, const QString &name);
    //! Sets a property with an expression in the form of ExpressionReader. The property determines the kind
    //! of the expression.
    void bind(Designer::DesignerObject *object, const char *propertyId, QStringView expression);
    //! The text form of an expression of that kind. Records a problem if it gives no code.
    QString expression(Designer::GeneralDataList::InfoType kind, QStringView text);
    //! Declares the type of "element.property" for expressions, if the name alone does not define it.
    void declare(const QString &name, ExpressionReader::DataType type) { m_reader.declare(name, type); }

    QStringList problems() const { return m_problems + m_reader.problems(); }

private:
    Designer::DesignerObject *make(const QString &className, const QString &name);
    void add(Designer::DesignerObject *owner, const char *listId, Designer::DesignerObject *item);
    void report(const QString &problem) { m_problems.append(problem); }

    std::unique_ptr<Designer::Project> m_project;
    ExpressionReader m_reader;
    QStringList m_problems;
};

} // namespace Halvane::Corvex::Examples
