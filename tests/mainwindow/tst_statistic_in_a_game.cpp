#include "chart_statistic_widget.h"
#include "desktop_bench.h"
#include "file_dialog.h"
#include "number_records.h"
#include "page_export.h"
#include "statistic_data.h"

#include <QDialog>
#include <QTableWidget>
#include <qwt_scale_div.h>

/// Every coup of a game reaches the statistic, and its windows stand beside the running game.
class tst_statistic_in_a_game : public QObject
{
    Q_OBJECT

private slots:
    void init() { user.forget(); }
    void cleanup();

    void the_charts_begin_behind_the_setting();
    void the_charts_show_the_three_hottest_and_coldest_numbers();
    void a_reset_empties_charts_and_counter();
    void a_stop_empties_charts_and_counter();
    void a_count_on_its_way_does_not_outlive_a_reset();
    void the_axis_never_shrinks_until_a_reset();
    void the_charts_follow_the_scale();
    void the_double_zero_has_its_text();
    void the_panel_counts_coups_without_hand_changes();
    void every_window_opens_and_closes_data();
    void every_window_opens_and_closes();
    void a_file_is_named_after_its_window_data() { every_window_opens_and_closes_data(); }
    void a_file_is_named_after_its_window();
    void a_window_shows_the_moment_in_which_it_opens();
    void windows_outlive_coups_and_resets();
    void the_program_ends_with_windows_open();

private:
    box_user user;
};

namespace
{

/// Charts from the 11th coup on.
const QString early_charts = QStringLiteral("s_activation_coldhot_display=10");

/// Eleven coups: four 17, three 5, two 32, a zero and a 1.
const QVector<int> eleven = {17, 17, 17, 17, 5, 5, 5, 32, 32, 0, 1};

void play_all(const desktop_bench& bench, const QVector<int>& numbers)
{
    for (const int number : numbers)
        bench.play(number);
    bench.wait_for_statistic();
}

const chart_statistic_widget& hot(const desktop_bench& bench)
{
    return *bench.child<chart_statistic_widget>("hot_number_widget");
}

const chart_statistic_widget& cold(const desktop_bench& bench)
{
    return *bench.child<chart_statistic_widget>("cold_number_widget");
}

QStringList labels_of(const chart_statistic_widget& chart)
{
    QStringList labels;
    for (int i = 0; i < chart.values().size(); ++i)
        labels.append(chart.label_of(i));
    return labels;
}

double upper_of(const chart_statistic_widget& chart)
{
    return chart.axisScaleDiv(QwtPlot::yLeft).upperBound();
}

double lower_of(const chart_statistic_widget& chart)
{
    return chart.axisScaleDiv(QwtPlot::yLeft).lowerBound();
}

QString counter(const desktop_bench& bench)
{
    return bench.child<QLabel>("LB_cup_counter")->text();
}

bool are_empty(const desktop_bench& bench)
{
    const QVector<double> nothing = {0, 0, 0};
    const QStringList blanks = {" ", " ", " "};
    return hot(bench).values() == nothing && cold(bench).values() == nothing &&
           labels_of(hot(bench)) == blanks && labels_of(cold(bench)) == blanks &&
           upper_of(hot(bench)) == 10 && upper_of(cold(bench)) == 10 &&
           !bench.child<QLabel>("LB_to_less_coup1")->isHidden() &&
           !bench.child<QLabel>("LB_to_less_coup2")->isHidden();
}

QTableWidget* coup_table(const desktop_bench& bench, const char* window)
{
    return child_of<QTableWidget>(*bench.child<QDialog>(window), QStringLiteral("TW_General"));
}

} // namespace

void tst_statistic_in_a_game::cleanup()
{
    QCOMPARE(user.unexpected(), 0);
    QCOMPARE(user.answers_left(), 0);
}

void tst_statistic_in_a_game::the_charts_begin_behind_the_setting()
{
    const desktop_bench bench({early_charts});
    QVERIFY(are_empty(bench));
    bench.trigger("actionStart");
    play_all(bench, eleven.mid(0, 10));
    QVERIFY(are_empty(bench));
    QCOMPARE(bench.child<QLabel>("LB_to_less_coup1")->text(), QStringLiteral("zu wenige Coups"));
    play_all(bench, eleven.mid(10));
    QVERIFY(bench.child<QLabel>("LB_to_less_coup1")->isHidden());
    QVERIFY(bench.child<QLabel>("LB_to_less_coup2")->isHidden());
    QVERIFY(!are_empty(bench));
}

void tst_statistic_in_a_game::the_charts_show_the_three_hottest_and_coldest_numbers()
{
    const desktop_bench bench({early_charts});
    bench.trigger("actionStart");
    play_all(bench, eleven);
    QCOMPARE(labels_of(hot(bench)), QStringList({"17", "5", "32"}));
    QCOMPARE(hot(bench).values(), QVector<double>({4, 3, 2}));
    QCOMPARE(upper_of(hot(bench)), 14.0);
    QCOMPARE(lower_of(hot(bench)), 0.0);
    // 2, 3 and 4 are the first of those that never came
    QCOMPARE(labels_of(cold(bench)), QStringList({"2", "3", "4"}));
    QCOMPARE(cold(bench).values(), QVector<double>({0, 0, 0}));
    QCOMPARE(upper_of(cold(bench)), 10.0);

    // a second 0 makes it as frequent as 32, and fresher
    play_all(bench, {0});
    QCOMPARE(labels_of(hot(bench)), QStringList({"17", "5", "0"}));
}

void tst_statistic_in_a_game::a_reset_empties_charts_and_counter()
{
    const desktop_bench bench({early_charts});
    bench.trigger("actionStart");
    play_all(bench, eleven);
    user.answer(QMessageBox::Yes);
    bench.trigger("actionReset");
    bench.wait_for_statistic();
    QVERIFY(are_empty(bench));
    QCOMPARE(counter(bench), QStringLiteral("0"));
    play_all(bench, eleven);
    QCOMPARE(labels_of(hot(bench)), QStringList({"17", "5", "32"}));
    QCOMPARE(counter(bench), QStringLiteral("11"));
}

void tst_statistic_in_a_game::a_stop_empties_charts_and_counter()
{
    const desktop_bench bench({early_charts, QStringLiteral("s_year_statistic=false")});
    bench.trigger("actionStart");
    play_all(bench, eleven);
    user.answer(QMessageBox::Yes);
    bench.trigger("actionStop");
    bench.wait_for_statistic();
    QVERIFY(are_empty(bench));
    QCOMPARE(counter(bench), QStringLiteral("0"));
}

/// The store has counted a coup, the window does not know of it yet, and a player without money
/// gets the start capital, which empties the store.
void tst_statistic_in_a_game::a_count_on_its_way_does_not_outlive_a_reset()
{
    const desktop_bench bench;
    emit bench.window->update_statistic_data(property_of(17), true);
    bench.wait_for_count();
    bench.table().set_credit(general_player::PLAYER_1, 0);
    QVERIFY(QMetaObject::invokeMethod(
        bench.window.get(), "initializes_base_parameter", Qt::DirectConnection));
    bench.wait_for_statistic();
    QCOMPARE(counter(bench), QStringLiteral("0"));
}

/// 14 stands above the 10 of the next game's empty chart; only a reset takes it back.
void tst_statistic_in_a_game::the_axis_never_shrinks_until_a_reset()
{
    const desktop_bench bench({early_charts});
    bench.trigger("actionStart");
    play_all(bench, eleven);
    QCOMPARE(upper_of(hot(bench)), 14.0);
    play_all(bench, {17});
    QCOMPARE(upper_of(hot(bench)), 15.0);
    play_all(bench, {1, 2, 3});
    QCOMPARE(upper_of(hot(bench)), 15.0);
    user.answer(QMessageBox::Yes);
    bench.trigger("actionReset");
    play_all(bench, {1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11});
    QCOMPARE(upper_of(hot(bench)), 11.0); // one hit and a margin of 10
}

void tst_statistic_in_a_game::the_charts_follow_the_scale()
{
    const desktop_bench bench({early_charts});
    const QRect full = hot(bench).geometry();
    QCOMPARE(full, QRect(1042, 428, 184, 238));
    QCOMPARE(hot(bench).title().text(), QStringLiteral("Hot"));
    bench.settings().set_s_scr_res_factor(3);
    emit bench.settings().ini_parameter_changend();
    bench.settle();
    QCOMPARE(hot(bench).geometry(), QRect(729, 299, 128, 166));  // a tenth less, three times
    QCOMPARE(cold(bench).geometry(), QRect(864, 299, 128, 166)); // 1235, 428, 184, 238
}

void tst_statistic_in_a_game::the_double_zero_has_its_text()
{
    const desktop_bench bench({early_charts, QStringLiteral("s_table_form=1")});
    bench.trigger("actionStart");
    play_all(bench, {37, 37, 37, 37, 5, 5, 5, 32, 32, 0, 1});
    QCOMPARE(labels_of(hot(bench)), QStringList({"00", "5", "32"}));
}

void tst_statistic_in_a_game::the_panel_counts_coups_without_hand_changes()
{
    const desktop_bench bench;
    QCOMPARE(counter(bench), QStringLiteral("0"));
    bench.trigger("actionStart");
    play_all(bench, {3, 0});
    QCOMPARE(counter(bench), QStringLiteral("2"));
    bench.settings().set_s_scr_res_factor(2); // the panel is built anew
    emit bench.settings().ini_parameter_changend();
    bench.settle();
    QCOMPARE(counter(bench), QStringLiteral("2"));
}

void tst_statistic_in_a_game::every_window_opens_and_closes_data()
{
    QTest::addColumn<QString>("action");
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("title");
    const auto row = [](const char* action, const char* name, const char* title) {
        QTest::newRow(action) << QString::fromLatin1(action) << QString::fromLatin1(name)
                              << QString::fromUtf8(title);
    };
    row("actionWie_oft", "table_statistic_base_hits", "Standard - Wie oft?");
    row("actionSeit_wann", "table_statistic_base_since", "Standard - Seit wann nicht?");
    row("actionAnnoncen_wie_oft", "table_statistic_extended_hits", "Annoncen - Wie oft?");
    row("actionAnnoncen_seit_wann",
        "table_statistic_extended_since",
        "Annoncen - Seit wann nicht?");
    row("actionSerien", "table_statistic_serie", "Serien");
    row("actionHaeufigkeit", "table_frequency", "Häufigkeit");
    row("actionFolgezahlen", "table_follow_number", "Folgezahlen");
    row("actionBalken_wie_oft", "chart_statistic_hits", "Plein");
    row("actionBalken_seit_wann", "chart_statistic_since", "Plein");
    row("actionSpielerstatistik", "chart_statistic_player", "Spielerstatistik");
    row("actionKesselverteilung", "wheel_distribution", "Kesselverteilung");
    row("actionFigurenverlauf", "muster_statistic", "Muster Verlauf");
    row("actionFigurenstatistik", "muster_statistic_serien", "Muster Figuren");
}

void tst_statistic_in_a_game::every_window_opens_and_closes()
{
    QFETCH(QString, action);
    QFETCH(QString, name);
    QFETCH(QString, title);
    const desktop_bench bench;
    bench.trigger(qPrintable(action)); // without a coup
    QPointer<QDialog> window = bench.child<QDialog>(name);
    QVERIFY(window->isVisible());
    QVERIFY(!window->isModal());
    QCOMPARE(window->windowTitle(), title);

    bench.trigger("actionStart");
    play_all(bench, {17, 0, 32});
    bench.trigger(qPrintable(action)); // a fresh one takes the place of the old
    bench.settle();
    QVERIFY(!window);
    window = bench.child<QDialog>(name);
    QVERIFY(window->isVisible());
    window->close();
    bench.settle();
    QVERIFY(!window);
}

/// In the language of the moment.
void tst_statistic_in_a_game::a_file_is_named_after_its_window()
{
    QFETCH(QString, action);
    QFETCH(QString, name);
    QFETCH(QString, title);
    const desktop_bench bench;
    bench.trigger(qPrintable(action));
    auto* const window = bench.child<QDialog>(name);
    QString proposal;
    file_dialog::set_chooser([&proposal](const file_dialog::request& what) {
        proposal = QFileInfo(what.folder).fileName();
        return QString();
    });
    auto* const exporter = window->findChild<page_export*>();
    exporter->save_csv();
    QCOMPARE(proposal, title.replace('?', '_') + ".csv");
    bench.settings().set_s_language(2);
    emit bench.window->setting_language_changend(bench.settings().language());
    bench.settle();
    QVERIFY(title == "Plein" || window->windowTitle() != title);
    exporter->save_csv();
    QCOMPARE(proposal, window->windowTitle().replace('?', '_') + ".csv");
    file_dialog::set_chooser({});
}

void tst_statistic_in_a_game::a_window_shows_the_moment_in_which_it_opens()
{
    const desktop_bench bench;
    bench.trigger("actionStart");
    play_all(bench, {17, 0, 32});
    bench.trigger("actionWie_oft");
    QCOMPARE(coup_table(bench, "table_statistic_base_hits")->item(1, 0)->text(),
             QStringLiteral("3"));
    play_all(bench, {5});
    QCOMPARE(coup_table(bench, "table_statistic_base_hits")->item(1, 0)->text(),
             QStringLiteral("3"));
    bench.trigger("actionWie_oft");
    bench.settle();
    QCOMPARE(coup_table(bench, "table_statistic_base_hits")->item(1, 0)->text(),
             QStringLiteral("4"));
}

void tst_statistic_in_a_game::windows_outlive_coups_and_resets()
{
    const desktop_bench bench;
    bench.trigger("actionStart");
    play_all(bench, eleven);
    const auto actions = bench.window->findChildren<QAction*>();
    int windows = 0;
    for (QAction* action : actions) {
        if (!bench.child<QMenu>("menuStatistik")->actions().contains(action)) continue;
        if (action->isSeparator()) continue;
        action->trigger();
        ++windows;
    }
    QCOMPARE(windows, 13);
    bench.child<QPushButton>("PB_wheel_dyn_start")->click();
    play_all(bench, {1, 2, 3});
    user.answer(QMessageBox::Yes);
    bench.trigger("actionReset");
    play_all(bench, {4});
    bench.settings().set_s_table_form(1);
    emit bench.settings().ini_parameter_changend();
    play_all(bench, {37});
    bench.fire_all({QStringLiteral("dyn_timer")});
    QCOMPARE(coup_table(bench, "table_statistic_base_hits")->item(1, 0)->text(),
             QStringLiteral("11"));
    QCOMPARE(counter(bench), QStringLiteral("2"));
}

void tst_statistic_in_a_game::the_program_ends_with_windows_open()
{
    desktop_bench bench;
    bench.trigger("actionStart");
    play_all(bench, {17});
    bench.trigger("actionKesselverteilung");
    bench.trigger("actionSpielerstatistik");
    QPointer<QDialog> window = bench.child<QDialog>("wheel_distribution");
    bench.window.reset();
    QVERIFY(!window);
}

int main(int argc, char** argv)
{
    return run_window_test<tst_statistic_in_a_game>(argc, argv);
}

#include "tst_statistic_in_a_game.moc"
