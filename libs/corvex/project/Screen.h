// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/common/Export.h"
#include "corvex/core/DesignerObject.h"
#include "corvex/project/elements/ElementIndex.h"
#include "corvex/values/runtime/RuntimeLists.h"

namespace Halvane::Corvex::Designer {

class Element;

/*! A screen of the panel: elements in drawing order, and filters.

    The size is not stored. It follows the project's configuration and the screen's own orientation; a screen
    outside of a project has 500 x 300.
*/
class CORVEX_EXPORT Screen : public DesignerObject
{
    Q_OBJECT
    CORVEX_CLASS_NAMES(Screen, DesignerObject)

public:
    ~Screen() override;

    QString baseName() const override;
    QString displayName() const override;
    void setProject(Project *project) override;
    //! A screen is always its own screen.
    void setScreen(Screen *screen) override;
    QString toQml(int indent) const override;
    QString onCompletedQml(int indent) const override;

    SharedProperty size() const { return getProperty(u"size"); }
    SharedProperty elements() const { return getProperty(u"elements"); }
    SharedProperty filters() const { return getProperty(u"filters"); }

    //! The names of all elements, including members of groups, in drawing order.
    QStringList getElementNames() const;
    //! Finds elements and members of groups, but no filters, by name in constant time or by a path
    //! ("group.member").
    Element *getElement(const QString &name) const;
    bool hasElement(const QString &name) const { return getElement(name); }
    //! All elements of that class, including members of groups.
    QList<Element *> getElementsOfType(const QString &className) const;
    //! A name for a new element: the class's base name and the first free number.
    QString uniqueElementName(const QString &base);
    //! Whether a new element on this screen may have the name.
    bool isFreeName(const QString &name) const;

    RuntimePropertyList runtimeProperties() const;

    //! Updates the size from the project's configuration. Called by the project when that changes.
    void onConfigurationSizeChanged();

    ElementIndex &elementIndex() { return m_index; }
    const ElementIndex &elementIndex() const { return m_index; }

protected:
    explicit Screen(QObject *parent = nullptr);

    ObjectView *createGraphicsItem() override;
    bool initializeProperties() override;
    void afterPropertyChanged(const DesignerProperty *property, const QString &previousValue) override;

private:
    Element *memberAt(QStringView path) const;
    QStringList elementLists(int indent) const;

    ElementIndex m_index;
};

} // namespace Halvane::Corvex::Designer
