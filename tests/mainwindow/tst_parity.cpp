// The desktop and the runner play the same run: every folder of tests/runs/ is played in the real
// window as a super short game, and the protocols and the bets of every coup are compared with what
// the runner leaves.

#include "command_settings.h"
#include "desktop_bench.h"
#include "headless_game.h"
#include "jetons.h"
#include "play_options.h"
#include "run_folder.h"

#include <QCommandLineParser>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QLoggingCategory>
#include <QMap>

using namespace run_folder;

namespace
{

/// Bets as they are shown ("2 / EC 1-18"), by coup and player; coups and players without a bet are
/// left out.
using bet_log = QMap<QPair<qint64, int>, QStringList>;

QByteArray contents_of(const QString& file)
{
    QFile source(file);
    return source.open(QIODevice::ReadOnly) ? source.readAll() : QByteArray("(missing)");
}

QString shown_bet(int amount, const QString& place)
{
    return QStringLiteral("%1 / %2").arg(amount).arg(place);
}

QString shown_place(const QString& key)
{
    const jetons::jeton_names jeton = jetons::value_of(key);
    if (jeton != jetons::NO_JETON) return jetons::instance().display_text(jeton);
    return jetons::instance().display_text(jetons::ext_value_of(key));
}

QStringList options_of(const QDir& folder)
{
    QStringList options{QStringLiteral("play")};
    for (const run_seat& seat : seats_of(folder)) {
        options << QStringLiteral("--system")
                << QStringLiteral("%1:%2").arg(seat.player).arg(seat.system);
        options << QStringLiteral("--protocol")
                << QStringLiteral("%1:%2").arg(seat.player).arg(seat.played);
    }
    for (const QString& file : number_files_of(folder))
        options << QStringLiteral("--numbers") << file;
    if (folder.exists(QStringLiteral("settings.ini")))
        options << QStringLiteral("--settings") << QStringLiteral("settings.ini");
    options << QStringLiteral("--trace") << QStringLiteral("trace.json");
    return options;
}

play_request request_of(const QDir& folder)
{
    QCommandLineParser parser;
    play_options::declare(parser);
    play_request request;
    if (!parser.parse(options_of(folder))) qFatal("%s", qPrintable(parser.errorText()));
    const QString fault = play_options::read(parser, request);
    if (!fault.isEmpty()) qFatal("%s", qPrintable(fault));
    return request;
}

/// Plays by the runner. Returns the bets.
bet_log play_headless(const QDir& folder)
{
    const play_request request = request_of(folder);
    setting settings;
    command_settings::apply(settings, request.settings_file, request.changed_settings);
    {
        headless_game game(request, settings);
        QString fault = game.prepare();
        if (fault.isEmpty()) fault = game.play();
        if (!fault.isEmpty()) qFatal("%s", qPrintable(fault));
    }
    bet_log log;
    const QList<QByteArray> lines = contents_of(QStringLiteral("trace.json")).split('\n');
    for (const QByteArray& line : lines) {
        const QJsonObject object = QJsonDocument::fromJson(line).object();
        const QJsonArray bets = object.value(QStringLiteral("bets")).toArray();
        for (const QJsonValue& bet : bets) {
            const auto coup = static_cast<qint64>(object.value(QStringLiteral("coup")).toDouble());
            log[{coup, object.value(QStringLiteral("player")).toInt()}].append(
                shown_bet(bet[QStringLiteral("amount")].toInt(),
                          shown_place(bet[QStringLiteral("jeton")].toString())));
        }
    }
    return log;
}

/// Listens to a window: which bets lie when the ball is thrown.
class bet_watch : public QObject
{
public:
    explicit bet_watch(const MainWindow& window)
    {
        connect(&window,
                &MainWindow::display_set_on_monitor,
                this,
                [this](general_player::player_names player, int amount, const QString& place) {
                    pending[player + 1].append(shown_bet(amount, place));
                });
        connect(&window,
                &MainWindow::system_monitor_action,
                this,
                [this](general_player::player_names player, const QString& action) {
                    if (action == QStringLiteral("SysReset durchgeführt"))
                        pending.remove(player + 1);
                });
        connect(&window, &MainWindow::start_throw, this, [this] { close_coup(); });
    }

    bet_log take()
    {
        close_coup();
        return log;
    }

private:
    void close_coup()
    {
        ++coup;
        for (auto bets = pending.cbegin(); bets != pending.cend(); ++bets)
            if (!bets.value().isEmpty()) log[{coup, bets.key()}] = bets.value();
        pending.clear();
    }

    bet_log log;
    QMap<int, QStringList> pending;
    qint64 coup = 0;
};

QStringList lines_of_settings()
{
    QStringList lines{QStringLiteral("s_balkenzeit=5000"),
                      QStringLiteral("s_su_shortthrow_activ=false")};
    const QList<QByteArray> own = contents_of(QStringLiteral("settings.ini")).split('\n');
    for (const QByteArray& line : own) {
        if (line.contains('=')) lines.append(QString::fromUtf8(line.trimmed()));
    }
    return lines;
}

void call(MainWindow& window, const char* slot, int player)
{
    const auto who = static_cast<general_player::player_names>(player - 1);
    if (!QMetaObject::invokeMethod(&window, slot, Q_ARG(general_player::player_names, who)))
        qFatal("no slot %s", slot);
}

/// Plays in the window. Returns the bets.
bet_log play_on_desktop(const QDir& folder, box_user& user)
{
    desktop_bench bench(lines_of_settings());
    bet_watch watch(*bench.window);
    load_file_settings numbers = request_of(folder).numbers;
    numbers.pause_at_end = true;
    bench.numbers().set_load_files(numbers);
    const QList<run_seat> seats = seats_of(folder);
    for (const run_seat& seat : seats) {
        const auto player = static_cast<general_player::player_names>(seat.player - 1);
        bench.settings().set_s_user_sys_file(player, seat.system);
        bench.settings().set_s_user_out_file(player, seat.played);
        call(*bench.window, "dia_system_start", seat.player);
    }
    for (const run_seat& seat : seats)
        call(*bench.window, "dia_output_start", seat.player);
    bench.trigger("actionStart");
    QMetaObject::invokeMethod(bench.window.get(), "activate_supershort_game", Q_ARG(int, 0));
    for (int i = 0; i < 200000 && bench.numbers().load_active(); ++i)
        bench.fire_all({QStringLiteral("count_timer"), QStringLiteral("pause_poll_timer")});
    if (bench.numbers().load_active()) qFatal("the run does not end");
    bench.settle();
    for (const run_seat& seat : seats)
        call(*bench.window, "dia_output_stop", seat.player);
    bench.settle();
    user.forget(); // the ends of load files and systems, messages
    return watch.take();
}

} // namespace

class tst_parity : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void desktop_and_runner_agree_data();
    void desktop_and_runner_agree();
    void bets_were_compared();

private:
    box_user user;
    int bets_compared = 0; // over all runs
};

void tst_parity::initTestCase()
{
    qRegisterMetaType<general_player::player_names>("general_player::player_names");
    // Some runs are about what is only logged; it is no part of their protocols.
    QLoggingCategory::setFilterRules(QStringLiteral("*=false"));
}

void tst_parity::desktop_and_runner_agree_data()
{
    QTest::addColumn<QString>("run");
    const QStringList runs = run_names();
    QVERIFY(runs.size() >= 30);
    for (const QString& run : runs)
        QTest::newRow(qPrintable(run)) << run;
}

void tst_parity::desktop_and_runner_agree()
{
    QFETCH(QString, run);
    const QDir folder = folder_of(run);
    const QString before = QDir::currentPath();
    const QTemporaryDir box;
    const QStringList files = folder.entryList(QDir::Files);
    for (const QString& file : files)
        QVERIFY(QFile::copy(folder.filePath(file), box.filePath(file)));
    QDir::setCurrent(box.path());
    const QDir inside(box.path());

    const bet_log headless_bets = play_headless(inside);
    QMap<QString, QByteArray> headless_protocols;
    for (const run_seat& seat : seats_of(inside)) {
        headless_protocols.insert(seat.played, contents_of(seat.played));
        QFile::remove(seat.played);
    }
    const bet_log desktop_bets = play_on_desktop(inside, user);
    for (const run_seat& seat : seats_of(inside)) {
        const QByteArray played = contents_of(seat.played);
        QCOMPARE(played, contents_of(seat.expected));
        QCOMPARE(played, headless_protocols.value(seat.played));
    }
    QCOMPARE(desktop_bets.keys(), headless_bets.keys());
    QCOMPARE(desktop_bets, headless_bets);
    for (const QStringList& bets : desktop_bets)
        bets_compared += bets.size();
    QDir::setCurrent(before);
}

/// Nearly every run bets, so agreement on empty lists would be no agreement.
void tst_parity::bets_were_compared()
{
    QVERIFY2(bets_compared > run_names().size(), QByteArray::number(bets_compared));
}

int main(int argc, char** argv)
{
    return run_window_test<tst_parity>(argc, argv);
}
#include "tst_parity.moc"
