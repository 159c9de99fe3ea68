#include "load_file_reader.h"

#include <QFile>
#include <QFileInfo>
#include <QTextCodec>
#include <QTextStream>

#include <algorithm>
#include <cstring>
#include <limits>
#include <memory>

static constexpr int block_size = 64 * 1024;          // bytes read at once
static constexpr int decoding_size = 1024 * 1024;     // bytes decoded at once
static constexpr int longest_description = 1'000'000; // characters kept of a text line
static constexpr int longest_date = 100;              // characters of a day in a header
static constexpr int most_date_parts = 4;             // month names of some languages have blanks
static constexpr int highest_number = 36;             // above it a value in a file is illegal
static constexpr int value_limit = std::numeric_limits<int>::max(); // of longer digit texts

/// A letter from A to Z in either case, or a foreign one whose other case is such a letter: the
/// dotless i, the long s and the Kelvin sign.
static bool is_letter(QChar character)
{
    const char16_t code = character.unicode();
    if (code >= 0x80) return code == 0x131 || code == 0x17F || code == 0x212A;
    const char16_t lower_case = static_cast<char16_t>(code | 0x20);
    return lower_case >= u'a' && lower_case <= u'z';
}

/// A digit of any script, which makes a part a number; only 0 to 9 give it a value.
static bool is_digit(QChar character)
{
    return character.isDigit();
}

static QString description_of(QStringView line)
{
    return line.left(std::min<qsizetype>(line.size(), longest_description)).toString();
}

/// The value of a text of digits; `value_limit` for one that does not read as an int.
static int value_of(QStringView digits)
{
    qint64 value = 0;
    for (const QChar digit : digits) {
        if (digit > QLatin1Char('9')) return value_limit;
        value = value * 10 + (digit.unicode() - u'0');
        if (value >= value_limit) return value_limit;
    }
    return static_cast<int>(value);
}

static QStringView text_before(QStringView text, QChar mark)
{
    const qsizetype place = text.indexOf(mark);
    return place < 0 ? text : text.left(place);
}

/// The day that the header of a block in a year file names; invalid if it can't be read.
static QDate date_of(QStringView line)
{
    const QStringView weekday = text_before(line, QLatin1Char(','));
    if (weekday.size() == line.size()) return {};
    const QStringView behind = line.mid(weekday.size() + 1);
    const QStringView moment = text_before(behind, QLatin1Char(',')).trimmed();
    qsizetype day_size = 0;
    for (int part = 0; part < most_date_parts && day_size < moment.size(); ++part) {
        if (part > 0) ++day_size; // the blank
        day_size += text_before(moment.mid(day_size), QLatin1Char(' ')).size();
        if (day_size > longest_date) break;
        const QString day = moment.left(day_size).toString();
        const QDate date = QDate::fromString(day, QStringLiteral("dd.MMMM.yyyy"));
        if (date.isValid()) return date;
    }
    return {};
}

load_file_reader::load_file_reader(const reading_rules& reading, std::function<void()> line_hook)
    : rules(reading)
    , before_line(std::move(line_hook))
{
}

// Pipes and devices are left alone: they may never end.
void load_file_reader::read_file(const QString& path)
{
    const QFileInfo place(path);
    if (!place.exists()) return;
    yield.info.file_name = path;
    if (!place.isFile()) return;

    QFile file(path);
    if (file.open(QIODevice::ReadOnly)) read_device(file);
}

void load_file_reader::read_device(QIODevice& device)
{
    const bool has_unicode_mark = QTextCodec::codecForUtfText(device.peek(4), nullptr) != nullptr;
    if (has_unicode_mark) {
        read_unicode(device);
    } else {
        read_blocks(device);
    }
}

const load_file_result& load_file_reader::result()
{
    yield.info.numbers = static_cast<int>(yield.numbers.size()) - yield.info.hand_changes;
    yield.skip_by_date = rules.skip_by_date;
    return yield;
}

void load_file_reader::read_unicode(QIODevice& device)
{
    QTextStream stream(&device);
    QString line;
    while (stream.readLineInto(&line)) {
        if (before_line) before_line();
        take_line(line);
    }
}

// A block ends in the middle of a line; the begin of that line waits for the next block.
void load_file_reader::read_blocks(QIODevice& device)
{
    QByteArray block(block_size, Qt::Uninitialized);
    std::vector<char> begun_line;
    for (;;) {
        const qint64 size = device.read(block.data(), block_size);
        if (size <= 0) break;
        const char* begin = block.constData();
        const char* const end = begin + size;
        while (const void* found = memchr(begin, '\n', static_cast<size_t>(end - begin))) {
            const char* const line_end = static_cast<const char*>(found);
            if (begun_line.empty()) {
                take_bytes(begin, line_end);
            } else {
                begun_line.insert(begun_line.end(), begin, line_end);
                take_bytes(begun_line.data(), begun_line.data() + begun_line.size());
                begun_line.clear();
            }
            begin = line_end + 1;
        }
        begun_line.insert(begun_line.end(), begin, end);
    }
    if (!begun_line.empty()) take_bytes(begun_line.data(), begun_line.data() + begun_line.size());
}

void load_file_reader::take_bytes(const char* begin, const char* end)
{
    if (before_line) before_line();
    if (take_plain_line(begin, end)) return;
    wide_size = static_cast<size_t>(end - begin);
    if (wide_line.size() < wide_size) wide_line.resize(wide_size);
    char16_t all_bits = 0;
    for (size_t place = 0; place < wide_size; ++place) {
        const char16_t character = static_cast<unsigned char>(begin[place]);
        wide_line[place] = character;
        all_bits = static_cast<char16_t>(all_bits | character);
    }
    const bool is_ascii = all_bits < 0x80;
    if (!is_ascii) decode(begin, end);
    take_line(QStringView(wide_line.data(), static_cast<qsizetype>(wide_size)));
}

/// Takes a line of nothing but short numbers and blanks, as nearly all lines of large files are,
/// straight from its bytes. Any other line is left alone: false, and nothing is taken.
bool load_file_reader::take_plain_line(const char* begin, const char* end)
{
    constexpr int longest_number = 2;
    const bool mark_is_no_number = rules.hand_change_mark.startsWith(QLatin1Char('-'));
    if (rules.skip_by_date || !mark_is_no_number) return false;

    const size_t numbers_before = yield.numbers.size();
    int value = 0;
    int digits = 0;
    for (const char* place = begin;; ++place) {
        const bool at_end = place == end || (*place == '\r' && place + 1 == end);
        if (!at_end && *place >= '0' && *place <= '9') {
            value = 10 * value + (*place - '0');
            if (++digits <= longest_number) continue;
        }
        const bool is_blank = at_end || *place == ' ';
        const bool is_double_zero = digits == 2 && value == 0;
        if (!is_blank || value > highest_number || is_double_zero) {
            yield.numbers.resize(numbers_before);
            return false;
        }
        if (digits > 0) yield.numbers.push_back(static_cast<quint8>(value));
        if (at_end) return true;
        value = 0;
        digits = 0;
    }
}

void load_file_reader::decode(const char* begin, const char* end)
{
    const std::unique_ptr<QTextDecoder> decoder(
        QTextCodec::codecForLocale()->makeDecoder(QTextCodec::IgnoreHeader));
    wide_size = 0;
    while (begin != end) {
        const qsizetype size = std::min<qsizetype>(end - begin, decoding_size);
        const QString text = decoder->toUnicode(begin, static_cast<int>(size));
        const size_t text_size = static_cast<size_t>(text.size());
        if (wide_line.size() < wide_size + text_size) wide_line.resize(wide_size + text_size);
        std::copy_n(text.utf16(), text_size, wide_line.begin() + static_cast<qsizetype>(wide_size));
        wide_size += text_size;
        begin += size;
    }
    if (!decoder->needsMoreData()) return;
    if (wide_line.size() < wide_size + 1) wide_line.resize(wide_size + 1);
    wide_line[wide_size++] = QChar::ReplacementCharacter; // the line broke off in a character
}

void load_file_reader::take_line(QStringView line)
{
    line = line.trimmed();
    if (line.isEmpty()) return;
    if (std::any_of(line.begin(), line.end(), is_letter)) {
        yield.info.description = description_of(line);
        const bool is_date_line = line.front() == QLatin1Char(':');
        if (is_date_line && rules.mode == reading_mode::history) take_date_line(line);
        return;
    }
    if (line.startsWith(rules.hand_change_mark)) {
        yield.numbers.push_back(number_code::hand_change);
        ++yield.info.hand_changes;
        return;
    }
    if (!rules.skip_by_date) take_number_line(line);
}

// A date that can't be read lies before every day.
void load_file_reader::take_date_line(QStringView line)
{
    rules.skip_by_date = date_of(line) < rules.first_date;
}

void load_file_reader::take_number_line(QStringView line)
{
    bool is_clean = true;
    const QChar* part = line.begin();
    while (part != line.end()) {
        const QChar* const part_end = std::find(part, line.end(), QLatin1Char(' '));
        if (part != part_end) is_clean &= take_number(QStringView(part, part_end));
        part = part_end == line.end() ? part_end : part_end + 1;
    }
    if (!is_clean) yield.info.description = description_of(line);
}

/// False for a part that is no number.
bool load_file_reader::take_number(QStringView part)
{
    if (!std::all_of(part.begin(), part.end(), is_digit)) return false;
    const bool is_double_zero = part.size() == 2 && part[0] == part[1] && part[0] == u'0';
    if (is_double_zero && rules.form == table_form::american) {
        yield.numbers.push_back(number_code::double_zero);
        return true;
    }
    if (is_double_zero) ++yield.double_zero_warnings;

    const int value = value_of(part);
    if (value > highest_number) {
        yield.illegal_values.push_back(value);
    } else {
        yield.numbers.push_back(static_cast<quint8>(value));
    }
    return true;
}

load_file_result read_load_files(const QStringList& files,
                                 const reading_rules& rules,
                                 const std::function<void()>& before_line)
{
    load_file_reader reader(rules, before_line);
    for (const QString& file : files)
        reader.read_file(file);
    return reader.result();
}

bool is_collection_comment(const QString& line)
{
    return line.contains(QLatin1String("(*")) || line.startsWith(QLatin1String("//"));
}

QString collection_path(const QString& line, const QString& folder)
{
    return line.contains(QLatin1Char(':')) ? line : folder + QLatin1Char('/') + line;
}

load_file_collection collect_load_files(const QStringList& lines,
                                        const QString& folder,
                                        const std::function<bool(const QString&)>& exists)
{
    load_file_collection collection;
    collection.is_read = true;
    for (const QString& line : lines) {
        if (is_collection_comment(line)) {
            collection.description = line;
            continue;
        }
        const QString path = collection_path(line, folder);
        (exists(path) ? collection.found : collection.not_found).append(path);
    }
    return collection;
}

load_file_collection read_load_file_collection(const QString& path)
{
    const QFileInfo place(path);
    QFile file(path);
    if (!place.isFile() || !file.open(QIODevice::ReadOnly)) return {};

    QTextStream stream(&file);
    QStringList lines;
    QString line;
    while (stream.readLineInto(&line))
        lines.append(line);
    return collect_load_files(
        lines, place.absolutePath(), [](const QString& named) { return QFileInfo::exists(named); });
}
