#include "dense_screen.h"
#include "design_geometry.h"
#include "every_window.h"
#include "pictures.h"

#include <QScreen>
#include <QWindow>

/// The program on a screen with two pixels to a logical one.
class tst_high_dpi : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init() { user.forget(); }
    void cleanup();

    void the_table_is_drawn_from_the_fine_picture_data();
    void the_table_is_drawn_from_the_fine_picture();
    void the_wheel_is_drawn_from_the_fine_picture();
    void jetons_are_drawn_from_the_fine_picture();
    void marks_are_drawn_from_the_fine_picture();
    void icons_are_fine_too();
    void the_mouse_finds_the_fields_data();
    void the_mouse_finds_the_fields();
    void a_right_click_throws_the_ball();
    void windows_keep_their_logical_size();
    void the_scale_is_chosen_by_the_logical_screen();

private:
    box_user user;
};

namespace
{

QImage file_picture(const QString& path)
{
    init_pictures();
    return QImage(path).convertToFormat(QImage::Format_ARGB32);
}

/// What the window shows of a rectangle, in the pixels of the screen.
QImage shown(const desktop_bench& bench, const QRect& place)
{
    const QRect in_window = place.translated(0, design::menu_bar_height);
    return bench.window->grab(in_window).toImage();
}

int step_between(QRgb one, QRgb other)
{
    return qMax(qAbs(qRed(one) - qRed(other)),
                qMax(qAbs(qGreen(one) - qGreen(other)), qAbs(qBlue(one) - qBlue(other))));
}

/// The share of pixels that differ by more than rounding, among those that are opaque in a mask.
double difference(const QImage& seen, const QImage& drawn, const QImage& mask)
{
    constexpr int rounding = 8;
    if (seen.size() != drawn.size()) return 1.0;
    int opaque = 0;
    int count = 0;
    for (int y = 0; y < seen.height(); ++y) {
        for (int x = 0; x < seen.width(); ++x) {
            if (qAlpha(mask.pixel(x, y)) < 255) continue;
            ++opaque;
            if (step_between(seen.pixel(x, y), drawn.pixel(x, y)) > rounding) ++count;
        }
    }
    return opaque == 0 ? 1.0 : double(count) / opaque;
}

/// What would be seen of a drawing of half the size.
QImage coarse(const QImage& picture)
{
    return picture.scaled(picture.size() / 2, Qt::IgnoreAspectRatio, Qt::SmoothTransformation)
        .scaled(picture.size(), Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
}

} // namespace

void tst_high_dpi::initTestCase()
{
    QCOMPARE(QGuiApplication::primaryScreen()->devicePixelRatio(), 2.0);
}

void tst_high_dpi::cleanup()
{
    QCOMPARE(user.unexpected(), 0);
    QCOMPARE(user.answers_left(), 0);
    QCOMPARE(user.dialogs_left(), 0);
}

void tst_high_dpi::the_table_is_drawn_from_the_fine_picture_data()
{
    QTest::addColumn<QString>("form");
    QTest::addColumn<QString>("file");
    QTest::newRow("French") << "s_table_form=0"
                            << ":/table/grafik/table/f44@2x.png";
    QTest::newRow("American") << "s_table_form=1"
                              << ":/table/grafik/table/f44a@2x.png";
}

void tst_high_dpi::the_table_is_drawn_from_the_fine_picture()
{
    QFETCH(QString, form);
    QFETCH(QString, file);
    const desktop_bench bench({form});
    const QImage fine = file_picture(file);
    const QImage table = shown(bench, design::table);
    QCOMPARE(table.size(), 2 * design::table.size());
    QCOMPARE(fine.size(), table.size());
    QCOMPARE(difference(table, fine, fine), 0.0);
    QVERIFY(difference(table, coarse(fine), fine) > 0.3); // the comparison sees a blurred picture
}

void tst_high_dpi::the_wheel_is_drawn_from_the_fine_picture()
{
    const desktop_bench bench;
    // The ball lies on the zero at the top; the lower half of the wheel is bare.
    QRect lower_half = design::wheel;
    lower_half.setTop(design::wheel.center().y());
    const QImage wheel = shown(bench, lower_half);
    const QImage fine = file_picture(":/wheel/grafik/wheel/wheel33_F@2x.png");
    const QRect part(QPoint(0, 2 * (lower_half.top() - design::wheel.top())), wheel.size());
    // Beside the disc the cloth shows through.
    const QRect within_disc(wheel.width() / 4, 0, wheel.width() / 2, wheel.height() / 2);
    const QImage seen = wheel.copy(within_disc);
    const QImage drawn = fine.copy(part).copy(within_disc);
    QVERIFY(difference(seen, drawn, drawn) < 0.001);
    QVERIFY(difference(seen, coarse(drawn), drawn) > 0.1);
}

void tst_high_dpi::jetons_are_drawn_from_the_fine_picture()
{
    const desktop_bench bench;
    bench.trigger("actionStart");
    bench.click(jetons::PL17);
    auto* const jeton = bench.child<QWidget>("jeton_1_PL17");
    const QImage seen = jeton->grab().toImage();
    QCOMPARE(seen.size(), QSize(62, 62));
    const QImage fine = QImage(":/jeton/grafik/jeton/jeton_1_8@2x.png");
    QCOMPARE(fine.size(), QSize(62, 62));
    // The upper rim, above the count.
    for (int x = 20; x < 42; ++x) {
        const QRgb wanted = fine.pixel(x, 6);
        QCOMPARE(qAlpha(wanted), 255);
        QVERIFY(step_between(seen.pixel(x, 6), wanted) <= 2);
    }
}

void tst_high_dpi::marks_are_drawn_from_the_fine_picture()
{
    const desktop_bench bench;
    bench.trigger("actionStart");
    bench.play(17);
    const auto* const mark = bench.child<QLabel>("LB_hit_label");
    const QPixmap picture = mark->pixmap(Qt::ReturnByValue);
    QCOMPARE(picture.devicePixelRatio(), 2.0);
    const QImage fine(":/selection/grafik/selection/hit_plein@2x.png");
    QCOMPARE(picture.size(), fine.size());
    QCOMPARE(mark->size(), fine.size() / 2);
}

void tst_high_dpi::icons_are_fine_too()
{
    const desktop_bench bench;
    QPixmap picture;
    every_window(bench, user).open("editor_window", [&](QWidget& window) {
        const auto* action = child_of<QAction>(window, QStringLiteral("actionSyntax_Highligther"));
        picture = action->icon().pixmap(window.windowHandle(), QSize(16, 16));
    });
    QCOMPARE(picture.size(), QSize(32, 32));
    QCOMPARE(picture.devicePixelRatio(), 2.0);
}

void tst_high_dpi::the_mouse_finds_the_fields_data()
{
    QTest::addColumn<jetons::jeton_names>("jeton");
    QTest::newRow("PL01") << jetons::PL01;
    QTest::newRow("PL36") << jetons::PL36;
    QTest::newRow("CH20") << jetons::CH20;
    QTest::newRow("TP03") << jetons::TP03;
    QTest::newRow("KL01") << jetons::KL01;
    QTest::newRow("EC06") << jetons::EC06;
}

/// By presses that come from the screen, and not from within the program.
void tst_high_dpi::the_mouse_finds_the_fields()
{
    QFETCH(jetons::jeton_names, jeton);
    const desktop_bench bench;
    bench.trigger("actionStart");
    const QPoint point = bench.middle_of(jeton) + QPoint(0, base_y);
    QWindow* const screen_window = bench.window->windowHandle();
    QTest::mouseClick(screen_window, Qt::LeftButton, {}, point);
    bench.settle();
    QCOMPARE(bench.table().count(general_player::PLAYER_1, jeton), 1);
    QCOMPARE(bench.table().seeded(general_player::PLAYER_1), qint64(1));
    QTest::mouseClick(screen_window, Qt::RightButton, {}, point); // on the jeton itself
    bench.settle();
    QCOMPARE(bench.table().seeded(general_player::PLAYER_1), qint64(0));
}

void tst_high_dpi::a_right_click_throws_the_ball()
{
    const desktop_bench bench;
    bench.trigger("actionStart");
    bench.numbers().set_manual_number(17);
    const QPoint hub = design::wheel.center() + QPoint(0, design::menu_bar_height);
    QTest::mouseClick(bench.window->windowHandle(), Qt::RightButton, {}, hub);
    bench.finish_coup();
    QCOMPARE(bench.numbers().last_numbers(1, true), QList<int>({17}));
}

void tst_high_dpi::windows_keep_their_logical_size()
{
    const desktop_bench bench;
    QCOMPARE(bench.window->size(), QSize(1460, 793 + 31 + 20));
    QCOMPARE(bench.window->grab().size(), 2 * bench.window->size());
    bench.trigger("actionKesselverteilung");
    const auto* const wheel = bench.child<QWidget>("wheel_dist_widget");
    QCOMPARE(wheel->size(), QSize(484, 484));
}

/// The first row of the table of scales that the screen fulfils.
void tst_high_dpi::the_scale_is_chosen_by_the_logical_screen()
{
    const auto factor = [](const QSize& screen) {
        const int width = screen.width();
        const int height = screen.height();
        if (width >= 1485 && height > 860) return 0;
        if (width >= 1337) return height > 779 ? 1 : height < 699 ? 3 : 2;
        if (width >= 1188) return height < 699 ? 3 : 2;
        return 3;
    };
    const QSize logical = QGuiApplication::primaryScreen()->geometry().size();
    const desktop_bench bench({QStringLiteral("s_scr_res_factor=-1")});
    QCOMPARE(bench.settings().s_scr_res_factor(), factor(logical));
    if (factor(logical) == factor(2 * logical))
        QSKIP("this screen has the same scale in both kinds of pixels");
}

int main(int argc, char** argv)
{
    qputenv("QT_SCALE_FACTOR", "2");
    use_dense_screens();
    return run_window_test<tst_high_dpi>(argc, argv);
}

#include "tst_high_dpi.moc"
