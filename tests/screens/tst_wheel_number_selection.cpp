#include "numberstorage.h"
#include "setting.h"
#include "wheel_number_selection.h"
#include "window_bench.h"

#include <QLabel>
#include <QPushButton>
#include <QRegularExpression>
#include <QtMath>

#include <algorithm>
#include <cmath>

namespace
{

struct wheel_desk {
    explicit wheel_desk(bool american = false)
    {
        settings.set_s_table_form(american ? 1 : 0);
        dialog.show();
    }

    /// The buttons of the pockets, clockwise from the top, as they lie on the screen.
    QList<QPushButton*> pockets() const
    {
        const QRegularExpression name("^PB_\\d+$");
        QList<QPushButton*> found = dialog.findChildren<QPushButton*>(name);
        QPointF middle; // of a full circle of evenly placed buttons
        for (const QPushButton* pocket : found)
            middle += QRectF(pocket->geometry()).center() / found.size();
        const auto angle = [middle](const QPushButton* pocket) {
            const QPointF from_middle = QRectF(pocket->geometry()).center() - middle;
            const double clockwise = std::atan2(from_middle.x(), -from_middle.y());
            return std::fmod(clockwise + 2 * M_PI + 0.02, 2 * M_PI); // the topmost is the first
        };
        std::sort(found.begin(), found.end(), [angle](QPushButton* left, QPushButton* right) {
            return angle(left) < angle(right);
        });
        return found;
    }
    void click(const QString& name) const
    {
        QTest::mouseClick(child_of<QPushButton>(dialog, name), Qt::LeftButton);
    }
    QString shown_text() const { return child_of<QLabel>(dialog, "LB_manual_number")->text(); }
    QPushButton& clear_button() const
    {
        return *child_of<QPushButton>(dialog, "PB_clear_selection_number");
    }

    setting settings;
    numberStorage numbers{settings};
    wheel_number_selection dialog{numbers, settings};
};

QStringList texts_of(const QList<QPushButton*>& buttons)
{
    QStringList texts;
    for (const QPushButton* button : buttons)
        texts.append(button->text());
    return texts;
}

} // namespace

class tst_wheel_number_selection : public QObject
{
    Q_OBJECT

private slots:
    void each_pocket_has_a_button_data();
    void each_pocket_has_a_button();
    void the_buttons_lie_in_the_order_of_the_wheel_data();
    void the_buttons_lie_in_the_order_of_the_wheel();
    void a_button_has_the_colour_of_its_number_data();
    void a_button_has_the_colour_of_its_number();
    void a_click_sets_the_number_and_closes_data();
    void a_click_sets_the_number_and_closes();
    void a_later_choice_overrides_an_earlier_one();
    void a_click_beside_the_disc_is_none();
    void escape_and_cancel_leave_an_earlier_number_untouched_data();
    void escape_and_cancel_leave_an_earlier_number_untouched();
    void the_number_can_be_taken_back();
    void without_a_number_there_is_nothing_to_take_back();
    void the_number_that_waits_is_shown();
    void another_table_gets_its_pockets_at_opening();
    void nothing_overlaps_at_any_scale_data();
    void nothing_overlaps_at_any_scale();
    void the_language_changes_live();
};

void tst_wheel_number_selection::each_pocket_has_a_button_data()
{
    QTest::addColumn<bool>("american");
    QTest::addColumn<int>("count");
    QTest::newRow("french") << false << 37;
    QTest::newRow("american") << true << 38;
}

void tst_wheel_number_selection::each_pocket_has_a_button()
{
    QFETCH(bool, american);
    QFETCH(int, count);
    const wheel_desk desk(american);
    QCOMPARE(desk.pockets().size(), count);
    for (int number = 0; number < count; ++number) {
        const auto* pocket = child_of<QPushButton>(desk.dialog, QString("PB_%1").arg(number));
        QCOMPARE(pocket->text(), number == 37 ? QString("00") : QString::number(number));
        QVERIFY(pocket->isVisible() && pocket->isEnabled());
    }
}

void tst_wheel_number_selection::the_buttons_lie_in_the_order_of_the_wheel_data()
{
    QTest::addColumn<bool>("american");
    QTest::addColumn<QString>("order");
    QTest::newRow("french") << false
                            << "0 32 15 19 4 21 2 25 17 34 6 27 13 36 11 30 8 23 10 5 24 16 33 1 "
                               "20 14 31 9 22 18 29 7 28 12 35 3 26";
    QTest::newRow("american") << true
                              << "0 28 9 26 30 11 7 20 32 17 5 22 34 15 3 24 36 13 1 00 27 10 25 "
                                 "29 12 8 19 31 18 6 21 33 16 4 23 35 14 2";
}

void tst_wheel_number_selection::the_buttons_lie_in_the_order_of_the_wheel()
{
    QFETCH(bool, american);
    QFETCH(QString, order);
    const wheel_desk desk(american);
    QCOMPARE(texts_of(desk.pockets()).join(' '), order);
}

void tst_wheel_number_selection::a_button_has_the_colour_of_its_number_data()
{
    QTest::addColumn<int>("number");
    QTest::addColumn<QString>("colour");
    const QVector<int> reds = {1, 3, 5, 7, 9, 12, 14, 16, 18, 19, 21, 23, 25, 27, 30, 32, 34, 36};
    for (int number = 1; number <= 36; ++number)
        QTest::addRow("%d", number) << number << (reds.contains(number) ? "red" : "black");
    QTest::newRow("0") << 0 << "green";
    QTest::newRow("00") << 37 << "green";
}

void tst_wheel_number_selection::a_button_has_the_colour_of_its_number()
{
    QFETCH(int, number);
    QFETCH(QString, colour);
    const wheel_desk desk(true);
    auto* pocket = child_of<QPushButton>(desk.dialog, QString("PB_%1").arg(number));
    const QImage image = pocket->grab().toImage();
    const QColor seen = image.pixelColor(image.width() / 2, image.height() * 5 / 6);
    QString seen_colour = "black";
    if (seen.red() > 2 * std::max(seen.green(), seen.blue())) seen_colour = "red";
    if (seen.green() > 2 * std::max(seen.red(), seen.blue())) seen_colour = "green";
    QCOMPARE(seen_colour, colour);
    if (colour == "black") QVERIFY(seen.lightness() < 60);
}

void tst_wheel_number_selection::a_click_sets_the_number_and_closes_data()
{
    QTest::addColumn<QString>("button");
    QTest::addColumn<int>("number");
    QTest::addColumn<QString>("text");
    QTest::newRow("0") << "PB_0" << 0 << "0";
    QTest::newRow("17") << "PB_17" << 17 << "17";
    QTest::newRow("36") << "PB_36" << 36 << "36";
    QTest::newRow("00") << "PB_37" << 37 << "00";
}

void tst_wheel_number_selection::a_click_sets_the_number_and_closes()
{
    QFETCH(QString, button);
    QFETCH(int, number);
    QFETCH(QString, text);
    wheel_desk desk(true);
    desk.click(button);
    QVERIFY(desk.dialog.isHidden());
    QCOMPARE(desk.dialog.result(), int(QDialog::Accepted));
    QCOMPARE(desk.numbers.get_source_mode(), number_source::manual);
    QCOMPARE(desk.numbers.manual_number_text(), text);
    QCOMPARE(desk.numbers.next_number(), number);
    QCOMPARE(desk.numbers.get_source_mode(), number_source::random);
}

void tst_wheel_number_selection::a_later_choice_overrides_an_earlier_one()
{
    wheel_desk desk;
    desk.click("PB_5");
    desk.dialog.show();
    desk.click("PB_6");
    QCOMPARE(desk.numbers.next_number(), 6);
    QCOMPARE(desk.numbers.get_source_mode(), number_source::random);
}

void tst_wheel_number_selection::a_click_beside_the_disc_is_none()
{
    wheel_desk desk;
    auto* pocket = child_of<QPushButton>(desk.dialog, "PB_8");
    QTest::mouseClick(pocket, Qt::LeftButton, {}, QPoint(1, 1));
    QCOMPARE(desk.numbers.get_source_mode(), number_source::random);
    QVERIFY(desk.dialog.isVisible());
}

void tst_wheel_number_selection::escape_and_cancel_leave_an_earlier_number_untouched_data()
{
    QTest::addColumn<QString>("way");
    QTest::addColumn<bool>("is_set");
    for (const char* way : {"escape", "cancel", "close"}) {
        QTest::addRow("%s, a number waits", way) << way << true;
        QTest::addRow("%s, no number", way) << way << false;
    }
}

void tst_wheel_number_selection::escape_and_cancel_leave_an_earlier_number_untouched()
{
    QFETCH(QString, way);
    QFETCH(bool, is_set);
    wheel_desk desk;
    if (is_set) desk.numbers.set_manual_number(11);
    desk.dialog.set_manual_is_set(is_set);
    if (way == "escape") QTest::keyClick(&desk.dialog, Qt::Key_Escape);
    if (way == "cancel") desk.click("PB_cancel");
    if (way == "close") desk.dialog.close();
    QVERIFY(desk.dialog.isHidden());
    QCOMPARE(desk.dialog.result(), int(QDialog::Rejected));
    const number_source mode = is_set ? number_source::manual : number_source::random;
    QCOMPARE(desk.numbers.get_source_mode(), mode);
    if (is_set) QCOMPARE(desk.numbers.next_number(), 11);
}

void tst_wheel_number_selection::the_number_can_be_taken_back()
{
    wheel_desk desk;
    desk.numbers.set_manual_number(11);
    desk.dialog.set_manual_is_set(true);
    QVERIFY(desk.clear_button().isEnabled());
    QTest::mouseClick(&desk.clear_button(), Qt::LeftButton);
    QVERIFY(desk.dialog.isHidden());
    QCOMPARE(desk.numbers.get_source_mode(), number_source::random);
}

void tst_wheel_number_selection::without_a_number_there_is_nothing_to_take_back()
{
    wheel_desk desk;
    QVERIFY(!desk.clear_button().isEnabled());
    desk.dialog.set_manual_is_set(true);
    desk.dialog.set_manual_is_set(false);
    QVERIFY(!desk.clear_button().isEnabled());
}

void tst_wheel_number_selection::the_number_that_waits_is_shown()
{
    wheel_desk desk(true);
    auto* pocket = child_of<QPushButton>(desk.dialog, "PB_37");
    const QString no_number = desk.shown_text();
    const QImage plain = pocket->grab().toImage();
    desk.numbers.set_manual_number(37);
    desk.dialog.set_manual_is_set(true);
    QCOMPARE(desk.shown_text(), QString("Nächste gewählte Roulettezahl: 00"));
    QVERIFY(pocket->grab().toImage() != plain);
    desk.dialog.set_manual_is_set(false);
    QCOMPARE(desk.shown_text(), no_number);
    QVERIFY(pocket->grab().toImage() == plain);
}

void tst_wheel_number_selection::another_table_gets_its_pockets_at_opening()
{
    wheel_desk desk;
    desk.dialog.hide();
    desk.settings.set_s_table_form(1);
    desk.dialog.show();
    QCOMPARE(desk.pockets().size(), 38);
    QVERIFY(child_of<QPushButton>(desk.dialog, "PB_37")->isVisible());
    QCOMPARE(desk.pockets().at(1)->text(), QString("28"));
    desk.dialog.hide();
    desk.settings.set_s_table_form(0);
    desk.dialog.modify_window_based_on_scale();
    QCOMPARE(desk.pockets().size(), 37);
    desk.dialog.show();
    QCOMPARE(desk.pockets().at(1)->text(), QString("32"));
    desk.click("PB_32");
    QCOMPARE(desk.numbers.next_number(), 32);
}

void tst_wheel_number_selection::nothing_overlaps_at_any_scale_data()
{
    QTest::addColumn<bool>("american");
    QTest::addColumn<int>("step");
    QTest::addColumn<QSize>("size");
    const QVector<QSize> sizes = {{500, 584}, {450, 525}, {400, 467}, {350, 408}};
    for (int step = 0; step < sizes.size(); ++step) {
        QTest::addRow("french, step %d", step) << false << step << sizes[step];
        QTest::addRow("american, step %d", step) << true << step << sizes[step];
    }
}

void tst_wheel_number_selection::nothing_overlaps_at_any_scale()
{
    QFETCH(bool, american);
    QFETCH(int, step);
    QFETCH(QSize, size);
    wheel_desk desk(american);
    desk.settings.set_s_scr_res_factor(step);
    desk.dialog.modify_window_based_on_scale();
    QCOMPARE(desk.dialog.size(), size);
    const QList<QPushButton*> pockets = desk.pockets();
    for (int index = 0; index < pockets.size(); ++index) {
        const QRectF here = pockets[index]->geometry();
        const QRectF next = pockets[(index + 1) % pockets.size()]->geometry();
        const QPointF apart = next.center() - here.center();
        QVERIFY(std::hypot(apart.x(), apart.y()) >= here.width());
        QVERIFY(desk.dialog.rect().contains(pockets[index]->geometry()));
        QVERIFY(!pockets[index]->geometry().intersects(desk.clear_button().geometry()));
        QFont bold = pockets[index]->font();
        bold.setBold(true);
        QVERIFY(QFontMetrics(bold).horizontalAdvance("00") < here.width() * 0.85);
    }
    for (const char* name : {"PB_clear_selection_number", "PB_cancel"}) {
        const auto* button = child_of<QPushButton>(desk.dialog, name);
        QVERIFY(desk.dialog.rect().contains(button->geometry()));
        QVERIFY(button->fontMetrics().horizontalAdvance(button->text()) < button->width() - 8);
    }
}

void tst_wheel_number_selection::the_language_changes_live()
{
    wheel_desk desk;
    const QString title = desk.dialog.windowTitle();
    QVERIFY(!title.isEmpty());
    desk.dialog.setWindowTitle({});
    QEvent change(QEvent::LanguageChange);
    QCoreApplication::sendEvent(&desk.dialog, &change);
    QCOMPARE(desk.dialog.windowTitle(), title);
}

int main(int argc, char** argv)
{
    return run_window_test<tst_wheel_number_selection>(argc, argv);
}

#include "tst_wheel_number_selection.moc"
