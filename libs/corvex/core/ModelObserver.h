// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/common/Export.h"
#include "corvex/core/DesignerProperty.h"

namespace Halvane::Corvex::Designer {

class ModelObservers;

/*! Follows all changes of one project in a single place. An index or a view of the whole model needs no
    connection for each object.

    Add an observer to Project::observers(). The project does not own it: it is removed when it is destroyed,
    and released when the project is destroyed. In the base class all operations do nothing.

    - Operations named "aboutTo..." run before the model changes. Their counterparts run right after
      the change, before the after-hook and the signal of the object. Both get the same arguments.
    - A "list" is the list property or the object property that contains the child; the index of the child of
      an object property is 0.
    - An object is inserted and removed with everything below it. Changes inside it during the operation are
      not reported, so read it in inserted() or replaced(), and forget it in aboutToRemove() or
      aboutToReplace().
    - Changes of validity during an insertion or a removal are reported afterwards, when indexes are valid
      again.
    - Nothing is reported while a project is being loaded, between projectAboutToLoad() and projectLoaded().

    An observer must not change the model; debug builds assert that. It may add and remove observers,
    including itself; an added observer is notified from the next operation on.
*/
class CORVEX_EXPORT ModelObserver
{
    Q_DISABLE_COPY_MOVE(ModelObserver)

public:
    virtual ~ModelObserver();

    //! A renamed object is found by its new name already; a list that it is in may report moved() next.
    virtual void valueChanged(const SharedProperty & /*property*/, const QString & /*previousValue*/) { }

    //! \a index is the final index of the object, also in a sorted list.
    virtual void aboutToInsert(const SharedProperty & /*list*/, qsizetype /*index*/,
                               DesignerObject * /*object*/)
    { }
    virtual void inserted(const SharedProperty & /*list*/, qsizetype /*index*/, DesignerObject * /*object*/)
    { }
    //! The object is still in its place and knows its project and screen. If it is being deleted, it may
    //! already be reduced to a DesignerObject, but its properties and children still exist.
    virtual void aboutToRemove(const SharedProperty & /*list*/, qsizetype /*index*/,
                               DesignerObject * /*object*/)
    { }
    //! If the object is being deleted, only its address may be used.
    virtual void removed(const SharedProperty & /*list*/, qsizetype /*index*/, DesignerObject * /*object*/) {
    }
    //! Both indexes are those of the moved object: \a from before the move, \a to after it.
    virtual void aboutToMove(const SharedProperty & /*list*/, qsizetype /*from*/, qsizetype /*to*/) { }
    virtual void moved(const SharedProperty & /*list*/, qsizetype /*from*/, qsizetype /*to*/) { }
    //! A sorted list may report moved() next.
    virtual void aboutToReplace(const SharedProperty & /*list*/, qsizetype /*index*/,
                                DesignerObject * /*oldObject*/, DesignerObject * /*newObject*/)
    { }
    virtual void replaced(const SharedProperty & /*list*/, qsizetype /*index*/,
                          DesignerObject * /*oldObject*/, DesignerObject * /*newObject*/)
    { }
    //! Several items will change their places. Keep listItems(), which is cheap, to find the old places.
    virtual void aboutToReorder(const SharedProperty & /*list*/) { }
    virtual void reordered(const SharedProperty & /*list*/) { }

    //! The failure() of the property, or the reason for it, may have changed.
    virtual void validityChanged(const SharedProperty & /*property*/) { }
    //! The isValid() of the object may have changed; follows what its properties report.
    virtual void objectValidityChanged(DesignerObject * /*object*/) { }
    //! Title, flags, editor, editor parameters ("visible" is one of them), rank or description of this one
    //! property.
    virtual void descriptorChanged(const SharedProperty & /*property*/) { }

    //! All objects of the project are about to be deleted. Forget them now.
    virtual void projectAboutToLoad() { }
    //! The project has the contents of the file, or a part of them after an error. Read everything again.
    virtual void projectLoaded() { }
    //! The file of the project was written.
    virtual void projectSaved() { }
    //! The last operation. The observer is released afterwards; it may delete itself.
    virtual void projectAboutToBeDestroyed() { }

protected:
    ModelObserver() = default;

private:
    friend class ModelObservers;

    ModelObservers *m_observers = nullptr;
};

} // namespace Halvane::Corvex::Designer
