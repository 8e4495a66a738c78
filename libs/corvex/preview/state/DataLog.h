// SPDX-License-Identifier: MIT
#pragma once

#include <QList>
#include <QObject>

namespace Halvane::Corvex::Preview {

//! The points of a log variable. Bindings read "revision" to notice new points.
class DataLog : public QObject
{
    Q_OBJECT
    Q_PROPERTY(int revision READ revision NOTIFY changed)

public:
    //! What a full log does. SaveAndReset starts over; only the device writes a file.
    enum class WhenFull { OverwriteOldest, StopLogging, SaveAndReset };

    using QObject::QObject;

    void setLimit(qsizetype mostPoints, WhenFull whenFull);
    void add(double value);

    int revision() const { return m_revision; }
    qsizetype count() const { return m_points.size(); }
    //! The newest point has index 0. Returns 0 for a missing point.
    double valueAt(qsizetype index) const;
    // These return 0 for an empty log.
    double minimum() const;
    double maximum() const;
    double average() const;

signals:
    void changed();

private:
    QList<double> m_points; //!< oldest first
    qsizetype m_mostPoints = 10000;
    WhenFull m_whenFull = WhenFull::OverwriteOldest;
    int m_revision = 0;
};

} // namespace Halvane::Corvex::Preview
