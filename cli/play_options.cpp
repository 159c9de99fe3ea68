#include "play_options.h"

#include "load_file_reader.h"
#include "readable_file.h"

#include <QCommandLineParser>
#include <QFileInfo>
#include <QRegularExpression>

namespace
{

/// An option value "[N:]FILE".
struct player_file {
    std::size_t player = 0;
    QString path;
    QString fault;
};

player_file read_player_file(const QString& option, const QString& value)
{
    static const QRegularExpression with_player(QStringLiteral("^(\\d+):(.*)$"));
    player_file file;
    file.path = value;
    const auto match = with_player.match(value);
    if (match.hasMatch()) {
        const int number = match.captured(1).toInt();
        if (number < 1 || number > general_player::player_count) {
            file.fault = QStringLiteral("--%1 %2: the player must be 1 to 4").arg(option, value);
            return file;
        }
        file.player = static_cast<std::size_t>(number - 1);
        file.path = match.captured(2);
    }
    if (file.path.isEmpty()) file.fault = QStringLiteral("--%1: no file is named").arg(option);
    return file;
}

/// Spreads "[N:]FILE" values over the players.
QString read_player_files(const QCommandLineParser& parser,
                          const QString& option,
                          play_request::per_player<QString>& files)
{
    for (const QString& value : parser.values(option)) {
        const player_file file = read_player_file(option, value);
        if (!file.fault.isEmpty()) return file.fault;
        if (!files[file.player].isEmpty()) {
            return QStringLiteral("--%1 is given twice for player %2")
                .arg(option)
                .arg(file.player + 1);
        }
        files[file.player] = file.path;
    }
    return {};
}

QString read_collection(const QString& path, load_file_settings& numbers, QStringList& files)
{
    const load_file_collection collection = read_load_file_collection(path);
    if (!collection.not_found.isEmpty()) {
        return QStringLiteral("%1: file not found: %2")
            .arg(path, collection.not_found.join(QLatin1String(", ")));
    }
    if (collection.found.isEmpty()) return QStringLiteral("%1: no load file is named").arg(path);
    files += collection.found;
    numbers.group_file = path;
    numbers.group_file_count = collection.found.size();
    numbers.description = collection.description;
    return {};
}

/// Checks the files and puts collections in the place of their name.
QString read_number_files(const QStringList& paths, load_file_settings& numbers)
{
    QStringList files;
    for (const QString& path : paths) {
        QString fault = readable_file::fault_of(path);
        if (fault.isEmpty() && path.endsWith(QLatin1String(".snp"), Qt::CaseInsensitive)) {
            fault = read_collection(path, numbers, files);
        } else {
            files.append(path);
        }
        if (!fault.isEmpty()) return fault;
    }
    while (files.size() < general_loadfile::file_place_count)
        files.append(QString());
    numbers.files = files;
    numbers.active = true;
    return {};
}

QString read_source(const QCommandLineParser& parser, play_request& request)
{
    const bool has_files = parser.isSet(QStringLiteral("numbers"));
    const bool has_random = parser.isSet(QStringLiteral("random"));
    if (has_files == has_random) {
        return QStringLiteral("either --numbers or --random must be given");
    }
    if (has_files) {
        const QString fault =
            read_number_files(parser.values(QStringLiteral("numbers")), request.numbers);
        if (!fault.isEmpty()) return fault;
    } else {
        bool is_number = false;
        const QString text = parser.value(QStringLiteral("random"));
        request.random_count = text.toLongLong(&is_number);
        if (!is_number || request.random_count < 0) {
            return QStringLiteral("--random %1: not a number of coups").arg(text);
        }
    }
    if (!parser.isSet(QStringLiteral("start"))) return {};
    if (!has_files) return QStringLiteral("--start goes with --numbers");
    const QString start = parser.value(QStringLiteral("start"));
    if (play_options::read_start(start, request.numbers)) return {};
    return QStringLiteral(
               "--start %1: expected normal, fix:N, random1:A-B or random2:ATTACKS,LENGTH")
        .arg(start);
}

QString read_seed(const QCommandLineParser& parser, play_request& request)
{
    if (!parser.isSet(QStringLiteral("seed"))) return {};
    bool is_number = false;
    const QString text = parser.value(QStringLiteral("seed"));
    request.seed = text.toUInt(&is_number);
    return is_number ? QString() : QStringLiteral("--seed %1: not a number of 32 bits").arg(text);
}

QString check_systems(const play_request& request)
{
    bool any = false;
    for (std::size_t i = 0; i < request.systems.size(); ++i) {
        if (request.systems[i].isEmpty()) {
            if (request.protocols[i].isEmpty()) continue;
            return QStringLiteral("--protocol for player %1, who has no --system").arg(i + 1);
        }
        any = true;
        const QString fault = readable_file::fault_of(request.systems[i]);
        if (!fault.isEmpty()) return fault;
    }
    return any ? QString() : QStringLiteral("no --system is given");
}

} // namespace

void play_options::declare(QCommandLineParser& parser)
{
    // clang-format off
    parser.addOptions({
        {"system",   "System file of player N, 1 when left out; once per player.", "[N:]FILE"},
        {"numbers",  "File with recorded numbers (.inp, .snp or a year file); more follow it.", "FILE"},
        {"random",   "Play COUNT coups of the generator instead.", "COUNT"},
        {"protocol", "Write the protocol of player N; it is written on at its end.", "[N:]FILE"},
        {"settings", "Settings file; without it all defaults hold.", "FILE.ini"},
        {"set",      "Set one key over the settings file.", "KEY=VALUE"},
        {"start",    "Where to begin in each file: normal, fix:N, random1:A-B or random2:ATTACKS,LENGTH.", "MODE"},
        {"seed",     "Make the generator and the random starts repeatable.", "S"},
        {"trace",    "Write one JSON object a line for each coup and player.", "FILE"},
        {"summary",  "Write the figures of the run as one JSON object.", "FILE"},
        {"quiet",    "No table on standard output and no progress."},
    });
    // clang-format on
}

QString play_options::read(const QCommandLineParser& parser, play_request& request)
{
    request.settings_file = parser.value(QStringLiteral("settings"));
    request.changed_settings = parser.values(QStringLiteral("set"));
    request.trace_file = parser.value(QStringLiteral("trace"));
    request.summary_file = parser.value(QStringLiteral("summary"));
    request.is_quiet = parser.isSet(QStringLiteral("quiet"));

    QString fault = read_player_files(parser, QStringLiteral("system"), request.systems);
    if (fault.isEmpty()) {
        fault = read_player_files(parser, QStringLiteral("protocol"), request.protocols);
    }
    if (fault.isEmpty()) fault = check_systems(request);
    if (fault.isEmpty()) fault = read_source(parser, request);
    if (fault.isEmpty()) fault = read_seed(parser, request);
    return fault;
}

bool play_options::read_start(const QString& text, load_file_settings& numbers)
{
    static const QRegularExpression fix(QStringLiteral("^fix:(\\d{1,9})$"));
    static const QRegularExpression random_1(QStringLiteral("^random1:(\\d{1,9})-(\\d{1,9})$"));
    static const QRegularExpression random_2(QStringLiteral("^random2:(\\d{1,9}),(\\d{1,9})$"));

    if (text == QLatin1String("normal")) {
        numbers.start_mode = general_loadfile::NORMAL_START;
        return true;
    }
    if (const auto match = fix.match(text); match.hasMatch()) {
        numbers.start_mode = general_loadfile::FIX_START;
        numbers.fix_start = match.captured(1).toInt();
        return numbers.fix_start > 0;
    }
    if (const auto match = random_1.match(text); match.hasMatch()) {
        numbers.start_mode = general_loadfile::RANDOM_START_1;
        numbers.random_1_begin = match.captured(1).toInt();
        numbers.random_1_end = match.captured(2).toInt();
        return numbers.random_1_begin > 0 && numbers.random_1_end >= numbers.random_1_begin;
    }
    if (const auto match = random_2.match(text); match.hasMatch()) {
        numbers.start_mode = general_loadfile::RANDOM_START_2;
        numbers.random_2_max_attack = match.captured(1).toInt();
        numbers.random_2_length = match.captured(2).toInt();
        return numbers.random_2_max_attack > 0 && numbers.random_2_length > 0;
    }
    return false;
}
