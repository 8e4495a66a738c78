// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/inspector/PropertySheet.h"

#include <QSet>
#include <QWidget>

#include <memory>
#include <vector>

namespace Halvane::Corvex::Designer {

class EditorRequests;
class PanelHeader;
class PanelRow;
class PropertyEditor;

//! The contents of a property panel: headers of groups and rows, one below the other. Only the rows in the
//! view of the panel exist as widgets. The others have an estimated height until they come into view.
class PanelRows : public QWidget
{
    Q_OBJECT

public:
    //! Sheet and requests must outlive the rows.
    PanelRows(PropertySheet &sheet, EditorRequests &requests, QWidget *parent = nullptr);
    ~PanelRows() override;

    void setFilter(const QString &text);
    //! Sets the width and the part in view, from \a top on, and creates the rows in it.
    void setView(int width, int top, int height);
    //! Opens the group of the row and creates its editor; null if the row is not shown.
    PropertyEditor *open(const QString &id);
    //! Completes what the user is entering.
    void completeEntries();

signals:
    void created(Halvane::Corvex::Designer::PropertyEditor *editor);
    //! A command of a row, such as a reset.
    void planned(const std::shared_ptr<Halvane::Corvex::Designer::PlannedCommand> &command);

protected:
    bool event(QEvent *event) override;

private:
    //! A row of the sheet, or the header of a group.
    struct Line
    {
        QString id; //!< empty for a header
        QString group;
        int height = 0;
        int top = 0;
    };

    void rebuild();
    void onDataChanged(const QModelIndex &first, const QList<int> &roles);
    bool isShown(int row) const;
    PanelRow *rowFor(const Line &line);
    PanelHeader *headerFor(const QString &group);
    void createVisible();
    void place();
    void toggle(const QString &group);
    int estimate() const;
    int titleWidth(int width) const;
    void measureTitles();
    void placeOnce();

    PropertySheet &m_sheet;
    EditorRequests &m_requests;
    std::vector<Line> m_lines;
    QHash<QString, PanelRow *> m_rows; //!< by id; also rows that are not shown now, for the next selection
    QHash<QString, PanelHeader *> m_headers;
    QSet<QString> m_closed; //!< groups
    QString m_filter;
    int m_top = 0;
    int m_viewHeight = 0;
    int m_longestTitle = 0;
    bool m_isPlacing = false;
    bool m_isPlaceDue = false;
};

} // namespace Halvane::Corvex::Designer
