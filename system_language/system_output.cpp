#include "system_output.h"

#include "numberstorage.h"
#include "player_accounting.h"
#include "setting.h"

#include <array>
#include <charconv>
#include <cstring>

static constexpr int number_width = 3;
static constexpr int figure_width = 12;
static constexpr int table_width  = number_width + 3 * figure_width;
static constexpr int block_size   = 1 << 16; // bytes that are written at once
static constexpr char fill        = ' ';

/// Appends a text at the right of a column; a longer one pushes what follows to the right.
static void append_right(QByteArray& line, const char* text, int length, int width)
{
    if (length < width) line.append(width - length, fill);
    line.append(text, length);
}

static void append_right(QByteArray& line, const char* text, int width)
{
    append_right(line, text, static_cast<int>(std::strlen(text)), width);
}

static void append_figure(QByteArray& line, qint64 figure)
{
    std::array<char, 24> digits;
    const auto end = std::to_chars(digits.data(), digits.data() + digits.size(), figure).ptr;
    append_right(line, digits.data(), static_cast<int>(end - digits.data()), figure_width);
}

static void append_number(QByteArray& line, int number, bool is_manual)
{
    const std::array<char, 3> text = {is_manual ? '*' : fill,
                                      static_cast<char>('0' + number / 10),
                                      static_cast<char>('0' + number % 10)};
    line.append(text.data(), static_cast<int>(text.size()));
}

system_output::system_output(const numberStorage& number_source,
                             const setting& game_settings,
                             general_player::player_names own_player,
                             protocol_flushing when_flushed,
                             QObject* parent)
    : QObject(parent)
    , numbers(number_source)
    , settings(game_settings)
    , player(own_player)
    , flushing(when_flushed)
{
}

system_output::~system_output()
{
    close();
}

bool system_output::open()
{
    file.setFileName(settings.s_user_out_file(player));
    const bool was_there = file.exists();
    write_failed = !file.open(QIODevice::WriteOnly | QIODevice::Append | QIODevice::Text
                              | QIODevice::Unbuffered);
    if (write_failed) return false;
    buffer.reserve(block_size + block_size / 4);
    if (was_there) end_line();
    write_header();
    return true;
}

void system_output::write_header()
{
    if (!file.isOpen()) return;
    append_right(buffer, "GZ", number_width);
    append_right(buffer, "Gew/Ver", figure_width);
    append_right(buffer, "Gesetzt", figure_width);
    append_right(buffer, "Guthaben", figure_width);
    buffer.append("    ");
    buffer.append(settings.s_user_sys_file(player).toUtf8());
    end_line();
    buffer.append(table_width, '-');
    buffer.append("  ");
    end_line();
}

void system_output::write_coup_line(const player_status& status)
{
    if (!file.isOpen() || status.coups == counted_coups) return;
    counted_coups                     = status.coups;
    const std::vector<quint8>& thrown = numbers.history().thrown();
    if (thrown.empty()) return;
    write_load_file_marks();
    append_number(buffer, thrown.back(), manual_number);
    manual_number = false;
    append_figure(buffer, status.last_score - status.last_seeded);
    append_figure(buffer, status.last_seeded);
    append_figure(buffer, status.last_credit);
    buffer.append("  ", 2);
    buffer.append(comment);
    end_line();
}

/// Tells where a load file begins and ends. The first coup of a file carries its name.
void system_output::write_load_file_marks()
{
    const QString& name = numbers.get_load_file_name();
    if (name == last_load_file) {
        if (!comment.isEmpty()) comment.clear();
        return;
    }
    if (!last_load_file.isEmpty()) write_end_mark();
    last_load_file = name;
    comment        = name.toUtf8();
    if (name.isEmpty()) return;
    const QString& description = numbers.load_settings().description;
    if (!description.isEmpty()) write_remark(description.toUtf8());
}

void system_output::write_end_mark()
{
    write_remark("Ende " + last_load_file.toUtf8());
}

/// A line with nothing in the columns of the table.
void system_output::write_remark(const QByteArray& remark)
{
    buffer.append(table_width + 2, fill);
    buffer.append(remark);
    end_line();
}

void system_output::end_line()
{
    buffer.append('\n');
    if (flushing == protocol_flushing::line_by_line || buffer.size() >= block_size) flush();
}

void system_output::flush()
{
    if (buffer.isEmpty() || !file.isOpen()) return;
    if (file.write(buffer) != buffer.size()) write_failed = true;
    buffer.resize(0);
}

void system_output::close()
{
    flush();
    file.close();
}
