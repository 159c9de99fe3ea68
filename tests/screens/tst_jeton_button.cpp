#include "chance_geometry.h"
#include "jeton_button.h"
#include "window_bench.h"

#include <QImage>
#include <QSignalSpy>

using general_player::PLAYER_1;
using general_player::PLAYER_2;
using general_player::PLAYER_4;
using general_player::player_names;

Q_DECLARE_METATYPE(Qt::MouseButton)

/// One jeton on the screen: what it asks for and how it looks.
class tst_jeton_button : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void it_is_named_by_player_and_place_data();
    void it_is_named_by_player_and_place();
    void a_press_asks_for_one_piece_data();
    void a_press_asks_for_one_piece();
    void a_double_click_is_a_second_press();
    void a_held_button_asks_again_every_200_ms_data();
    void a_held_button_asks_again_every_200_ms();
    void a_release_stops_its_own_timer();
    void a_jeton_out_of_sight_asks_no_more();
    void another_window_ends_the_repeating();
    void it_never_takes_the_focus();
    void it_follows_the_scale_data();
    void it_follows_the_scale();
    void the_count_stays_within_the_jeton_data();
    void the_count_stays_within_the_jeton();
    void a_changed_count_is_painted();
    void a_long_count_is_told_by_a_tool_tip();
};

namespace
{

constexpr table_form french = table_form::french;

/// A shown window with one jeton, and what the jeton asks for.
struct jeton_desk {
    explicit jeton_desk(jeton_info info = {PLAYER_2, jetons::PL07, 5, 3})
        : button(new jeton_button(info, &window))
    {
        window.resize(1000, 800);
        button->place_on(french, 0.0);
        window.show();
    }

    QTimer* timer(const char* name) const { return child_of<QTimer>(*button, name); }
    QTimer* increase_timer() const { return timer("increase_timer"); }
    QTimer* decrease_timer() const { return timer("decrease_timer"); }

    QWidget window;
    jeton_button* button;
    QSignalSpy more{button, &jeton_button::request_increaseJeton};
    QSignalSpy less{button, &jeton_button::request_decreaseJeton};
};

QImage picture_of(jeton_button& button)
{
    return button.grab().toImage().convertToFormat(QImage::Format_RGB32);
}

/// The area in which two pictures differ.
QRect difference(const QImage& one, const QImage& other)
{
    QRect area;
    for (int y = 0; y < one.height(); ++y) {
        for (int x = 0; x < one.width(); ++x) {
            if (one.pixel(x, y) != other.pixel(x, y)) area |= QRect(x, y, 1, 1);
        }
    }
    return area;
}

} // namespace

void tst_jeton_button::initTestCase()
{
    qRegisterMetaType<jeton_info>("jeton_button::jeton_info");
}

void tst_jeton_button::it_is_named_by_player_and_place_data()
{
    QTest::addColumn<int>("player");
    QTest::addColumn<QString>("place");
    QTest::addColumn<QString>("name");
    // clang-format off
    QTest::newRow("number")        << 0 << "PL07"        << "jeton_1_PL07";
    QTest::newRow("double zero")   << 3 << "PL37"        << "jeton_4_PL37";
    QTest::newRow("prison")        << 0 << "PRIS_EC01"   << "jeton_1_PRIS_EC01";
    QTest::newRow("double prison") << 1 << "D_PRIS_EC06" << "jeton_2_D_PRIS_EC06";
    // clang-format on
}

void tst_jeton_button::it_is_named_by_player_and_place()
{
    QFETCH(int, player);
    QFETCH(QString, place);
    QFETCH(QString, name);
    const jeton_button button({static_cast<player_names>(player), jetons::value_of(place), 1, 1},
                              nullptr);
    QCOMPARE(button.objectName(), name);
}

void tst_jeton_button::a_press_asks_for_one_piece_data()
{
    QTest::addColumn<Qt::MouseButton>("mouse");
    QTest::addColumn<int>("more");
    QTest::addColumn<int>("less");
    QTest::newRow("left") << Qt::LeftButton << 1 << 0;
    QTest::newRow("right") << Qt::RightButton << 0 << 1;
    QTest::newRow("middle") << Qt::MiddleButton << 0 << 0;
}

void tst_jeton_button::a_press_asks_for_one_piece()
{
    QFETCH(Qt::MouseButton, mouse);
    QFETCH(int, more);
    QFETCH(int, less);
    jeton_desk desk;
    QTest::mousePress(desk.button, mouse);
    QCOMPARE(desk.more.count(), more);
    QCOMPARE(desk.less.count(), less);
    QTest::mouseRelease(desk.button, mouse);
    QCOMPARE(desk.more.count() + desk.less.count(), more + less);
    for (const QSignalSpy* asked : {&desk.more, &desk.less}) {
        if (asked->isEmpty()) continue;
        const auto info = asked->first().first().value<jeton_info>();
        QCOMPARE(info.player, PLAYER_2);
        QCOMPARE(info.jeton, jetons::PL07);
        QCOMPARE(info.value, 5);
        QCOMPARE(info.count, 1);
    }
}

void tst_jeton_button::a_double_click_is_a_second_press()
{
    jeton_desk desk;
    QTest::mousePress(desk.button, Qt::LeftButton);
    QTest::mouseRelease(desk.button, Qt::LeftButton);
    QMouseEvent second(
        QEvent::MouseButtonDblClick, QPointF(5, 5), Qt::LeftButton, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(desk.button, &second);
    QCOMPARE(desk.more.count(), 2);
    QVERIFY(desk.increase_timer()->isActive());
}

void tst_jeton_button::a_held_button_asks_again_every_200_ms_data()
{
    QTest::addColumn<Qt::MouseButton>("mouse");
    QTest::newRow("left") << Qt::LeftButton;
    QTest::newRow("right") << Qt::RightButton;
}

void tst_jeton_button::a_held_button_asks_again_every_200_ms()
{
    QFETCH(Qt::MouseButton, mouse);
    jeton_desk desk;
    const bool is_left = mouse == Qt::LeftButton;
    QTimer* const timer = is_left ? desk.increase_timer() : desk.decrease_timer();
    QTimer* const other = is_left ? desk.decrease_timer() : desk.increase_timer();
    const QSignalSpy& asked = is_left ? desk.more : desk.less;
    QTest::mousePress(desk.button, mouse);
    QCOMPARE(timer->interval(), 200);
    QVERIFY(!timer->isSingleShot());
    QVERIFY(!other->isActive());
    for (int tick = 1; tick <= 3; ++tick) {
        QVERIFY(fire(timer));
        QCOMPARE(asked.count(), 1 + tick);
        QCOMPARE(asked.last().first().value<jeton_info>().count, 1);
    }
    QTest::mouseRelease(desk.button, mouse);
    QVERIFY(!timer->isActive());
    QCOMPARE(desk.more.count() + desk.less.count(), 4);
}

void tst_jeton_button::a_release_stops_its_own_timer()
{
    jeton_desk desk;
    QTest::mousePress(desk.button, Qt::LeftButton);
    QTest::mousePress(desk.button, Qt::RightButton);
    QTest::mouseRelease(desk.button, Qt::LeftButton);
    QVERIFY(!desk.increase_timer()->isActive());
    QVERIFY(desk.decrease_timer()->isActive());
    QTest::mouseRelease(desk.button, Qt::RightButton);
    QVERIFY(!desk.decrease_timer()->isActive());
}

void tst_jeton_button::a_jeton_out_of_sight_asks_no_more()
{
    jeton_desk desk;
    QTest::mousePress(desk.button, Qt::LeftButton);
    QTest::mousePress(desk.button, Qt::RightButton);
    desk.button->hide();
    QVERIFY(!desk.increase_timer()->isActive());
    QVERIFY(!desk.decrease_timer()->isActive());
}

void tst_jeton_button::another_window_ends_the_repeating()
{
    jeton_desk desk;
    QTest::mousePress(desk.button, Qt::LeftButton);
    QEvent deactivated(QEvent::WindowDeactivate);
    QApplication::sendEvent(desk.button, &deactivated);
    QVERIFY(!desk.increase_timer()->isActive());
}

void tst_jeton_button::it_never_takes_the_focus()
{
    const jeton_desk desk;
    QCOMPARE(desk.button->focusPolicy(), Qt::NoFocus);
}

void tst_jeton_button::it_follows_the_scale_data()
{
    QTest::addColumn<double>("reduction");
    QTest::addColumn<QRect>("place");
    // x 668, y 365 in the window: 30 pixels of the y keep their size.
    // clang-format off
    QTest::newRow("full size") << 0.0 << QRect(668, 365, 31, 31);
    QTest::newRow("0.1")       << 0.1 << QRect(601, 331, 27, 27); // 601.2, 301.5 + 30, 27.9
    QTest::newRow("0.2")       << 0.2 << QRect(534, 298, 24, 24); // 534.4, 268 + 30, 24.8
    QTest::newRow("0.3")       << 0.3 << QRect(467, 264, 21, 21); // 467.6, 234.5 + 30, 21.7
    // clang-format on
}

void tst_jeton_button::it_follows_the_scale()
{
    QFETCH(double, reduction);
    QFETCH(QRect, place);
    const jeton_desk desk;
    desk.button->place_on(french, reduction);
    QCOMPARE(desk.button->geometry(), place);
}

void tst_jeton_button::the_count_stays_within_the_jeton_data()
{
    QTest::addColumn<int>("count");
    QTest::addColumn<double>("reduction");
    for (const int count : {8, 88, 888, 8888, 88888, 888888, 8888888}) {
        for (const double reduction : {0.0, 0.1, 0.2, 0.3})
            QTest::addRow("%d at %.1f", count, reduction) << count << reduction;
    }
}

void tst_jeton_button::the_count_stays_within_the_jeton()
{
    QFETCH(int, count);
    QFETCH(double, reduction);
    jeton_desk desk({PLAYER_1, jetons::PL07, 1, 1});
    desk.button->place_on(french, reduction);
    const QImage one = picture_of(*desk.button);
    desk.button->set_stack(1, count);
    const QRect text = difference(one, picture_of(*desk.button));
    QVERIFY(!text.isEmpty());
    QVERIFY(desk.button->rect().adjusted(0, 1, 0, -1).contains(text));
    // Centred: as much room on the left as on the right, but for a pixel of rounding.
    const int right_room = desk.button->width() - 1 - text.right();
    QVERIFY(qAbs(text.left() - right_room) <= 3);
}

void tst_jeton_button::a_changed_count_is_painted()
{
    jeton_desk desk({PLAYER_4, jetons::EC03, 2, 7});
    const QImage seven = picture_of(*desk.button);
    desk.button->set_stack(2, 9);
    QVERIFY(!difference(seven, picture_of(*desk.button)).isEmpty());
    desk.button->set_stack(2, 7);
    QVERIFY(difference(seven, picture_of(*desk.button)).isEmpty());
    QCOMPARE(desk.button->info().count, 7);
    QCOMPARE(desk.button->info().value, 2);
}

void tst_jeton_button::a_long_count_is_told_by_a_tool_tip()
{
    const jeton_desk desk;
    QCOMPARE(desk.button->toolTip(), QString());
    desk.button->set_stack(1, 1000);
    QCOMPARE(desk.button->toolTip(), QString("1000"));
    desk.button->set_stack(1, 999);
    QCOMPARE(desk.button->toolTip(), QString());
}

int main(int argc, char** argv)
{
    return run_window_test<tst_jeton_button>(argc, argv);
}

#include "tst_jeton_button.moc"
