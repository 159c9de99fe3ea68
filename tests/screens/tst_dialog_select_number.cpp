#include "dialog_select_number.h"
#include "game_table.h"
#include "setting.h"
#include "window_bench.h"

#include <QComboBox>
#include <QDialogButtonBox>
#include <QLabel>
#include <QLayout>
#include <QPushButton>

using general_player::player_names;
using general_setting::REMOVE_JETON;
using general_setting::SET_JETON;
using general_setting::setting_jeton_action;

namespace
{

struct announcement {
    setting_jeton_action action;
    QString name;
    player_names player;
    int amount;
};

/// The dialog, its table, and what it sent.
struct select_desk {
    explicit select_desk(bool american = false)
    {
        settings.set_s_table_form(american ? 1 : 0);
        QObject::connect(&dialog,
                         &Dialog_Select_Number::special_combo_set_by_type,
                         &dialog,
                         [this](setting_jeton_action action,
                                jetons::ext_jeton_names name,
                                player_names player,
                                int amount) {
                             sent.append({action, jetons::name(name), player, amount});
                         });
    }

    QComboBox& numbers() { return *child_of<QComboBox>(dialog, "COB_number"); }
    void open(setting_jeton_action action, const QString& range)
    {
        dialog.open_for(action, jetons::ext_value_of(range));
        dialog.show();
    }
    void click(QDialogButtonBox::StandardButton button)
    {
        child_of<QDialogButtonBox>(dialog, "buttonBox")->button(button)->click();
    }

    setting settings;
    game_table table;
    Dialog_Select_Number dialog{table, settings};
    QVector<announcement> sent;
};

} // namespace

class tst_dialog_select_number : public QObject
{
    Q_OBJECT

private slots:
    void the_title_tells_range_and_action_data();
    void the_title_tells_range_and_action();
    void the_numbers_of_a_range_are_offered_data();
    void the_numbers_of_a_range_are_offered();
    void the_chosen_announcement_goes_out_data();
    void the_chosen_announcement_goes_out();
    void the_active_player_gets_it();
    void without_an_active_player_nothing_goes_out();
    void cancel_sends_nothing();
    void other_names_are_ignored();
    void the_language_changes_live();
    void everything_fits_at_every_scale();
};

void tst_dialog_select_number::the_title_tells_range_and_action_data()
{
    QTest::addColumn<QString>("range");
    QTest::addColumn<bool>("removes");
    QTest::addColumn<QString>("title");
    // clang-format off
    QTest::newRow("set FI")    << "FI00" << false << "Finale setzen";
    QTest::newRow("remove FI") << "FI00" << true  << "Finale löschen";
    QTest::newRow("set EN")    << "EN00" << false << "Einen Nachbar setzen";
    QTest::newRow("remove EN") << "EN00" << true  << "Einen Nachbar löschen";
    QTest::newRow("set ZN")    << "ZN00" << false << "Zwei Nachbarn setzen";
    QTest::newRow("remove ZN") << "ZN00" << true  << "Zwei Nachbarn löschen";
    QTest::newRow("set DN")    << "DN00" << false << "Drei Nachbarn setzen";
    QTest::newRow("remove DN") << "DN00" << true  << "Drei Nachbarn löschen";
    // clang-format on
}

void tst_dialog_select_number::the_title_tells_range_and_action()
{
    QFETCH(QString, range);
    QFETCH(bool, removes);
    QFETCH(QString, title);
    select_desk desk;
    desk.open(removes ? REMOVE_JETON : SET_JETON, range);
    QCOMPARE(desk.dialog.windowTitle(), title);
}

void tst_dialog_select_number::the_numbers_of_a_range_are_offered_data()
{
    QTest::addColumn<QString>("range");
    QTest::addColumn<bool>("american");
    QTest::addColumn<int>("count");
    QTest::addColumn<QString>("last");
    // clang-format off
    QTest::newRow("finals, french")       << "FI00" << false << 10 << "9";
    QTest::newRow("finals, american")     << "FI00" << true  << 10 << "9";
    QTest::newRow("neighbours, french")   << "EN00" << false << 37 << "36";
    QTest::newRow("neighbours, american") << "EN00" << true  << 38 << "00";
    QTest::newRow("two, american")        << "ZN00" << true  << 38 << "00";
    QTest::newRow("three, french")        << "DN00" << false << 37 << "36";
    // clang-format on
}

void tst_dialog_select_number::the_numbers_of_a_range_are_offered()
{
    QFETCH(QString, range);
    QFETCH(bool, american);
    QFETCH(int, count);
    QFETCH(QString, last);
    select_desk desk(!american);
    desk.open(SET_JETON, "DN00");
    desk.settings.set_s_table_form(american ? 1 : 0);
    desk.open(SET_JETON, range);
    QCOMPARE(desk.numbers().count(), count);
    QCOMPARE(desk.numbers().itemText(0), QString("0"));
    QCOMPARE(desk.numbers().itemText(7), QString("7"));
    QCOMPARE(desk.numbers().itemText(count - 1), last);
    QCOMPARE(desk.numbers().currentIndex(), 0);
}

void tst_dialog_select_number::the_chosen_announcement_goes_out_data()
{
    QTest::addColumn<QString>("range");
    QTest::addColumn<bool>("removes");
    QTest::addColumn<QString>("number");
    QTest::addColumn<QString>("name");
    // clang-format off
    QTest::newRow("FI00")           << "FI00" << false << "0"  << "FI00";
    QTest::newRow("FI09")           << "FI00" << true  << "9"  << "FI09";
    QTest::newRow("EN00")           << "EN00" << false << "0"  << "EN00";
    QTest::newRow("EN36")           << "EN00" << true  << "36" << "EN36";
    QTest::newRow("one around 00")  << "EN00" << false << "00" << "EN37";
    QTest::newRow("ZN17")           << "ZN00" << false << "17" << "ZN17";
    QTest::newRow("two around 00")  << "ZN00" << true  << "00" << "ZN37";
    QTest::newRow("DN05")           << "DN00" << true  << "5"  << "DN05";
    QTest::newRow("three round 00") << "DN00" << false << "00" << "DN37";
    // clang-format on
}

void tst_dialog_select_number::the_chosen_announcement_goes_out()
{
    QFETCH(QString, range);
    QFETCH(bool, removes);
    QFETCH(QString, number);
    QFETCH(QString, name);
    select_desk desk(true);
    desk.open(removes ? REMOVE_JETON : SET_JETON, range);
    desk.numbers().setCurrentText(number);
    QCOMPARE(desk.numbers().currentText(), number);
    desk.click(QDialogButtonBox::Ok);
    QCOMPARE(desk.sent.size(), 1);
    QCOMPARE(desk.sent.first().name, name);
    QCOMPARE(desk.sent.first().action, removes ? REMOVE_JETON : SET_JETON);
    QCOMPARE(desk.sent.first().player, general_player::PLAYER_1);
    QCOMPARE(desk.sent.first().amount, 1);
    QVERIFY(desk.dialog.isHidden());
    QCOMPARE(desk.dialog.result(), int(QDialog::Accepted));
}

void tst_dialog_select_number::the_active_player_gets_it()
{
    select_desk desk;
    QVERIFY(desk.table.make_active(general_player::PLAYER_3));
    desk.open(SET_JETON, "FI00");
    desk.click(QDialogButtonBox::Ok);
    QCOMPARE(desk.sent.size(), 1);
    QCOMPARE(desk.sent.first().player, general_player::PLAYER_3);
}

void tst_dialog_select_number::without_an_active_player_nothing_goes_out()
{
    select_desk desk;
    for (int player = 0; player < general_player::player_count; ++player)
        desk.table.make_system_player(static_cast<player_names>(player));
    QCOMPARE(desk.table.active_player(), general_player::NO_PLAYER);
    desk.open(SET_JETON, "EN00");
    desk.click(QDialogButtonBox::Ok);
    QVERIFY(desk.sent.isEmpty());
    QVERIFY(desk.dialog.isHidden());
}

void tst_dialog_select_number::cancel_sends_nothing()
{
    select_desk desk;
    desk.open(SET_JETON, "EN00");
    desk.numbers().setCurrentText("12");
    desk.click(QDialogButtonBox::Cancel);
    QVERIFY(desk.sent.isEmpty());
    QVERIFY(desk.dialog.isHidden());
}

void tst_dialog_select_number::other_names_are_ignored()
{
    select_desk desk;
    desk.open(SET_JETON, "ZN00");
    for (const char* name : {"GS", "EN01", "ENZNDN", "nonsense"})
        desk.dialog.open_for(REMOVE_JETON, jetons::ext_value_of(name));
    QCOMPARE(desk.dialog.windowTitle(), QString("Zwei Nachbarn setzen"));
    desk.click(QDialogButtonBox::Ok);
    QCOMPARE(desk.sent.size(), 1);
    QCOMPARE(desk.sent.first().name, QString("ZN00"));
}

void tst_dialog_select_number::the_language_changes_live()
{
    select_desk desk;
    desk.open(REMOVE_JETON, "DN00");
    desk.numbers().setCurrentText("21");
    desk.dialog.setWindowTitle({});
    QEvent change(QEvent::LanguageChange);
    QCoreApplication::sendEvent(&desk.dialog, &change);
    QCOMPARE(desk.dialog.windowTitle(), QString("Drei Nachbarn löschen"));
    QCOMPARE(desk.numbers().currentText(), QString("21"));
}

void tst_dialog_select_number::everything_fits_at_every_scale()
{
    select_desk desk(true);
    desk.open(SET_JETON, "DN00");
    const QVector<QSize> sizes = {{300, 130}, {270, 117}, {240, 104}, {210, 91}};
    for (int step = 0; step < sizes.size(); ++step) {
        desk.settings.set_s_scr_res_factor(step);
        desk.dialog.modify_window_based_on_scale();
        QCoreApplication::processEvents();
        QCOMPARE(desk.dialog.size(), sizes[step]);
        const auto* label = child_of<QLabel>(desk.dialog, "LA_number");
        QVERIFY(label->width() >= label->fontMetrics().horizontalAdvance(label->text()));
        QVERIFY(desk.numbers().height() >= desk.numbers().fontMetrics().height());
        QVERIFY(desk.dialog.rect().contains(desk.numbers().geometry()));
        const auto* box = child_of<QDialogButtonBox>(desk.dialog, "buttonBox");
        QVERIFY(desk.dialog.rect().contains(box->geometry()));
        QVERIFY(!box->geometry().intersects(desk.numbers().geometry()));
    }
}

int main(int argc, char** argv)
{
    return run_window_test<tst_dialog_select_number>(argc, argv);
}

#include "tst_dialog_select_number.moc"
