#include "run_record.h"

#include "game_types.h"
#include "whole_append.h"

#include <QBuffer>
#include <QFile>
#include <QFileInfo>
#include <QTextStream>

static constexpr int numbers_per_line = 30;
static constexpr int longest_header = 4096; // bytes; what is longer is no header of ours

void run_record::add(int number, const QDateTime& moment)
{
    const bool is_mark = number == number_code::hand_change;
    if (!is_mark && !number_code::is_number(number)) return;
    if (is_empty()) run_start = moment;
    ++(is_mark ? run_hand_changes : run_coups);
    run_numbers.push_back(static_cast<quint8>(number));
}

static QString item_text(int number)
{
    switch (number) {
    case 0:
        return QStringLiteral(" 0");
    case number_code::double_zero:
        return QStringLiteral("00");
    case number_code::hand_change:
        return QStringLiteral("--");
    default:
        return QStringLiteral("%1").arg(number, 2, 10, QLatin1Char('0'));
    }
}

static QString moment_text(const QDateTime& moment)
{
    return moment.toString(QStringLiteral("dddd,dd.MMMM.yyyy hh:mm:ss"));
}

/// The header of a run up to its end, which is not known before the run is saved.
static QString header_begin(const run_record& run)
{
    return QStringLiteral("::  ") + moment_text(run.run_start) + QStringLiteral(" - ");
}

/// The lines of the numbers, without the end of the last one.
static QString number_lines(const run_record& run)
{
    QString lines;
    int items_in_line = 0;
    for (const quint8 number : run.run_numbers) {
        if (items_in_line == numbers_per_line) {
            lines += QLatin1Char('\n');
            items_in_line = 0;
        }
        if (items_in_line > 0) lines += QLatin1Char(' ');
        lines += item_text(number);
        ++items_in_line;
    }
    return lines;
}

QString format_run_block(const run_record& run)
{
    if (run.is_empty()) return {};
    return header_begin(run) + moment_text(run.run_end) + QStringLiteral(" Coups : ") +
           QString::number(run.run_coups) + QLatin1Char('\n') + number_lines(run) +
           QStringLiteral("\n\n");
}

QString year_file_name(int year)
{
    return QStringLiteral("Stat%1.log").arg(year, 4, 10, QLatin1Char('0'));
}

/// The text as it stands in a text file of this platform.
static QByteArray file_bytes(const QString& text)
{
    QBuffer buffer;
    if (!buffer.open(QIODevice::WriteOnly | QIODevice::Text)) return {};
    QTextStream stream(&buffer);
    stream << text;
    stream.flush();
    return buffer.data();
}

/// A file that breaks off in the middle of a line would swallow the header of the next block.
static bool breaks_off(const QString& path)
{
    QFile file(path);
    if (!QFileInfo(path).isFile()) return false; // the opening of a pipe waits for its writer
    if (!file.open(QIODevice::ReadOnly | QIODevice::Unbuffered)) return false;
    if (file.size() == 0 || !file.seek(file.size() - 1)) return false;
    return file.read(1) != "\n";
}

bool append_to_year_file(const run_record& run)
{
    if (run.is_empty()) return true;
    const QString path = year_file_name(run.run_start.date().year());
    const QString block = format_run_block(run);
    return append_whole(path, file_bytes(breaks_off(path) ? QLatin1Char('\n') + block : block));
}

bool is_in_year_file(const run_record& run)
{
    const QString path = year_file_name(run.run_start.date().year());
    QFile file(path);
    if (run.is_empty() || !QFileInfo(path).isFile() || !file.open(QIODevice::ReadOnly))
        return false;
    const QByteArray header = file_bytes(header_begin(run));
    const QByteArray numbers = file_bytes(number_lines(run));
    while (!file.atEnd()) {
        const bool is_found = file.readLine(longest_header).startsWith(header);
        if (is_found && file.peek(numbers.size()) == numbers) return true;
    }
    return false;
}
