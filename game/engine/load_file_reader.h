#ifndef LOAD_FILE_READER_H
#define LOAD_FILE_READER_H

#include "game_types.h"
#include "load_file_types.h"

#include <QDate>
#include <QStringView>

#include <functional>
#include <vector>

class QIODevice;

/// What a load file is read for.
enum class reading_mode {
    play = 0,    ///< its numbers are played
    history = 1, ///< date lines choose the blocks of a year file
    count = 2    ///< only its numbers are counted
};

/// What a read depends on besides the file.
struct reading_rules {
    reading_mode mode = reading_mode::play;
    QString hand_change_mark = QStringLiteral("-");
    table_form form = table_form::french;
    QDate first_date;          ///< history only: blocks that began before this day are left out
    bool skip_by_date = false; ///< number lines are ignored until a date line clears the flag
};

/// What a read yields.
struct load_file_result {
    std::vector<quint8> numbers; ///< 0 to 36, 37 for the double zero, 99 for a hand change
    load_file_info info;
    int double_zero_warnings = 0;    ///< texts "00" that counted as 0 on the French table
    std::vector<int> illegal_values; ///< values above 36 in the file's order; none is in the list
    bool skip_by_date = false;       ///< the flag as the read leaves it
};

/**
 * Reads load files and year files: text files of recorded numbers.
 *
 * Lines are trimmed, empty ones skipped. A line with a letter from A to Z is text, the last one
 * describes the file. Any other line that begins with the hand change mark is a hand change. The
 * rest are numbers, parted by single blanks: digits only, "00" is the double zero.
 *
 * Text is taken in the codec of the locale, or in the Unicode encoding whose mark begins the
 * file. A file is read in blocks; lines may have any length; no content is an error.
 */
class load_file_reader
{
public:
    /// @param before_line  called before each line when set; a window keeps itself alive with it
    explicit load_file_reader(const reading_rules& reading, std::function<void()> line_hook = {});

    /// Reads the file behind the numbers of those before it. A path that names no file that can
    /// be read adds nothing; `file_name` is then set only if the path exists.
    void read_file(const QString& path);

    /// As `read_file`, from an open device.
    void read_device(QIODevice& device);

    /// Everything read so far.
    const load_file_result& result();

private:
    void read_blocks(QIODevice& device);
    void read_unicode(QIODevice& device);
    void take_bytes(const char* begin, const char* end);
    bool take_plain_line(const char* begin, const char* end);
    void decode(const char* begin, const char* end);
    void take_line(QStringView line);
    void take_date_line(QStringView line);
    void take_number_line(QStringView line);
    bool take_number(QStringView part);

    reading_rules rules;
    std::function<void()> before_line;
    load_file_result yield;
    std::vector<char16_t> wide_line; // reused for every line
    size_t wide_size = 0;            // characters of it in use
};

/// Reads the files in order into one list.
load_file_result read_load_files(const QStringList& files,
                                 const reading_rules& rules,
                                 const std::function<void()>& before_line = {});

/// What a collection load file names.
struct load_file_collection {
    bool is_read = false;  ///< the file could be read
    QString description;   ///< last comment line, empty if none
    QStringList not_found; ///< paths that do not exist, in the file's order
    QStringList found;     ///< paths that exist, in the file's order
};

/// A line of a collection that holds "(*" anywhere or begins with "//".
bool is_collection_comment(const QString& line);

/// The path that a line of a collection names: a line without ":" is relative to the folder.
QString collection_path(const QString& line, const QString& folder);

/// Sorts the lines of a collection; the existence of a path is asked of the function.
load_file_collection collect_load_files(const QStringList& lines,
                                        const QString& folder,
                                        const std::function<bool(const QString&)>& exists);

/// Reads a collection load file.
load_file_collection read_load_file_collection(const QString& path);

#endif // LOAD_FILE_READER_H
