#include "setting.h"
#include "test_box.h"

#include <QSettings>
#include <QSignalSpy>

static void write(const QString& path, const QByteArray& content)
{
    QFile file(path);
    QVERIFY(file.open(QIODevice::WriteOnly));
    QCOMPARE(file.write(content), qint64{content.size()});
}

class tst_setting : public QObject
{
    Q_OBJECT

private slots:
    void cleanup();
    void a_missing_file_gives_all_defaults();
    void every_value_survives_a_write_and_a_read();
    void the_keys_stand_in_the_group_option();
    void unknown_keys_survive_a_write();
    void values_out_of_range_are_replaced_data();
    void values_out_of_range_are_replaced();
    void a_damaged_value_gives_its_own_default_data();
    void a_damaged_value_gives_its_own_default();
    void a_damaged_file_gives_defaults_data();
    void a_damaged_file_gives_defaults();
    void texts_may_hold_anything();
    void a_file_that_cannot_be_written_is_told();
    void the_screen_chooses_the_scale_data();
    void the_screen_chooses_the_scale();
    void an_undecided_scale_waits_for_a_screen();
    void the_reduction_is_a_tenth_per_step();
    void the_start_capital_follows_the_setting_mode();
    void a_text_sets_a_value_data();
    void a_text_sets_a_value();
    void a_text_that_cannot_be_understood_names_the_key_data();
    void a_text_that_cannot_be_understood_names_the_key();
    void an_unknown_key_is_told();
    void players_have_files_of_their_own();
    void reading_tells_the_world();
    void a_change_of_the_table_is_told_once();
    void form_and_language_have_types();
    void the_game_state_is_not_saved();
};

void tst_setting::cleanup()
{
    QFile::remove("zarvello.ini");
}

void tst_setting::a_missing_file_gives_all_defaults()
{
    setting settings;
    settings.set_s_balkenzeit(5000);
    settings.set_s_editor_font("x");
    QVERIFY(settings.read_settings());
    QCOMPARE(settings.s_balkenzeit(), 60000);
    QCOMPARE(settings.s_language(), 0);
    QCOMPARE(settings.s_language_term(), 0);
    QCOMPARE(settings.s_start_jetons(), 2000);
    QCOMPARE(settings.s_setzart(), 0);
    QCOMPARE(settings.s_setzart_real_size(), 2);
    QCOMPARE(settings.s_wheel_disabled(), false);
    QCOMPARE(settings.s_su_shortthrow_activ(), false);
    QCOMPARE(settings.s_jeton_to_win(), true);
    QCOMPARE(settings.s_tip_def_index(), 0);
    QCOMPARE(settings.s_table_form(), 0);
    QCOMPARE(settings.s_pr_color(), false);
    QCOMPARE(settings.s_pr_landscape(), true);
    QCOMPARE(settings.s_hand_change_sign_index(), 0);
    QCOMPARE(settings.s_scr_res_factor(), -1);
    QCOMPARE(settings.s_year_statistic(), true);
    QCOMPARE(settings.s_use_history_text_files(), true);
    QCOMPARE(settings.s_use_history_throws_startup(), false);
    QCOMPARE(settings.s_load_history_stat_type_index(), 0);
    QCOMPARE(settings.s_history_days_count(), 0);
    QCOMPARE(settings.s_history_year_index(), 0);
    QCOMPARE(settings.s_history_fix_date(), QDate(2000, 1, 1));
    QCOMPARE(settings.s_add_lofil_throw_to_year_stat(), false);
    QCOMPARE(settings.s_single_color_timebar(), false);
    QCOMPARE(settings.s_editor_font(), QString());
    QCOMPARE(settings.s_editor_font_size(), QStringLiteral("8"));
    QCOMPARE(settings.s_user_sys_file_1(), QString());
    QCOMPARE(settings.s_user_sys_file_4(), QString());
    QCOMPARE(settings.s_user_out_file_1(), QString());
    QCOMPARE(settings.s_user_out_file_4(), QString());
    QCOMPARE(settings.s_zero_handling(), true);
    QCOMPARE(settings.s_auto_update_check(), true);
    QCOMPARE(settings.s_classic_dolly(), false);
    QCOMPARE(settings.s_activation_coldhot_display(), 30);
    QVERIFY(!QFile::exists("zarvello.ini"));
}

void tst_setting::every_value_survives_a_write_and_a_read()
{
    setting written;
    written.set_s_balkenzeit(5000);
    written.set_s_language(1);
    written.set_s_language_term(1);
    written.set_s_start_jetons(1234);
    written.set_s_setzart(1);
    written.set_s_setzart_real_size(100);
    written.set_s_wheel_disabled(true);
    written.set_s_su_shortthrow_activ(true);
    written.set_s_jeton_to_win(false);
    written.set_s_tip_def_index(2);
    written.set_s_table_form(1);
    written.set_s_pr_color(true);
    written.set_s_pr_landscape(false);
    written.set_s_hand_change_sign_index(5);
    written.set_s_scr_res_factor(3);
    written.set_s_year_statistic(false);
    written.set_s_use_history_text_files(false);
    written.set_s_use_history_throws_startup(true);
    written.set_s_load_history_stat_type_index(3);
    written.set_s_history_days_count(17);
    written.set_s_history_year_index(4);
    written.set_s_history_fix_date(QDate(2018, 3, 2));
    written.set_s_add_lofil_throw_to_year_stat(true);
    written.set_s_single_color_timebar(true);
    written.set_s_editor_font("Courier,10,-1,5,50,0,0,0,0,0");
    written.set_s_editor_font_size("12");
    written.set_s_user_sys_file_1("a.syf");
    written.set_s_user_sys_file_2("b.syf");
    written.set_s_user_sys_file_3("c.syf");
    written.set_s_user_sys_file_4("d.syf");
    written.set_s_user_out_file_1("a.out");
    written.set_s_user_out_file_2("b.out");
    written.set_s_user_out_file_3("c.out");
    written.set_s_user_out_file_4("d.out");
    written.set_s_zero_handling(false);
    written.set_s_auto_update_check(false);
    written.set_s_classic_dolly(true);
    written.set_s_activation_coldhot_display(999);
    QVERIFY(written.write_settings());

    setting settings;
    QVERIFY(settings.read_settings());
    QCOMPARE(settings.s_balkenzeit(), 5000);
    QCOMPARE(settings.s_language(), 1);
    QCOMPARE(settings.s_language_term(), 1);
    QCOMPARE(settings.s_start_jetons(), 1234);
    QCOMPARE(settings.s_setzart(), 1);
    QCOMPARE(settings.s_setzart_real_size(), 100);
    QCOMPARE(settings.s_wheel_disabled(), true);
    QCOMPARE(settings.s_su_shortthrow_activ(), true);
    QCOMPARE(settings.s_jeton_to_win(), false);
    QCOMPARE(settings.s_tip_def_index(), 2);
    QCOMPARE(settings.s_table_form(), 1);
    QCOMPARE(settings.s_pr_color(), true);
    QCOMPARE(settings.s_pr_landscape(), false);
    QCOMPARE(settings.s_hand_change_sign_index(), 5);
    QCOMPARE(settings.s_scr_res_factor(), 3);
    QCOMPARE(settings.s_year_statistic(), false);
    QCOMPARE(settings.s_use_history_text_files(), false);
    QCOMPARE(settings.s_use_history_throws_startup(), true);
    QCOMPARE(settings.s_load_history_stat_type_index(), 3);
    QCOMPARE(settings.s_history_days_count(), 17);
    QCOMPARE(settings.s_history_year_index(), 4);
    QCOMPARE(settings.s_history_fix_date(), QDate(2018, 3, 2));
    QCOMPARE(settings.s_add_lofil_throw_to_year_stat(), true);
    QCOMPARE(settings.s_single_color_timebar(), true);
    QCOMPARE(settings.s_editor_font(), QStringLiteral("Courier,10,-1,5,50,0,0,0,0,0"));
    QCOMPARE(settings.s_editor_font_size(), QStringLiteral("12"));
    QCOMPARE(settings.s_user_sys_file_1(), QStringLiteral("a.syf"));
    QCOMPARE(settings.s_user_sys_file_2(), QStringLiteral("b.syf"));
    QCOMPARE(settings.s_user_sys_file_3(), QStringLiteral("c.syf"));
    QCOMPARE(settings.s_user_sys_file_4(), QStringLiteral("d.syf"));
    QCOMPARE(settings.s_user_out_file_1(), QStringLiteral("a.out"));
    QCOMPARE(settings.s_user_out_file_2(), QStringLiteral("b.out"));
    QCOMPARE(settings.s_user_out_file_3(), QStringLiteral("c.out"));
    QCOMPARE(settings.s_user_out_file_4(), QStringLiteral("d.out"));
    QCOMPARE(settings.s_zero_handling(), false);
    QCOMPARE(settings.s_auto_update_check(), false);
    QCOMPARE(settings.s_classic_dolly(), true);
    QCOMPARE(settings.s_activation_coldhot_display(), 999);
}

void tst_setting::the_keys_stand_in_the_group_option()
{
    QVERIFY(setting().write_settings());
    QFile file("zarvello.ini");
    QVERIFY(file.open(QIODevice::ReadOnly | QIODevice::Text));
    const QList<QByteArray> lines = file.readAll().split('\n');
    QCOMPARE(lines.first(), QByteArray("[option]"));
    QVERIFY(lines.contains("s_balkenzeit=60000"));
    QVERIFY(lines.contains("s_jeton_to_win=true"));
    QVERIFY(lines.contains("s_history_fix_date=2000-01-01"));
    QCOMPARE(setting::keys().size(), 38);
    for (const QString& key : setting::keys()) {
        const auto has_key = [&](const QByteArray& line) {
            return line.startsWith(key.toUtf8() + '=');
        };
        QVERIFY2(std::count_if(lines.begin(), lines.end(), has_key) == 1, qPrintable(key));
    }
}

void tst_setting::unknown_keys_survive_a_write()
{
    write("zarvello.ini", "[option]\ns_new=5\ns_setzart=1\n[other]\nkey=text\n");
    setting settings;
    QVERIFY(settings.read_settings());
    QVERIFY(settings.write_settings());
    const QSettings stored("zarvello.ini", QSettings::IniFormat);
    QCOMPARE(stored.value("option/s_new").toInt(), 5);
    QCOMPARE(stored.value("option/s_setzart").toInt(), 1);
    QCOMPARE(stored.value("other/key").toString(), QStringLiteral("text"));
}

void tst_setting::values_out_of_range_are_replaced_data()
{
    QTest::addColumn<QString>("key");
    QTest::addColumn<int>("given");
    QTest::addColumn<int>("counts_as");
    // clang-format off
    QTest::newRow("piece mode")             << "s_setzart" << 2 << 0;
    QTest::newRow("piece mode, negative")   << "s_setzart" << -1 << 0;
    QTest::newRow("real mode")              << "s_setzart" << 1 << 1;
    QTest::newRow("table form")             << "s_table_form" << 2 << 0;
    QTest::newRow("American table")         << "s_table_form" << 1 << 1;
    QTest::newRow("history rule")           << "s_load_history_stat_type_index" << 4 << 0;
    QTest::newRow("last history rule")      << "s_load_history_stat_type_index" << 3 << 3;
    QTest::newRow("language beyond")        << "s_language" << 7 << 2;
    QTest::newRow("language negative")      << "s_language" << -1 << 2;
    QTest::newRow("German")                 << "s_language" << 1 << 1;
    QTest::newRow("words beyond")           << "s_language_term" << -3 << 1;
    QTest::newRow("piece size unknown")     << "s_setzart_real_size" << 3 << 2;
    QTest::newRow("piece size zero")        << "s_setzart_real_size" << 0 << 2;
    QTest::newRow("piece size 5")           << "s_setzart_real_size" << 5 << 5;
    QTest::newRow("piece size 10")          << "s_setzart_real_size" << 10 << 10;
    QTest::newRow("piece size 20")          << "s_setzart_real_size" << 20 << 20;
    QTest::newRow("piece size 25")          << "s_setzart_real_size" << 25 << 25;
    QTest::newRow("piece size 50")          << "s_setzart_real_size" << 50 << 50;
    QTest::newRow("largest piece size")     << "s_setzart_real_size" << 500 << 500;
    QTest::newRow("scale beyond")           << "s_scr_res_factor" << 4 << 3;
    QTest::newRow("scale undecided")        << "s_scr_res_factor" << -1 << -1;
    QTest::newRow("scale below")            << "s_scr_res_factor" << -2 << 0;
    QTest::newRow("less than a second")     << "s_balkenzeit" << 999 << 0;
    QTest::newRow("a second")               << "s_balkenzeit" << 1000 << 1000;
    QTest::newRow("negative betting time")  << "s_balkenzeit" << -5000 << 0;
    QTest::newRow("negative capital")       << "s_start_jetons" << -1 << 0;
    QTest::newRow("staff piece beyond")     << "s_tip_def_index" << 3 << 0;
    QTest::newRow("hand change sign beyond") << "s_hand_change_sign_index" << 6 << 0;
    QTest::newRow("no year chosen")         << "s_history_year_index" << -1 << -1;
    // clang-format on
}

void tst_setting::values_out_of_range_are_replaced()
{
    QFETCH(QString, key);
    QFETCH(int, given);
    QFETCH(int, counts_as);
    const auto value_of = [&key](const setting& settings) {
        settings.write_settings("look.ini");
        return QSettings("look.ini", QSettings::IniFormat).value("option/" + key).toInt();
    };
    write("zarvello.ini", QString("[option]\n%1=%2\n").arg(key).arg(given).toUtf8());
    setting read;
    QVERIFY(read.read_settings());
    QCOMPARE(value_of(read), counts_as);

    setting set;
    QCOMPARE(set.set_value(key, QString::number(given)), QString());
    QCOMPARE(value_of(set), counts_as);
}

void tst_setting::a_damaged_value_gives_its_own_default_data()
{
    QTest::addColumn<QByteArray>("line");
    // clang-format off
    QTest::newRow("words for a number")     << QByteArray("s_balkenzeit=soon");
    QTest::newRow("number too large")       << QByteArray("s_balkenzeit=99999999999999999999");
    QTest::newRow("number beyond an int")   << QByteArray("s_balkenzeit=4294967296000");
    QTest::newRow("fraction")               << QByteArray("s_balkenzeit=5000.5");
    QTest::newRow("list for a number")      << QByteArray("s_balkenzeit=1,2");
    QTest::newRow("nothing for a number")   << QByteArray("s_balkenzeit=");
    QTest::newRow("number for a bool")      << QByteArray("s_jeton_to_win=2");
    QTest::newRow("words for a bool")       << QByteArray("s_jeton_to_win=never");
    QTest::newRow("nothing for a bool")     << QByteArray("s_jeton_to_win=");
    QTest::newRow("no such day")            << QByteArray("s_history_fix_date=2018-02-30");
    QTest::newRow("words for a date")       << QByteArray("s_history_fix_date=today");
    QTest::newRow("broken variant")         << QByteArray("s_balkenzeit=@Variant(\\xff\\xff\\xff)");
    QTest::newRow("invalid variant")        << QByteArray("s_editor_font_size=@Invalid()");
    // clang-format on
}

void tst_setting::a_damaged_value_gives_its_own_default()
{
    QFETCH(QByteArray, line);
    write("zarvello.ini", "[option]\n" + line + "\ns_start_jetons=77\n");
    setting settings;
    settings.read_settings();
    QCOMPARE(settings.s_balkenzeit(), 60000);
    QCOMPARE(settings.s_jeton_to_win(), true);
    QCOMPARE(settings.s_history_fix_date(), QDate(2000, 1, 1));
    QCOMPARE(settings.s_editor_font_size(), QStringLiteral("8"));
    QCOMPARE(settings.s_start_jetons(), 77);
}

void tst_setting::a_damaged_file_gives_defaults_data()
{
    QTest::addColumn<QByteArray>("content");
    QTest::newRow("empty") << QByteArray();
    QTest::newRow("zeros") << QByteArray(5'000, '\0');
    QTest::newRow("no group") << QByteArray("s_balkenzeit=5000\n");
    QTest::newRow("bytes") << QByteArray("\xff\xfe\x01[\x80=\n==\n[[]]\\x");
}

void tst_setting::a_damaged_file_gives_defaults()
{
    QFETCH(QByteArray, content);
    write("zarvello.ini", content);
    setting settings;
    settings.read_settings();
    QCOMPARE(settings.s_balkenzeit(), 60000);
    QCOMPARE(settings.s_zero_handling(), true);
}

void tst_setting::texts_may_hold_anything()
{
    const QStringList texts = {"/home/J\u00fcrgen/S\u00e4tze, neu/a;b=c.syf",
                               "C:\\systems\\x.syf",
                               "\"quoted\"",
                               "@Variant(x)",
                               " blanks ",
                               "\u4e2d\u6587"};
    for (const QString& text : texts) {
        setting written;
        written.set_s_user_sys_file_2(text);
        QVERIFY(written.write_settings());
        setting settings;
        QVERIFY(settings.read_settings());
        QCOMPARE(settings.s_user_sys_file_2(), text);
    }
    // By hand, without quotes and in UTF-8.
    write("zarvello.ini", "[option]\ns_editor_font=J\u00fcrgen,10,-1\n");
    setting settings;
    QVERIFY(settings.read_settings());
    QCOMPARE(settings.s_editor_font(), QStringLiteral("J\u00fcrgen,10,-1"));
}

void tst_setting::a_file_that_cannot_be_written_is_told()
{
    write("occupied", "no folder");
    QVERIFY(!setting().write_settings("occupied/zarvello.ini"));
}

void tst_setting::the_screen_chooses_the_scale_data()
{
    QTest::addColumn<int>("width");
    QTest::addColumn<int>("height");
    QTest::addColumn<int>("factor");
    // clang-format off
    QTest::newRow("full size")             << 1920 << 1080 << 0;
    QTest::newRow("just full size")        << 1485 <<  861 << 0;
    QTest::newRow("too low for it")        << 1485 <<  860 << 1;
    QTest::newRow("too narrow for it")     << 1484 << 1080 << 1;
    QTest::newRow("just step 1")           << 1337 <<  780 << 1;
    QTest::newRow("too low for step 1")    << 1337 <<  779 << 2;
    QTest::newRow("just step 2, wide")     << 1920 <<  699 << 2;
    QTest::newRow("too low for step 2, wide") << 1920 << 698 << 3;
    QTest::newRow("narrow")                << 1336 << 1080 << 2;
    QTest::newRow("1280 by 720")           << 1280 <<  720 << 2;
    QTest::newRow("just step 2, narrow")   << 1188 <<  699 << 2;
    QTest::newRow("too low for step 2")    << 1188 <<  698 << 3;
    QTest::newRow("too narrow for step 2") << 1187 << 2000 << 3;
    QTest::newRow("tiny")                  <<    0 <<    0 << 3;
    // clang-format on
}

void tst_setting::the_screen_chooses_the_scale()
{
    QFETCH(int, width);
    QFETCH(int, height);
    QFETCH(int, factor);
    QCOMPARE(scale_factor_for_screen(width, height), factor);
    setting settings;
    settings.read_settings("./zarvello.ini", QSize(width, height));
    QCOMPARE(settings.s_scr_res_factor(), factor);
    QCOMPARE(settings.scale_reduction(), factor / 10.0);
}

void tst_setting::an_undecided_scale_waits_for_a_screen()
{
    setting settings;
    settings.read_settings();
    QCOMPARE(settings.s_scr_res_factor(), -1);
    QCOMPARE(settings.scale_reduction(), 0.0);
    QVERIFY(settings.write_settings());

    settings.read_settings("./zarvello.ini", QSize(1280, 720));
    QCOMPARE(settings.s_scr_res_factor(), 2);
    QCOMPARE(settings.scale_reduction(), 0.2);
    QVERIFY(settings.write_settings());

    settings.read_settings("./zarvello.ini", QSize(1920, 1080)); // decided once
    QCOMPARE(settings.s_scr_res_factor(), 2);
}

void tst_setting::the_reduction_is_a_tenth_per_step()
{
    setting settings;
    const QList<double> reductions = {0.0, 0.1, 0.2, 0.3, 0.3};
    for (int factor = 0; factor < reductions.size(); ++factor) {
        settings.set_s_scr_res_factor(factor);
        QCOMPARE(settings.scale_reduction(), reductions.at(factor));
    }
}

void tst_setting::the_start_capital_follows_the_setting_mode()
{
    setting settings;
    settings.set_s_start_jetons(2'000'000'000);
    settings.set_s_setzart_real_size(500);
    QCOMPARE(settings.start_capital(), Q_INT64_C(2'000'000'000));
    settings.set_s_setzart(1);
    QCOMPARE(settings.start_capital(), Q_INT64_C(1'000'000'000'000));
}

void tst_setting::a_text_sets_a_value_data()
{
    QTest::addColumn<QString>("key");
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("in_file");
    // clang-format off
    QTest::newRow("number")          << "s_start_jetons" << "500" << "500";
    QTest::newRow("negative number") << "s_history_year_index" << "-1" << "-1";
    QTest::newRow("true")            << "s_wheel_disabled" << "true" << "true";
    QTest::newRow("1")               << "s_wheel_disabled" << "1" << "true";
    QTest::newRow("false")           << "s_zero_handling" << "false" << "false";
    QTest::newRow("0")               << "s_zero_handling" << "0" << "false";
    QTest::newRow("text")            << "s_user_sys_file_3" << "a b.syf" << "a b.syf";
    QTest::newRow("empty text")      << "s_editor_font_size" << "" << "";
    QTest::newRow("date")            << "s_history_fix_date" << "2018-03-02" << "2018-03-02";
    // clang-format on
}

void tst_setting::a_text_sets_a_value()
{
    QFETCH(QString, key);
    QFETCH(QString, text);
    QFETCH(QString, in_file);
    setting settings;
    QCOMPARE(settings.set_value(key, text), QString());
    QVERIFY(settings.write_settings());
    const QSettings stored("zarvello.ini", QSettings::IniFormat);
    QCOMPARE(stored.value("option/" + key).toString(), in_file);
}

void tst_setting::a_text_that_cannot_be_understood_names_the_key_data()
{
    QTest::addColumn<QString>("key");
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("wanted");
    const auto row = [](const char* name) -> QTestData& { return QTest::newRow(name); };
    // clang-format off
    row("no number")  << "s_setzart"          << "real"       << "a whole number";
    row("too large")  << "s_start_jetons"     << "3000000000" << "a whole number";
    row("empty text") << "s_setzart"          << ""           << "a whole number";
    row("no bool")    << "s_zero_handling"    << "yes"        << "true, false, 1 or 0";
    row("no date")    << "s_history_fix_date" << "2.3.2018"   << "a date such as 2000-01-31";
    // clang-format on
}

void tst_setting::a_text_that_cannot_be_understood_names_the_key()
{
    QFETCH(QString, key);
    QFETCH(QString, text);
    QFETCH(QString, wanted);
    setting settings;
    settings.set_s_setzart(1);
    const QString message = QString("setting \"%1\" needs %2, not \"%3\"").arg(key, wanted, text);
    QCOMPARE(settings.set_value(key, text), message);
    QCOMPARE(settings.s_setzart(), 1);
    QCOMPARE(settings.s_start_jetons(), 2000);
    QCOMPARE(settings.s_zero_handling(), true);
    QCOMPARE(settings.s_history_fix_date(), QDate(2000, 1, 1));
}

void tst_setting::an_unknown_key_is_told()
{
    setting settings;
    for (const char* key : {"s_speed", "S_SETZART", ""}) {
        const QString message = QString("unknown setting \"%1\"").arg(key);
        QCOMPARE(settings.set_value(key, "1"), message);
    }
}

void tst_setting::players_have_files_of_their_own()
{
    setting settings;
    settings.set_s_user_sys_file(general_player::PLAYER_3, "c.syf");
    settings.set_s_user_out_file(general_player::PLAYER_1, "a.out");
    settings.set_s_user_sys_file(general_player::NO_PLAYER, "none.syf");
    settings.set_s_user_out_file(general_player::NO_PLAYER, "none.out");
    QCOMPARE(settings.s_user_sys_file_3(), QStringLiteral("c.syf"));
    QCOMPARE(settings.s_user_sys_file(general_player::PLAYER_3), QStringLiteral("c.syf"));
    QCOMPARE(settings.s_user_out_file_1(), QStringLiteral("a.out"));
    QCOMPARE(settings.s_user_out_file(general_player::PLAYER_1), QStringLiteral("a.out"));
    QCOMPARE(settings.s_user_sys_file(general_player::PLAYER_4), QString());
    QCOMPARE(settings.s_user_sys_file(general_player::NO_PLAYER), QString());
    QCOMPARE(settings.s_user_out_file(general_player::NO_PLAYER), QString());
}

void tst_setting::reading_tells_the_world()
{
    setting settings;
    const QSignalSpy changes(&settings, &setting::ini_parameter_changend);
    settings.read_settings();
    QCOMPARE(changes.count(), 1);
    settings.set_s_setzart(1);
    QCOMPARE(changes.count(), 1);
}

void tst_setting::a_change_of_the_table_is_told_once()
{
    setting settings;
    const QSignalSpy changes(&settings, &setting::table_form_changend);
    settings.set_s_table_form(0);
    settings.set_s_table_form(5);
    QCOMPARE(changes.count(), 0);
    settings.set_s_table_form(1);
    settings.set_s_table_form(1);
    QCOMPARE(changes.count(), 1);
    settings.read_settings();
    QCOMPARE(changes.count(), 2);
}

void tst_setting::form_and_language_have_types()
{
    setting settings;
    QCOMPARE(settings.form(), table_form::french);
    QCOMPARE(settings.language(), general_setting::LANG_AUTO);
    settings.set_s_table_form(1);
    settings.set_s_language(9);
    QCOMPARE(settings.form(), table_form::american);
    QCOMPARE(settings.language(), general_setting::LANG_ENGLISH);
    QCOMPARE(settings.values().s_table_form, 1);
}

void tst_setting::the_game_state_is_not_saved()
{
    setting settings;
    QCOMPARE(settings.state(), game_state::stopped);
    settings.set_state(game_state::running);
    settings.read_settings();
    QCOMPARE(settings.state(), game_state::running);
    QVERIFY(&setting::instance() == &setting::instance());
}

int main(int argc, char** argv)
{
    return run_in_own_box<tst_setting>(argc, argv);
}
#include "tst_setting.moc"
