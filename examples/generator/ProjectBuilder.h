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

/*! Builds a project through the library, object by object, as a designer would by hand. It goes on after a
    failure and keeps what went wrong. Objects that it returns belong to the project. */
class ProjectBuilder
{
public:
    explicit ProjectBuilder(const QString &name);
    ~ProjectBuilder();

    Designer::Project &project() const { return *m_project; }
    std::unique_ptr<Designer::Project> takeProject();

    //! Targets the installed device model of that name.
    void setModel(const QString &model);
    //! A file of the project's folder "Images".
    void addImage(const QString &fileName);
    Designer::DesignerObject *addVariable(const QString &className, const QString &name,
                                          const QString &value = {});
    Designer::Screen *addScreen(const QString &name);
    //! \a owner is a screen or a group.
    Designer::DesignerObject *addElement(Designer::DesignerObject *owner, const QString &className,
                                         const QString &name);
    //! A group fit for its members, which are added to it afterwards and closed in by closeGroup().
    void closeGroup(Designer::DesignerObject *group);
    Designer::DesignerObject *addFilter(Designer::Screen *screen, const QString &name,
                                        const QStringList &elementNames);

    //! Sets a property to a text in its canonical form.
    void set(Designer::DesignerObject *object, const char *propertyId, const QString &value);
    //! Links a property to what bears that name where the property's links lead.
    void link(Designer::DesignerObject *object, const char *propertyId, const QString &name);
    /*! Sets a property that holds an expression, as ExpressionReader reads it. What kind of expression it is
       follows from the property. */
    void bind(Designer::DesignerObject *object, const char *propertyId, QStringView expression);
    //! The text form of an expression of that kind; a problem when no code comes of it.
    QString expression(Designer::GeneralDataList::InfoType kind, QStringView text);
    //! Makes "element.property" known to expressions, where the name alone does not tell what it holds.
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
