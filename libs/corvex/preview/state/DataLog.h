// SPDX-License-Identifier: MIT
#pragma once

#include <QList>
#include <QObject>

namespace Halvane::Corvex::Preview {

//! The points of a log variable. Bindings read "revision" to hear of new ones.
class DataLog : public QObject
{
    Q_OBJECT
    Q_PROPERTY(int revision READ revision NOTIFY changed)

public:
    //! What happens to a log that is full. SaveAndReset starts anew; the file is the device's affair.
    enum class WhenFull { OverwriteOldest, StopLogging, SaveAndReset };

    using QObject::QObject;

    void setLimit(qsizetype mostPoints, WhenFull whenFull);
    void add(double value);

    int revision() const { return m_revision; }
    qsizetype count() const { return m_points.size(); }
    //! The newest has index 0; 0 where there is none.
    double valueAt(qsizetype index) const;
    // 0 for an empty log.
    double minimum() const;
    double maximum() const;
    double average() const;

signals:
    void changed();

private:
    QList<double> m_points; //!< the oldest first
    qsizetype m_mostPoints = 10000;
    WhenFull m_whenFull = WhenFull::OverwriteOldest;
    int m_revision = 0;
};

} // namespace Halvane::Corvex::Preview
