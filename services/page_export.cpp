#include "page_export.h"

#include "file_saver.h"

#include <QAction>
#include <QApplication>
#include <QBuffer>
#include <QClipboard>
#include <QDialog>
#include <QDialogButtonBox>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QPainter>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QSvgGenerator>
#include <QTextEdit>

#include <algorithm>
#include <utility>

namespace
{

bool has_selection(const QObject& focus)
{
    if (const auto* line = qobject_cast<const QLineEdit*>(&focus)) return line->hasSelectedText();
    if (const auto* label = qobject_cast<const QLabel*>(&focus)) return label->hasSelectedText();
    if (const auto* text = qobject_cast<const QTextEdit*>(&focus))
        return text->textCursor().hasSelection();
    const auto* text = qobject_cast<const QPlainTextEdit*>(&focus);
    return text && text->textCursor().hasSelection();
}

QString csv_cell(QString cell)
{
    static const QString marks = QStringLiteral(",\"\r\n");
    const auto needs_quotes = [](QChar sign) { return marks.contains(sign); };
    if (std::none_of(cell.cbegin(), cell.cend(), needs_quotes)) return cell;
    cell.replace('"', QLatin1String("\"\""));
    return '"' + cell + '"';
}

/// A window title may hold signs that no file name can.
QString file_name_of(QString name)
{
    static const QString forbidden = QStringLiteral("\\/:*?\"<>|");
    for (QChar& sign : name) {
        if (forbidden.contains(sign)) sign = '_';
    }
    return name;
}

} // namespace

page_export::page_export(QDialog& window, QDialogButtonBox& box, page_content what)
    : page_export(window, std::move(what))
{
    box.addButton(export_button, QDialogButtonBox::ActionRole);
}

page_export::page_export(QDialog& window, page_content what)
    : QObject(&window)
    , owner(window)
    , content(std::move(what))
{
    build_button();
    window.installEventFilter(this);
    qApp->installEventFilter(this);
}

void page_export::build_button()
{
    export_button = new QPushButton(&owner);
    export_button->setObjectName(QStringLiteral("PB_export"));
    export_button->setAutoDefault(false);
    export_button->setMenu(new QMenu(export_button));
    copy_entry = add_entry(QStringLiteral("action_copy"), &page_export::copy);
    export_button->menu()->addSeparator();
    csv_entry = add_entry(QStringLiteral("action_csv"), &page_export::save_csv);
    png_entry = add_entry(QStringLiteral("action_png"), &page_export::save_png);
    svg_entry = add_entry(QStringLiteral("action_svg"), &page_export::save_svg);
    copy_entry->setShortcut(QKeySequence::Copy); // shown; the keys come through the filter
    copy_entry->setShortcutContext(Qt::WidgetShortcut);
    set_texts();
}

QAction* page_export::add_entry(const QString& name, void (page_export::*slot)())
{
    QAction* entry = export_button->menu()->addAction(QString());
    entry->setObjectName(name);
    connect(entry, &QAction::triggered, this, slot);
    return entry;
}

void page_export::set_texts()
{
    export_button->setText(tr("Exportieren"));
    copy_entry->setText(tr("Kopieren"));
    csv_entry->setText(tr("Als CSV speichern..."));
    png_entry->setText(tr("Als PNG speichern..."));
    svg_entry->setText(tr("Als SVG speichern..."));
}

// Tables and text fields would take Ctrl+C for a cell or for nothing.
bool page_export::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::LanguageChange && watched == &owner) set_texts();
    if (event->type() != QEvent::KeyPress || !is_in_window(watched)) return false;
    if (!static_cast<QKeyEvent*>(event)->matches(QKeySequence::Copy)) return false;
    if (has_selection(*watched)) return false;
    copy();
    return true;
}

bool page_export::is_in_window(const QObject* watched) const
{
    const auto* widget = qobject_cast<const QWidget*>(watched);
    return widget && widget->window() == &owner;
}

QWidget* page_export::shown_page() const
{
    return content.current_page ? content.current_page() : content.page;
}

// Copying

void page_export::copy()
{
    const QVector<QStringList> rows = content.table();
    if (rows.isEmpty()) return;
    QStringList lines;
    for (const QStringList& row : rows)
        lines.append(row.join('\t'));
    QApplication::clipboard()->setText(lines.join('\n'));
}

// Saving

void page_export::save_csv()
{
    save(QStringLiteral("csv"), tr("CSV-Dateien (*.csv)"), [this] { return csv(); });
}

void page_export::save_png()
{
    save(QStringLiteral("png"), tr("PNG-Dateien (*.png)"), [this] { return png(); });
}

void page_export::save_svg()
{
    save(QStringLiteral("svg"), tr("SVG-Dateien (*.svg)"), [this] { return svg(); });
}

void page_export::save(const QString& ending,
                       const QString& filter,
                       const std::function<QByteArray()>& what)
{
    const QString name = content.name.isEmpty() ? owner.windowTitle() : content.name;
    file_saver::save(&owner, {tr("Exportieren"), file_name_of(name), ending, filter, what});
}

QByteArray page_export::csv() const
{
    const QVector<QStringList> rows = content.table();
    QString text(QChar::ByteOrderMark);
    for (const QStringList& row : rows) {
        QStringList cells;
        for (const QString& cell : row)
            cells.append(csv_cell(cell));
        text += cells.join(',') + QLatin1String("\r\n");
    }
    return text.toUtf8();
}

QByteArray page_export::png() const
{
    QByteArray bytes;
    QBuffer buffer(&bytes);
    return shown_page()->grab().save(&buffer, "PNG") ? bytes : QByteArray();
}

QByteArray page_export::svg() const
{
    QWidget& page = *shown_page();
    QByteArray bytes;
    QBuffer buffer(&bytes);
    QSvgGenerator picture;
    picture.setOutputDevice(&buffer);
    picture.setTitle(owner.windowTitle());
    picture.setResolution(page.logicalDpiX()); // letters keep their size beside the lines
    picture.setSize(page.size());
    picture.setViewBox(QRect(QPoint(0, 0), page.size()));
    QPainter painter;
    if (!painter.begin(&picture)) return {};
    page.render(&painter);
    return painter.end() ? bytes : QByteArray();
}
