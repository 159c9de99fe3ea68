#include "findings_list.h"

#include "legible_colour.h"

#include <QEvent>
#include <QHeaderView>
#include <QTreeWidget>

static constexpr int column_count = 4;

findings_list::findings_list(QWidget* parent)
    : QDockWidget(parent)
    , rows(new QTreeWidget(this))
{
    setObjectName(QStringLiteral("findings_list"));
    rows->setObjectName(QStringLiteral("TW_findings"));
    rows->setColumnCount(column_count);
    rows->setRootIsDecorated(false);
    rows->setUniformRowHeights(true);
    rows->setAlternatingRowColors(true);
    rows->header()->setSectionResizeMode(QHeaderView::ResizeToContents);
    setWidget(rows);
    setAllowedAreas(Qt::BottomDockWidgetArea | Qt::TopDockWidgetArea);
    connect(rows, &QTreeWidget::itemClicked, this, &findings_list::choose);
    connect(rows, &QTreeWidget::itemActivated, this, &findings_list::choose);
    show_texts();
}

void findings_list::show_findings(const QVector<system_finding>& findings)
{
    shown = findings;
    show_texts();
}

void findings_list::show_texts()
{
    setWindowTitle(tr("Prüfergebnis"));
    rows->setAccessibleName(windowTitle());
    rows->setHeaderLabels({tr("Art"), tr("Zeile"), tr("Spalte"), tr("Meldung")});
    rows->clear();
    if (shown.isEmpty()) {
        auto* nothing = new QTreeWidgetItem(
            rows, {QString(), QString(), QString(), tr("Keine Fehler gefunden")});
        nothing->setFlags(Qt::ItemIsEnabled);
        return;
    }
    for (const system_finding& finding : qAsConst(shown)) {
        const bool is_error = finding.severity == system_finding::kind::error;
        auto* row = new QTreeWidgetItem(rows,
                                        {is_error ? tr("Fehler") : tr("Warnung"),
                                         QString::number(finding.line),
                                         QString::number(finding.column),
                                         finding.text});
        row->setForeground(0,
                           legible_colour(is_error ? QColor(190, 20, 20) : QColor(160, 96, 0),
                                          rows->palette().color(QPalette::Base)));
        row->setTextAlignment(1, Qt::AlignRight | Qt::AlignVCenter);
        row->setTextAlignment(2, Qt::AlignRight | Qt::AlignVCenter);
    }
}

void findings_list::choose(QTreeWidgetItem* row)
{
    const int index = rows->indexOfTopLevelItem(row);
    if (index >= 0 && index < shown.size()) emit finding_chosen(shown.at(index));
}

void findings_list::changeEvent(QEvent* event)
{
    if (event->type() == QEvent::LanguageChange) show_texts();
    QDockWidget::changeEvent(event);
}
