#ifndef STATISTIC_TABLES_H
#define STATISTIC_TABLES_H

#include "file_dialog.h"
#include "number_table.h"
#include "setting.h"
#include "statistic_data.h"
#include "window_bench.h"

#include <QClipboard>
#include <QDialog>
#include <QDialogButtonBox>
#include <QHeaderView>
#include <QLabel>
#include <QMap>
#include <QPrinterInfo>
#include <QPushButton>
#include <QScreen>
#include <QScrollArea>
#include <QTableWidget>

/// A store that has counted a permanence, and settings that fit it.
struct statistic_desk {
    explicit statistic_desk(table_form form, const QVector<int>& numbers = {})
    {
        settings.set_s_table_form(static_cast<int>(form));
        store.set_table_form(form);
        play(numbers);
    }

    void play(const QVector<int>& numbers)
    {
        for (const int number : numbers)
            store.addtoStat(number_table::instance().hit_property(number), false);
    }

    setting settings;
    statistic_data store;
};

/// The tables of a window as their reader sees them.
class table_reader
{
public:
    explicit table_reader(QDialog& shown)
        : window(shown)
    {
    }

    QTableWidget& table(const QString& name) const { return *child_of<QTableWidget>(window, name); }
    QString label(const QString& name) const { return child_of<QLabel>(window, name)->text(); }

    /// One row of tables that continue each other.
    QStringList row(const QStringList& names, int row) const
    {
        QStringList texts;
        for (const QTableWidgetItem* cell : cells(names, row))
            texts.append(cell->text());
        return texts;
    }
    QStringList heads(const QStringList& names) const { return row(names, 0); }
    QStringList values(const QStringList& names) const { return row(names, 1); }

    /// Places of the bold values, counted from 1.
    QVector<int> bold(const QStringList& names) const
    {
        QVector<int> places;
        int place = 0;
        for (const QTableWidgetItem* cell : cells(names, 1)) {
            ++place;
            if (cell->font().weight() == 75) places.append(place);
        }
        return places;
    }

    QVector<const QTableWidgetItem*> cells(const QStringList& names, int row) const
    {
        QVector<const QTableWidgetItem*> found;
        for (const QString& name : names) {
            for (int column = 0; column < table(name).columnCount(); ++column)
                found.append(table(name).item(row, column));
        }
        return found;
    }

    /// Names of the tables in which a text has not its room or a cell is out of sight.
    QStringList clipped() const
    {
        QStringList names;
        const auto tables = window.findChildren<QTableWidget*>();
        for (QTableWidget* shown : tables)
            if (is_clipped(*shown)) names.append(shown->objectName());
        return names;
    }

    /// What the window shows has its room in one of 1600 x 900 without scroll bars; the window has
    /// its room on the screen and is not larger than it need be.
    bool is_of_good_size() const
    {
        const QSize room(1600 - 60, 900 - 80); // without margins and buttons
        const QSize screen = window.screen()->availableSize();
        const auto areas = window.findChildren<QScrollArea*>();
        QSize largest;
        for (const QScrollArea* area : areas)
            largest = largest.expandedTo(area->widget()->sizeHint());
        if (largest.isEmpty() || largest != largest.boundedTo(room)) return false;
        const QSize with_frame = largest + QSize(120, 140);
        return window.size() == window.size().boundedTo(screen.boundedTo(with_frame));
    }

private:
    static bool is_clipped(QTableWidget& shown)
    {
        int width = 0;
        int height = 0;
        for (int column = 0; column < shown.columnCount(); ++column) {
            width += shown.columnWidth(column);
            for (int row = 0; row < shown.rowCount(); ++row) {
                const QTableWidgetItem& cell = *shown.item(row, column);
                const QRect text = QFontMetrics(cell.font()).boundingRect(cell.text());
                const int margins =
                    2 * (shown.style()->pixelMetric(QStyle::PM_FocusFrameHMargin) + 1);
                if (text.width() + margins >= shown.columnWidth(column)) return true;
                if (text.height() >= shown.rowHeight(row)) return true;
            }
        }
        for (int row = 0; row < shown.rowCount(); ++row)
            height += shown.rowHeight(row);
        const int frames = 2 * shown.frameWidth();
        return shown.width() - frames < width || shown.height() - frames < height;
    }

    QDialog& window;
};

/// The texts of numbers 1 to `count`, all the same but for a few.
inline QStringList texts_of(int count, int same, const QMap<int, int>& others = {})
{
    QStringList texts;
    for (int place = 1; place <= count; ++place)
        texts.append(QString::number(others.value(place, same)));
    return texts;
}

/// "01" to the last.
inline QStringList two_digit_heads(int last)
{
    QStringList texts;
    for (int number = 1; number <= last; ++number)
        texts.append(number < 10 ? "0" + QString::number(number) : QString::number(number));
    return texts;
}

/// The font for which the windows are designed; that of a desktop may be larger.
inline void take_font_of_design()
{
    QFont font = QApplication::font();
    font.setPointSize(10);
    QApplication::setFont(font);
}

/// True where a test would print on paper.
inline bool has_printer()
{
    return !QPrinterInfo::defaultPrinter().isNull();
}

/// Presses a button that prints, takes the PDF instead, and gives the size of the printed picture.
inline QSize printed_picture(QPushButton& button)
{
    box_user user;
    user.answer(QMessageBox::Yes);
    const QString path = QDir::current().filePath("printed.pdf");
    file_dialog::set_chooser([path](const file_dialog::request&) { return path; });
    button.click();
    file_dialog::set_chooser({});
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) return {};
    const QByteArray bytes = file.readAll();
    file.remove();
    const auto number_behind = [&bytes](const QByteArray& word) {
        const QByteArray rest = bytes.mid(bytes.indexOf(word) + word.size(), 10);
        return rest.left(rest.indexOf('\n')).toInt();
    };
    return {number_behind("/Width "), number_behind("/Height ")};
}

#endif // STATISTIC_TABLES_H
