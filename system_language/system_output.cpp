#include "system_output.h"

#include "numberstorage.h"
#include "player_accounting.h"
#include "setting.h"

#include <array>
#include <charconv>
#include <cstring>

static constexpr int number_width = 3;
static constexpr int figure_width = 12;
static constexpr int table_width = number_width + 3 * figure_width;
static constexpr int block_size = 1 << 16; // bytes that are written at once
static constexpr char fill = ' ';

namespace
{

/// A line of the table, put together in place: the figures of a coup are on the path of every
/// coup. A column is as wide as told, or as its text where that is longer.
class table_line
{
public:
    void append(const char* text, int length, int width)
    {
        for (; width > length; --width)
            *end++ = fill;
        std::memcpy(end, text, static_cast<std::size_t>(length));
        end += length;
    }

    void append_figure(qint64 figure)
    {
        if (figure <= -narrow_limit || figure >= narrow_limit) {
            append_wide_figure(figure);
            return;
        }
        std::memset(end, fill, figure_width);
        end += figure_width;
        char* place = end;
        auto rest = static_cast<quint64>(figure < 0 ? -figure : figure);
        for (; rest >= 10; rest /= 10)
            *--place = static_cast<char>('0' + rest % 10);
        *--place = static_cast<char>('0' + rest);
        if (figure < 0) *--place = '-';
    }

    void append_number(int number, bool is_manual)
    {
        *end++ = is_manual ? '*' : fill;
        *end++ = static_cast<char>('0' + number / 10);
        *end++ = static_cast<char>('0' + number % 10);
    }

    const char* data() const { return characters.data(); }
    int length() const { return static_cast<int>(end - characters.data()); }

private:
    void append_wide_figure(qint64 figure)
    {
        std::array<char, longest_figure> digits;
        const auto last = std::to_chars(digits.data(), digits.data() + digits.size(), figure).ptr;
        append(digits.data(), static_cast<int>(last - digits.data()), figure_width);
    }

    static constexpr qint64 narrow_limit = 100000000000; // 11 digits and a sign fit a column
    static constexpr int longest_figure = 20;            // digits and sign of a qint64
    static constexpr int line_end = 3;                   // two blanks and the end of the line

    std::array<char, number_width + 3 * longest_figure + line_end> characters;
    char* end = characters.data();
};

} // namespace

static void append_right(QByteArray& line, const char* text, int width)
{
    line.append(QByteArray(text).rightJustified(width, fill));
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

bool system_output::open(qint64 coups_so_far)
{
    counted_coups = coups_so_far;
    file.setFileName(settings.s_user_out_file(player));
    const bool was_there = file.exists();
    write_failed = !file.open(QIODevice::WriteOnly | QIODevice::Append | QIODevice::Text |
                              QIODevice::Unbuffered);
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
    if (!file.isOpen()) return;
    const bool is_new_coup = status.counted_coups > counted_coups; // fewer: emptied
    counted_coups = status.counted_coups;
    const std::vector<quint8>& thrown = numbers.history().thrown();
    if (!is_new_coup || thrown.empty()) return;
    write_load_file_marks();
    table_line line;
    line.append_number(thrown.back(), manual_number);
    manual_number = false;
    line.append_figure(status.last_score - status.last_seeded);
    line.append_figure(status.last_seeded);
    line.append_figure(status.last_credit);
    line.append("  ", 2, 2);
    if (comment.isEmpty()) {
        line.append("\n", 1, 1);
        buffer.append(line.data(), line.length());
        flush_when_due();
        return;
    }
    buffer.append(line.data(), line.length());
    buffer.append(comment);
    end_line();
}

/// Tells where a load file begins and ends. The first coup of a file carries its name.
void system_output::write_load_file_marks()
{
    const QString& name = numbers.get_load_file_name();
    const bool is_same = name.constData() == last_load_file.constData() || name == last_load_file;
    if (is_same) {
        if (!comment.isEmpty()) comment.clear();
        return;
    }
    if (!last_load_file.isEmpty()) write_end_mark();
    last_load_file = name;
    comment = name.toUtf8();
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
    flush_when_due();
}

void system_output::flush_when_due()
{
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
