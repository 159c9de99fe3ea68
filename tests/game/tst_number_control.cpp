#include "number_control.h"
#include "setting.h"
#include "test_box.h"

using general_player::NO_PLAYER;
using general_player::PLAYER_1;
using general_player::PLAYER_2;
using general_player::player_names;
using general_setting::REMOVE_JETON;
using general_setting::SELECT_JETON;
using general_setting::SET_JETON;
using general_setting::setting_jeton_action;

/// Announcements taken apart into single jetons.
class tst_number_control : public QObject
{
    Q_OBJECT

private slots:
    void an_announcement_goes_out_jeton_by_jeton_data();
    void an_announcement_goes_out_jeton_by_jeton();
    void what_the_form_lacks_sends_nothing_data();
    void what_the_form_lacks_sends_nothing();
    void action_player_and_amount_go_with_every_jeton_data();
    void action_player_and_amount_go_with_every_jeton();
    void a_selection_of_a_fixed_announcement_is_drawn_as_one_data();
    void a_selection_of_a_fixed_announcement_is_drawn_as_one();
    void a_selection_of_a_neighbour_bet_is_drawn_number_by_number();
    void the_credit_must_suffice_for_all_pieces_data();
    void the_credit_must_suffice_for_all_pieces();
    void a_removal_is_never_refused();
    void a_system_player_is_never_refused();
    void without_a_player_nothing_happens();
    void a_click_sends_the_chance_at_its_point_data();
    void a_click_sends_the_chance_at_its_point();
    void a_click_follows_the_scale_and_the_form();
    void a_click_on_an_announcement_lays_it_out();
    void a_click_beside_every_field_sends_nothing_data();
    void a_click_beside_every_field_sends_nothing();
    void a_click_belongs_to_the_active_player();
    void a_click_out_of_a_click_is_dropped();
    void the_announcements_of_a_number_are_told_data();
    void the_announcements_of_a_number_are_told();
    void a_system_lays_pieces_of_value_one_data();
    void a_system_lays_pieces_of_value_one();
};

namespace
{

/// A table with 100 for every player, the control above it, and what the control sends.
struct control_desk {
    explicit control_desk(bool american)
        : control(table, settings)
    {
        settings.set_s_table_form(american ? 1 : 0);
        table.set_credit(PLAYER_1, 100);
        table.set_credit(PLAYER_2, 100);
        using sender = number_control;
        QObject::connect(&control,
                         &sender::jeton_type_on_pos,
                         &control,
                         [this](setting_jeton_action action,
                                jetons::jeton_names jeton,
                                player_names player,
                                int amount) {
                             sent.append(jetons::name(jeton));
                             details.append(
                                 QString("%1 %2 %3").arg(action).arg(player).arg(amount));
                         });
        QObject::connect(
            &control,
            &sender::draw_selection_for_special_jetons,
            &control,
            [this](jetons::ext_jeton_names name) { drawn.append(jetons::name(name)); });
        QObject::connect(&control,
                         &sender::set_not_possible_to_less_credit,
                         &control,
                         [this](int count) { refused.append(count); });
    }

    void set(const QString& name, setting_jeton_action action, player_names player, int amount)
    {
        control.set_remove_ext_jeton_via_ext_jeton_name(
            action, jetons::ext_value_of(name), player, amount);
    }

    setting settings;
    game_table table;
    number_control control;
    QStringList sent;    ///< jetons
    QStringList details; ///< action, player and amount of each
    QStringList drawn;
    QList<int> refused;
};

} // namespace

void tst_number_control::an_announcement_goes_out_jeton_by_jeton_data()
{
    QTest::addColumn<bool>("american");
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("jetons");
    // clang-format off
    QTest::newRow("GS")                << false << "GS"   << "CH07 CH15 CH21 CH22 CH35 TP02 TP02 CA18 CA18";
    QTest::newRow("KS")                << false << "KS"   << "CH08 CH43 CH16 CH52 CH30 CH36";
    QTest::newRow("OR")                << false << "OR"   << "PL01 CH09 CH17 CH20 CH34";
    QTest::newRow("OP")                << false << "OP"   << "PL01 PL06 PL09 PL14 PL17 PL20 PL31 PL34";
    QTest::newRow("ZS")                << false << "ZS"   << "CH03 PL26 CH35 CH15";
    QTest::newRow("finale 0, french")  << false << "FI00" << "PL00 PL10 PL20 PL30";
    QTest::newRow("finale 0, american") << true << "FI00" << "PL00 PL10 PL20 PL30 PL37";
    QTest::newRow("finale 6")          << true  << "FI06" << "PL06 PL16 PL26 PL36";
    QTest::newRow("finale 7")          << false << "FI07" << "PL07 PL17 PL27";
    QTest::newRow("one neighbour")     << false << "EN17" << "PL25 PL17 PL34";
    QTest::newRow("around zero")       << false << "ZN00" << "PL03 PL26 PL00 PL32 PL15";
    QTest::newRow("end of the wheel")  << false << "EN26" << "PL03 PL26 PL00";
    QTest::newRow("three neighbours")  << false << "DN32" << "PL03 PL26 PL00 PL32 PL15 PL19 PL04";
    QTest::newRow("american")          << true  << "EN17" << "PL32 PL17 PL05";
    QTest::newRow("around 00")         << true  << "ZN37" << "PL13 PL01 PL37 PL27 PL10";
    QTest::newRow("american zero")     << true  << "DN00" << "PL35 PL14 PL02 PL00 PL28 PL09 PL26";
    // clang-format on
}

void tst_number_control::an_announcement_goes_out_jeton_by_jeton()
{
    QFETCH(bool, american);
    QFETCH(QString, name);
    QFETCH(QString, jetons);
    control_desk desk(american);
    desk.set(name, SET_JETON, PLAYER_1, 1);
    QCOMPARE(desk.sent.join(' '), jetons);
    QVERIFY(desk.refused.isEmpty() && desk.drawn.isEmpty());
}

void tst_number_control::what_the_form_lacks_sends_nothing_data()
{
    QTest::addColumn<bool>("american");
    QTest::addColumn<QString>("name");
    // clang-format off
    QTest::newRow("GS")        << true  << "GS";
    QTest::newRow("KS")        << true  << "KS";
    QTest::newRow("OR")        << true  << "OR";
    QTest::newRow("OP")        << true  << "OP";
    QTest::newRow("ZS")        << true  << "ZS";
    QTest::newRow("EN37")      << false << "EN37";
    QTest::newRow("ZN37")      << false << "ZN37";
    QTest::newRow("DN37")      << false << "DN37";
    QTest::newRow("separator") << false << "ENZNDN";
    QTest::newRow("end mark")  << true  << "LAST_ext_JN";
    QTest::newRow("no name")   << true  << "EN5";
    // clang-format on
}

void tst_number_control::what_the_form_lacks_sends_nothing()
{
    QFETCH(bool, american);
    QFETCH(QString, name);
    for (const setting_jeton_action action : {SET_JETON, REMOVE_JETON}) {
        control_desk desk(american);
        desk.set(name, action, PLAYER_1, 1);
        QCOMPARE(desk.sent, QStringList{});
        QVERIFY(desk.refused.isEmpty());
    }
}

void tst_number_control::action_player_and_amount_go_with_every_jeton_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<int>("count");
    QTest::newRow("fixed announcement") << "OR" << 5;
    QTest::newRow("neighbour bet") << "ZN05" << 5;
}

void tst_number_control::action_player_and_amount_go_with_every_jeton()
{
    QFETCH(QString, name);
    QFETCH(int, count);
    for (const setting_jeton_action action : {SET_JETON, REMOVE_JETON}) {
        control_desk desk(false);
        desk.set(name, action, PLAYER_2, 3);
        QCOMPARE(desk.details.count(QString("%1 1 3").arg(action)), count);
        QCOMPARE(desk.details.size(), count);
    }
}

void tst_number_control::a_selection_of_a_fixed_announcement_is_drawn_as_one_data()
{
    QTest::addColumn<QString>("name");
    for (const char* name : {"GS", "KS", "OR", "OP", "ZS", "FI00", "FI09"})
        QTest::newRow(name) << QString(name);
}

void tst_number_control::a_selection_of_a_fixed_announcement_is_drawn_as_one()
{
    QFETCH(QString, name);
    control_desk desk(false);
    desk.table.set_credit(PLAYER_1, 0);
    desk.set(name, SELECT_JETON, PLAYER_1, 1);
    QCOMPARE(desk.drawn, QStringList{name});
    QCOMPARE(desk.sent, QStringList{});
    QVERIFY(desk.refused.isEmpty());
}

void tst_number_control::a_selection_of_a_neighbour_bet_is_drawn_number_by_number()
{
    control_desk desk(false);
    desk.table.set_credit(PLAYER_1, 0);
    desk.set("EN17", SELECT_JETON, PLAYER_1, 1);
    QCOMPARE(desk.sent, (QStringList{"PL25", "PL17", "PL34"}));
    QCOMPARE(desk.details.first(), QString("%1 0 1").arg(SELECT_JETON));
    QCOMPARE(desk.drawn, QStringList{});
    QVERIFY(desk.refused.isEmpty());
}

void tst_number_control::the_credit_must_suffice_for_all_pieces_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<int>("amount");
    QTest::addColumn<qint64>("credit");
    QTest::addColumn<int>("refused"); // the count told, 0 when it is set
    // The count is that of the jetons, whatever their worth.
    // clang-format off
    QTest::newRow("just enough")          << "GS"   << 1          << qint64{9}  << 0;
    QTest::newRow("one too little")       << "GS"   << 1          << qint64{8}  << 9;
    QTest::newRow("two on each place")    << "KS"   << 2          << qint64{11} << 6;
    QTest::newRow("two on each, enough")  << "KS"   << 2          << qint64{12} << 0;
    QTest::newRow("finale")               << "FI07" << 1          << qint64{2}  << 3;
    QTest::newRow("one neighbour")        << "EN00" << 1          << qint64{2}  << 3;
    QTest::newRow("two neighbours")       << "ZN00" << 1          << qint64{4}  << 5;
    QTest::newRow("three neighbours")     << "DN00" << 1          << qint64{6}  << 7;
    QTest::newRow("three, just enough")   << "DN00" << 1          << qint64{7}  << 0;
    QTest::newRow("beyond 32 bits")       << "GS"   << 2000000000 << qint64{99} << 9;
    // clang-format on
}

void tst_number_control::the_credit_must_suffice_for_all_pieces()
{
    QFETCH(QString, name);
    QFETCH(int, amount);
    QFETCH(qint64, credit);
    QFETCH(int, refused);
    control_desk desk(false);
    desk.table.set_credit(PLAYER_1, credit);
    desk.set(name, SET_JETON, PLAYER_1, amount);
    QCOMPARE(desk.refused, refused == 0 ? QList<int>{} : QList<int>{refused});
    QCOMPARE(desk.sent.isEmpty(), refused != 0);
}

void tst_number_control::a_removal_is_never_refused()
{
    control_desk desk(false);
    desk.table.set_credit(PLAYER_1, 0);
    desk.set("GS", REMOVE_JETON, PLAYER_1, 1);
    QCOMPARE(desk.sent.size(), 9);
    desk.set("EN17", REMOVE_JETON, PLAYER_1, 1);
    QCOMPARE(desk.sent.size(), 12);
    QVERIFY(desk.refused.isEmpty());
}

void tst_number_control::a_system_player_is_never_refused()
{
    control_desk desk(false);
    desk.table.make_system_player(PLAYER_2);
    desk.table.set_credit(PLAYER_2, -50);
    desk.set("GS", SET_JETON, PLAYER_2, 100);
    desk.set("DN17", SET_JETON, PLAYER_2, 100);
    QCOMPARE(desk.sent.size(), 16);
    QVERIFY(desk.refused.isEmpty());
}

void tst_number_control::without_a_player_nothing_happens()
{
    control_desk desk(false);
    for (const setting_jeton_action action : {SET_JETON, REMOVE_JETON, SELECT_JETON}) {
        desk.set("GS", action, NO_PLAYER, 1);
        desk.set("EN17", action, NO_PLAYER, 1);
    }
    QVERIFY(desk.sent.isEmpty() && desk.drawn.isEmpty() && desk.refused.isEmpty());
}

void tst_number_control::a_click_sends_the_chance_at_its_point_data()
{
    QTest::addColumn<setting_jeton_action>("action");
    QTest::addColumn<QPoint>("point");
    QTest::addColumn<QString>("jeton");
    // clang-format off
    QTest::newRow("left click")   << SET_JETON    << QPoint(668, 317) << "PL07";
    QTest::newRow("right click")  << REMOVE_JETON << QPoint(729, 604) << "TS02";
    QTest::newRow("hover")        << SELECT_JETON << QPoint(575, 734) << "EC03";
    QTest::newRow("street")       << SET_JETON    << QPoint(792, 574) << "TP03";
    QTest::newRow("0/2/3")        << SET_JETON    << QPoint(830, 490) << "TP02";
    // clang-format on
}

void tst_number_control::a_click_sends_the_chance_at_its_point()
{
    QFETCH(setting_jeton_action, action);
    QFETCH(QPoint, point);
    QFETCH(QString, jeton);
    control_desk desk(false);
    desk.control.set_remove_jeton_via_table_point(action, point);
    QCOMPARE(desk.sent, QStringList{jeton});
    QCOMPARE(desk.details, QStringList{QString("%1 0 1").arg(action)});
    QVERIFY(desk.drawn.isEmpty());
}

void tst_number_control::a_click_follows_the_scale_and_the_form()
{
    // At 0.3 the 7 lies from x 467 to 488 and y 221 to 266.
    control_desk desk(true);
    desk.control.set_reduction(0.3);
    desk.control.set_remove_jeton_via_table_point(SET_JETON, QPoint(467, 221));
    desk.control.set_remove_jeton_via_table_point(SET_JETON, QPoint(488, 266));
    desk.control.set_remove_jeton_via_table_point(SET_JETON, QPoint(467, 220));
    QCOMPARE(desk.sent, (QStringList{"PL07", "PL07"}));
    desk.control.set_reduction(0.0);
    desk.control.set_remove_jeton_via_table_point(SET_JETON, QPoint(860, 500));
    QCOMPARE(desk.sent.last(), QString("PL37"));
    desk.settings.set_s_table_form(0);
    desk.control.set_remove_jeton_via_table_point(SET_JETON, QPoint(860, 500));
    QCOMPARE(desk.sent.last(), QString("PL00"));
}

void tst_number_control::a_click_on_an_announcement_lays_it_out()
{
    control_desk desk(false);
    const QPoint kleine_serie(950, 420);
    desk.control.set_remove_jeton_via_table_point(SET_JETON, kleine_serie);
    QCOMPARE(desk.sent.join(' '), QString("CH08 CH43 CH16 CH52 CH30 CH36"));
    QCOMPARE(desk.details.count(QString("%1 0 1").arg(SET_JETON)), 6);
    desk.control.set_remove_jeton_via_table_point(SELECT_JETON, kleine_serie);
    QCOMPARE(desk.drawn, QStringList{"KS"});
    QCOMPARE(desk.sent.size(), 6);
    desk.table.set_credit(PLAYER_1, 5);
    desk.control.set_remove_jeton_via_table_point(SET_JETON, kleine_serie);
    QCOMPARE(desk.refused, QList<int>{6});
    QCOMPARE(desk.sent.size(), 6);
}

void tst_number_control::a_click_beside_every_field_sends_nothing_data()
{
    QTest::addColumn<bool>("american");
    QTest::addColumn<QPoint>("point");
    QTest::newRow("between the dozens") << false << QPoint(590, 630);
    QTest::newRow("beside the net") << false << QPoint(604, 400);
    QTest::newRow("row of the finals") << false << QPoint(950, 550);
    QTest::newRow("announcement of the other form") << true << QPoint(950, 420);
    QTest::newRow("outside") << true << QPoint(-1, -1);
}

void tst_number_control::a_click_beside_every_field_sends_nothing()
{
    QFETCH(bool, american);
    QFETCH(QPoint, point);
    control_desk desk(american);
    for (const setting_jeton_action action : {SET_JETON, REMOVE_JETON, SELECT_JETON})
        desk.control.set_remove_jeton_via_table_point(action, point);
    QVERIFY(desk.sent.isEmpty() && desk.drawn.isEmpty() && desk.refused.isEmpty());
}

void tst_number_control::a_click_belongs_to_the_active_player()
{
    control_desk desk(false);
    desk.table.make_active(PLAYER_2);
    desk.control.set_remove_jeton_via_table_point(SET_JETON, QPoint(700, 620));
    QCOMPARE(desk.sent, QStringList{"DZ01"});
    QCOMPARE(desk.details, QStringList{QString("%1 1 1").arg(SET_JETON)});
    for (int i = 0; i < general_player::player_count; ++i)
        desk.table.make_system_player(static_cast<player_names>(i));
    QCOMPARE(desk.table.active_player(), NO_PLAYER);
    for (const setting_jeton_action action : {SET_JETON, REMOVE_JETON, SELECT_JETON}) {
        desk.control.set_remove_jeton_via_table_point(action, QPoint(700, 620));
        desk.control.set_remove_jeton_via_table_point(action, QPoint(950, 420));
    }
    QCOMPARE(desk.sent.size(), 1);
    QVERIFY(desk.drawn.isEmpty() && desk.refused.isEmpty());
}

void tst_number_control::a_click_out_of_a_click_is_dropped()
{
    control_desk desk(false);
    const QMetaObject::Connection nested =
        connect(&desk.control, &number_control::jeton_type_on_pos, &desk.control, [&desk] {
            desk.control.set_remove_jeton_via_table_point(SET_JETON, QPoint(60, 320));
        });
    desk.control.set_remove_jeton_via_table_point(SET_JETON, QPoint(700, 620));
    QCOMPARE(desk.sent, QStringList{"DZ01"});
    QVERIFY(disconnect(nested));
    desk.control.set_remove_jeton_via_table_point(SET_JETON, QPoint(60, 320));
    QCOMPARE(desk.sent, (QStringList{"DZ01", "KL01"}));
}

void tst_number_control::the_announcements_of_a_number_are_told_data()
{
    QTest::addColumn<bool>("american");
    QTest::addColumn<int>("number");
    QTest::addColumn<QString>("names");
    // clang-format off
    QTest::newRow("17, french") << false << 17
        << "FI07 OR OP DN21 DN02 DN25 DN17 DN34 DN06 DN27 ZN02 ZN25 ZN17 ZN34 ZN06 EN25 EN17 EN34";
    QTest::newRow("zero, french") << false << 0
        << "FI00 GS ZS DN35 DN03 DN26 DN00 DN32 DN15 DN19 ZN03 ZN26 ZN00 ZN32 ZN15 EN26 EN00 EN32";
    QTest::newRow("11, american") << true << 11
        << "FI01 KS DN09 DN26 DN30 DN11 DN07 DN20 DN32 ZN26 ZN30 ZN11 ZN07 ZN20 EN30 EN11 EN07";
    QTest::newRow("double zero, american") << true << 37
        << "FI00 DN36 DN13 DN01 DN37 DN27 DN10 DN25 ZN13 ZN01 ZN37 ZN27 ZN10 EN01 EN37 EN27";
    QTest::newRow("no number") << true << 38 << "";
    QTest::newRow("hand change") << false << 99 << "";
    // clang-format on
}

void tst_number_control::the_announcements_of_a_number_are_told()
{
    QFETCH(bool, american);
    QFETCH(int, number);
    QFETCH(QString, names);
    const control_desk desk(american);
    QStringList told;
    for (const jetons::ext_jeton_names name : desk.control.hit_list(number))
        told.append(jetons::name(name));
    QCOMPARE(told.join(' '), names);
}

void tst_number_control::a_system_lays_pieces_of_value_one_data()
{
    QTest::addColumn<QString>("jeton");
    QTest::addColumn<QString>("ext_jeton");
    QTest::addColumn<table_form>("form");
    QTest::addColumn<QString>("laid"); // place and pieces, in the order of the places
    constexpr table_form french = table_form::french;
    constexpr table_form american = table_form::american;
    // clang-format off
    QTest::newRow("single jeton")       << "EC03" << ""     << french   << "EC03*4";
    QTest::newRow("place named twice")  << ""     << "GS"   << french
        << "CH07*4 CH15*4 CH21*4 CH22*4 CH35*4 TP02*8 CA18*8";
    QTest::newRow("neighbour bet")      << ""     << "EN37" << american << "PL01*4 PL27*4 PL37*4";
    QTest::newRow("none on this table") << ""     << "GS"   << american << "";
    QTest::newRow("place of the other table") << "TP02" << "" << american << "TP02*4";
    QTest::newRow("nothing at all")     << ""     << ""     << french   << "";
    // clang-format on
}

void tst_number_control::a_system_lays_pieces_of_value_one()
{
    QFETCH(QString, jeton);
    QFETCH(QString, ext_jeton);
    QFETCH(table_form, form);
    QFETCH(QString, laid);
    game_table table;
    table.make_system_player(PLAYER_2);
    lay_system_bet(
        table, form, PLAYER_2, jetons::value_of(jeton), jetons::ext_value_of(ext_jeton), 4);
    QStringList lying;
    qint64 pieces = 0;
    for (const jeton_info& each : table.jetons_of(PLAYER_2)) {
        QCOMPARE(each.value, 1);
        lying.append(QString("%1*%2").arg(jetons::name(each.jeton)).arg(each.count));
        pieces += each.count;
    }
    QCOMPARE(lying.join(' '), laid);
    QCOMPARE(table.seeded(PLAYER_2), pieces);
    QCOMPARE(table.credit(PLAYER_2), -pieces);
}

int main(int argc, char** argv)
{
    return run_in_own_box<tst_number_control>(argc, argv);
}

#include "tst_number_control.moc"
