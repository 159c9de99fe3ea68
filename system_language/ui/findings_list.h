#ifndef FINDINGS_LIST_H
#define FINDINGS_LIST_H

#include "system_check.h"

#include <QDockWidget>

class QTreeWidget;
class QTreeWidgetItem;

/// The dock that lists what a check found in a text, a row each.
class findings_list : public QDockWidget
{
    Q_OBJECT

public:
    explicit findings_list(QWidget* parent = nullptr);

    /// Replaces the rows; they stand in the order given.
    void show_findings(const QVector<system_finding>& findings);

signals:
    /// A row was clicked, or reached by Enter.
    void finding_chosen(const system_finding& finding);

protected:
    void changeEvent(QEvent* event) override;

private:
    void show_texts();
    void choose(QTreeWidgetItem* row);

    QTreeWidget* rows;
    QVector<system_finding> shown;
};

#endif // FINDINGS_LIST_H
