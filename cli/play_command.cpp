#include "play_command.h"

#include "command_settings.h"
#include "console.h"
#include "exit_status.h"
#include "headless_game.h"
#include "output_device.h"
#include "play_options.h"
#include "progress_bar.h"
#include "run_summary.h"

#include <QCommandLineParser>
#include <QJsonDocument>
#include <QSaveFile>

using general_player::player_names;

static int refuse(const QString& fault)
{
    console::print_error(QStringLiteral("zarvello-cli: %1\n").arg(fault));
    return exit_status::usage;
}

/// Numbers of all files together, 0 where that is not known beforehand.
static qint64 expected_coups(const play_request& request, const setting& settings)
{
    if (!request.numbers.active) return request.random_count;
    numberStorage counter(settings);
    qint64 sum = 0;
    for (const QString& path : request.numbers.files)
        sum += counter.count_load_file_numbers(path);
    return sum;
}

static QString write_fault(const QString& path, const QFileDevice& file)
{
    return QStringLiteral("cannot write %1: %2").arg(path, file.errorString());
}

static bool write_all(QFileDevice& file, QIODevice::OpenMode mode, const QByteArray& text)
{
    return file.open(mode) && file.write(text) == text.size() && file.flush();
}

/// A file is replaced as a whole; a device or pipe is written to, never replaced.
static QString write_summary(const QString& path, const headless_game& game)
{
    const QByteArray text = QJsonDocument(run_summary::to_json(game)).toJson();
    if (is_output_device(path)) {
        QFile device(path);
        return write_all(device, device_mode(path), text) ? QString() : write_fault(path, device);
    }
    QSaveFile file(path);
    return write_all(file, QIODevice::WriteOnly, text) && file.commit() ? QString()
                                                                        : write_fault(path, file);
}

/// "FILE:LINE: error: TEXT" for every system that ended with one. Returns whether there was any.
static bool print_system_errors(const play_request& request, const headless_game& game)
{
    bool any = false;
    for (std::size_t i = 0; i < request.systems.size(); ++i) {
        const auto& figures = game.figures_of(static_cast<player_names>(i));
        if (!figures || figures->end != run_end::error) continue;
        any = true;
        console::print_error(QStringLiteral("%1:%2: error: %3\n")
                                 .arg(request.systems[i])
                                 .arg(figures->end_info.error_line)
                                 .arg(figures->end_info.error_text));
    }
    return any;
}

/// What the files hold that was not played as it stands.
class number_oddities
{
public:
    explicit number_oddities(const numberStorage& numbers)
    {
        QObject::connect(
            &numbers, &numberStorage::load_file_illegal_number_found, [this] { ++illegal; });
        QObject::connect(
            &numbers, &numberStorage::load_file_warning_00_on_franz_table, [this] { ++zeros; });
    }

    void print() const
    {
        if (illegal > 0) {
            console::print_error(
                QStringLiteral("warning: %1 numbers above 36 were left out\n").arg(illegal));
        }
        if (zeros > 0) {
            console::print_error(
                QStringLiteral("warning: %1 times 00 was played as 0 on the French table\n")
                    .arg(zeros));
        }
    }

private:
    qint64 illegal = 0;
    qint64 zeros = 0;
};

static int play(const play_request& request, setting& settings)
{
    headless_game game(request, settings);
    const number_oddities oddities(game.numbers());
    QString fault = game.prepare();
    if (!fault.isEmpty()) return refuse(fault);
    if (!request.is_quiet && console::error_is_terminal()) {
        progress_bar bar(expected_coups(request, settings));
        fault = game.play([&](qint64 coups) { bar.show(coups); });
    } else {
        fault = game.play();
    }
    if (!request.is_quiet) {
        oddities.print();
        console::print(run_summary::to_table(game));
    }
    const bool any_error = print_system_errors(request, game);
    if (fault.isEmpty() && !request.summary_file.isEmpty()) {
        fault = write_summary(request.summary_file, game);
    }
    if (!fault.isEmpty()) return refuse(fault);
    return any_error ? exit_status::system_error : exit_status::all_right;
}

int run_play_command(const QStringList& arguments)
{
    QCommandLineParser parser;
    parser.setApplicationDescription(
        QStringLiteral("Lets up to four systems play recorded or random numbers."));
    parser.addHelpOption();
    play_options::declare(parser);
    if (!parser.parse(arguments)) return refuse(parser.errorText());
    if (parser.isSet(QStringLiteral("help"))) {
        console::print(parser.helpText());
        return exit_status::all_right;
    }
    if (!parser.positionalArguments().isEmpty()) {
        return refuse(QStringLiteral("unexpected argument: %1")
                          .arg(parser.positionalArguments().join(QLatin1Char(' '))));
    }
    play_request request;
    setting settings;
    QString fault = play_options::read(parser, request);
    if (fault.isEmpty()) {
        fault = command_settings::apply(settings, request.settings_file, request.changed_settings);
    }
    return fault.isEmpty() ? play(request, settings) : refuse(fault);
}
