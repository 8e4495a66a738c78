// SPDX-License-Identifier: MIT
#pragma once

#include <QSet>
#include <QString>

//! The QML of types that the preview makes for one build.
namespace Halvane::Corvex::Preview::TypeDocument {

//! A labelled box that accepts all properties and signals that are set on the class.
QString box(const QString &className, const QSet<QString> &properties);

/*! The type \a base, which has the properties and handlers \a members, with those of \a properties that it
    lacks. */
QString derived(const QString &base, const QSet<QString> &members, const QSet<QString> &properties);

//! The document \a screen of the screens of all builds, with more lists of elements.
QString screen(const QString &screen, const QSet<QString> &lists);

} // namespace Halvane::Corvex::Preview::TypeDocument
