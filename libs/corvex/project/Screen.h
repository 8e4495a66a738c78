// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/common/Export.h"
#include "corvex/core/DesignerObject.h"
#include "corvex/project/elements/ElementIndex.h"
#include "corvex/values/runtime/RuntimeLists.h"

namespace Halvane::Corvex::Designer {

class Element;

/*! What the panel shows at one time: elements in the order in which they are drawn, and filters.

    The size is not stored. It follows the project's configuration, turned with the screen's own orientation;
   a screen out of a project has 500 x 300.
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
    //! A screen is its own.
    void setScreen(Screen *screen) override;
    QString toQml(int indent) const override;
    QString onCompletedQml(int indent) const override;

    SharedProperty size() const { return getProperty(u"size"); }
    SharedProperty elements() const { return getProperty(u"elements"); }
    SharedProperty filters() const { return getProperty(u"filters"); }

    //! The names of all elements, members of groups included, in drawing order.
    QStringList getElementNames() const;
    //! Finds members of groups too, by their name in constant time or by a path ("group.member"); never a
    //! filter.
    Element *getElement(const QString &name) const;
    bool hasElement(const QString &name) const { return getElement(name); }
    //! All elements of that class, members of groups included.
    QList<Element *> getElementsOfType(const QString &className) const;
    //! A name for a new element: the class's base name and the first free number.
    QString uniqueElementName(const QString &base);
    //! Whether nothing bears the name that a new element of this screen must not be called like.
    bool isFreeName(const QString &name) const;

    RuntimePropertyList runtimeProperties() const;

    //! Takes the size from the project's configuration; the project calls it when that changes.
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
