#include "announcements.h"
#include "chance_geometry.h"
#include "design_geometry.h"
#include "number_records.h"
#include "picture_book.h"
#include "pictures.h"
#include "table_layout.h"
#include "wheel_order.h"

#include <QDirIterator>
#include <QFontDatabase>
#include <QGuiApplication>
#include <QImageReader>
#include <QSet>
#include <QTemporaryDir>
#include <QtTest>

#include <algorithm>
#include <array>
#include <cmath>

class tst_pictures : public QObject
{
    Q_OBJECT

private slots:
    void every_chance_has_its_picture_in_the_size_of_its_place();
    void chances_of_many_numbers_light_exactly_these_data();
    void chances_of_many_numbers_light_exactly_these();
    void announcements_light_exactly_their_numbers_data();
    void announcements_light_exactly_their_numbers();
    void every_picture_stands_as_it_is_drawn_data();
    void every_picture_stands_as_it_is_drawn();
    void nothing_but_these_pictures_is_compiled_in();
    void number_fields_show_the_colour_of_the_number_data();
    void number_fields_show_the_colour_of_the_number();
    void jetons_lie_on_the_fields_of_their_chance();
    void the_corner_of_the_time_bar_stays_free();
    void announcement_rows_lie_in_their_bands_data();
    void announcement_rows_lie_in_their_bands();
    void the_cloth_has_no_seam();
    void pockets_have_the_colour_of_their_number_data();
    void pockets_have_the_colour_of_their_number();
    void the_wheel_is_round();
    void the_ball_is_bright_and_round();
    void jetons_differ_and_leave_room_for_the_count();
    void figure_fields_are_light();
    void a_reduced_picture_follows_the_rule_of_scale();
    void the_program_icon_holds_all_sizes();
};

namespace
{

constexpr table_form french = table_form::french;
constexpr table_form american = table_form::american;
constexpr std::array<table_form, 2> both_forms = {french, american};

const QString selection_folder = QStringLiteral(":/selection/grafik/selection/");

QImage loaded(const QString& path)
{
    return QImage(path).convertToFormat(QImage::Format_ARGB32);
}

/// The loader tells the double size of a twin by itself; here its pixels count.
QImage loaded_twin(const QString& path)
{
    QImage image = loaded(twin_of(path));
    image.setDevicePixelRatio(1);
    return image;
}

/// The colour of a pixel as a value of `number_colour`, -1 for any other colour.
int seen_colour(QRgb pixel)
{
    const int red = qRed(pixel);
    const int green = qGreen(pixel);
    const int blue = qBlue(pixel);
    if (red > 90 && red > 2 * green && red > 2 * blue) return 0;
    if (std::max({red, green, blue}) < 60) return 1;
    if (green > 60 && green > 2 * red) return 2;
    return -1;
}

int told_colour(int number)
{
    return static_cast<int>(colour_of(number));
}

/// Middle of the field of a number of the net, on the central widget, worked out from the columns
/// in which a click means the number.
QPoint middle_of_field(int number)
{
    constexpr std::array<int, 12> column_left = {
        792, 730, 668, 606, 542, 480, 418, 356, 292, 230, 168, 106};
    constexpr std::array<int, 3> row_top = {317, 413, 509};
    const int street = (number - 1) / 3;
    return {column_left[std::size_t(street)] + 15, row_top[std::size_t((number - 1) % 3)] + 32};
}

/// The table picture on a ground of cloth, placed as in the window.
QColor table_pixel(const QImage& table, const QPoint& place)
{
    return table.pixelColor(place - QPoint(51, 298));
}

bool is_lit(const QImage& overlay, const QPoint& place)
{
    return overlay.valid(place) && qAlpha(overlay.pixel(place)) > 0;
}

QString table_path(table_form form)
{
    return form == american ? QStringLiteral(":/table/grafik/table/f44a.png")
                            : QStringLiteral(":/table/grafik/table/f44.png");
}

QString wheel_path(table_form form)
{
    return form == american ? QStringLiteral(":/wheel/grafik/wheel/wheel33_A.png")
                            : QStringLiteral(":/wheel/grafik/wheel/wheel33_F.png");
}

QSize expected_size(const QString& kind)
{
    if (kind == "KL") return {748, 96};
    if (kind == "DZ") return {250, 288};
    if (kind == "EC") return {748, 288};
    return {62, 96};
}

jetons::jeton_names place(int value)
{
    return static_cast<jetons::jeton_names>(value);
}

} // namespace

void tst_pictures::every_chance_has_its_picture_in_the_size_of_its_place()
{
    for (const table_form form : both_forms) {
        for (int value = 0; value < jetons::LAST_JN; ++value) {
            const QString path = geometry_of(place(value), form).picture;
            const QSize size = expected_size(jetons::name(place(value)).left(2));
            QVERIFY2(loaded(path).size() == size, qPrintable(path));
            QVERIFY2(loaded_twin(path).size() == 2 * size, qPrintable(path));
            const bool single = size == QSize(62, 96);
            QVERIFY2(!single || is_lit(loaded(path), QPoint(28, 46)), qPrintable(path));
        }
    }
}

void tst_pictures::chances_of_many_numbers_light_exactly_these_data()
{
    QTest::addColumn<QString>("key");
    for (const char* key : {"EC01",
                            "EC02",
                            "EC03",
                            "EC04",
                            "EC05",
                            "EC06",
                            "DZ01",
                            "DZ02",
                            "DZ03",
                            "KL01",
                            "KL02",
                            "KL03"}) {
        QTest::newRow(key) << key;
    }
}

void tst_pictures::chances_of_many_numbers_light_exactly_these()
{
    QFETCH(QString, key);
    const jetons::jeton_names jeton = jetons::value_of(key);
    for (const table_form form : both_forms) {
        const chance_geometry& geometry = geometry_of(jeton, form);
        const QImage overlay = loaded(geometry.picture);
        const QPoint corner(geometry.picture_x, geometry.picture_y);
        for (int number = 1; number <= 36; ++number) {
            QCOMPARE(is_lit(overlay, middle_of_field(number) - corner), covers(jeton, number));
        }
    }
}

void tst_pictures::announcements_light_exactly_their_numbers_data()
{
    QTest::addColumn<QString>("file");
    QTest::addColumn<QVector<int>>("numbers");
    QTest::addColumn<bool>("zero");
    // clang-format off
    QTest::newRow("big series")   << "annonce_GS"
        << QVector<int>{4, 7, 12, 15, 18, 21, 19, 22, 32, 35, 2, 3, 25, 29, 26, 28} << true;
    QTest::newRow("small series") << "annonce_KS"
        << QVector<int>{5, 8, 10, 11, 13, 16, 23, 24, 27, 30, 33, 36} << false;
    QTest::newRow("orphans")      << "annonce_OR"
        << QVector<int>{1, 6, 9, 14, 17, 20, 31, 34} << false;
    QTest::newRow("orphans, plein") << "annonce_OP"
        << QVector<int>{1, 6, 9, 14, 17, 20, 31, 34} << false;
    QTest::newRow("zero game")    << "annonce_ZS"
        << QVector<int>{3, 12, 15, 26, 32, 35} << true;
    QTest::newRow("finale 0")     << "finale_0"   << QVector<int>{10, 20, 30}    << true;
    QTest::newRow("finale 0, A")  << "finale_0_a" << QVector<int>{10, 20, 30}    << true;
    QTest::newRow("finale 1")     << "finale_1"   << QVector<int>{1, 11, 21, 31} << false;
    QTest::newRow("finale 2")     << "finale_2"   << QVector<int>{2, 12, 22, 32} << false;
    QTest::newRow("finale 3")     << "finale_3"   << QVector<int>{3, 13, 23, 33} << false;
    QTest::newRow("finale 4")     << "finale_4"   << QVector<int>{4, 14, 24, 34} << false;
    QTest::newRow("finale 5")     << "finale_5"   << QVector<int>{5, 15, 25, 35} << false;
    QTest::newRow("finale 6")     << "finale_6"   << QVector<int>{6, 16, 26, 36} << false;
    QTest::newRow("finale 7")     << "finale_7"   << QVector<int>{7, 17, 27}     << false;
    QTest::newRow("finale 8")     << "finale_8"   << QVector<int>{8, 18, 28}     << false;
    QTest::newRow("finale 9")     << "finale_9"   << QVector<int>{9, 19, 29}     << false;
    // clang-format on
}

void tst_pictures::announcements_light_exactly_their_numbers()
{
    QFETCH(QString, file);
    QFETCH(QVector<int>, numbers);
    QFETCH(bool, zero);
    const QString path = selection_folder + file + ".png";
    const QImage overlay = loaded(path);
    QCOMPARE(overlay.size(), QSize(796, 288));
    QCOMPARE(loaded_twin(path).size(), QSize(1592, 576));
    const QPoint corner(90, 301);
    for (int number = 1; number <= 36; ++number) {
        QCOMPARE(is_lit(overlay, middle_of_field(number) - corner), numbers.contains(number));
    }
    // Both halves of the zero field: zero alone on the French table, zero and double zero else.
    QCOMPARE(is_lit(overlay, QPoint(862, 373) - corner), zero);
    QCOMPARE(is_lit(overlay, QPoint(862, 517) - corner), zero);
}

void tst_pictures::every_picture_stands_as_it_is_drawn_data()
{
    QTest::addColumn<int>("index");
    int index = 0;
    for (const picture& which : all_pictures()) {
        QTest::newRow(qPrintable(which.path)) << index++;
    }
}

/// Compares a net of points. Letters of another version of the fonts may differ a little.
static bool looks_like(const QImage& stored, const QImage& fresh)
{
    if (stored.size() != fresh.size()) return false;
    constexpr int points = 48;
    constexpr int tolerance = 26;
    int differing = 0;
    for (int row = 0; row < points; ++row) {
        for (int column = 0; column < points; ++column) {
            const QPoint point(stored.width() * (2 * column + 1) / (2 * points),
                               stored.height() * (2 * row + 1) / (2 * points));
            const QRgb one = qPremultiply(stored.pixel(point));
            const QRgb other = qPremultiply(fresh.pixel(point));
            const bool same = std::abs(qRed(one) - qRed(other)) <= tolerance &&
                              std::abs(qGreen(one) - qGreen(other)) <= tolerance &&
                              std::abs(qBlue(one) - qBlue(other)) <= tolerance &&
                              std::abs(qAlpha(one) - qAlpha(other)) <= tolerance;
            if (!same) ++differing;
        }
    }
    return differing <= points * points / 100;
}

void tst_pictures::every_picture_stands_as_it_is_drawn()
{
    QFETCH(int, index);
    if (!QFontDatabase().families().contains("DejaVu Serif")) {
        QSKIP("needs the fonts with which the pictures are drawn (fonts-dejavu-core)");
    }
    const picture which = all_pictures().at(index);
    QCOMPARE(loaded(which.path).size(), which.size);
    QVERIFY(looks_like(loaded(which.path), drawn(which, 1)));
    if (!which.has_twin) return;
    const QImage twin = loaded_twin(which.path);
    QCOMPARE(twin.size(), 2 * which.size);
    QVERIFY(looks_like(twin, drawn(which, 2)));
}

void tst_pictures::nothing_but_these_pictures_is_compiled_in()
{
    QSet<QString> drawn_paths = {program_icon_path()};
    for (const picture& which : all_pictures()) {
        drawn_paths.insert(which.path);
        if (which.has_twin) drawn_paths.insert(twin_of(which.path));
    }
    QSet<QString> compiled;
    for (const char* prefix : {":/table",
                               ":/wheel",
                               ":/jeton",
                               ":/selection",
                               ":/general",
                               ":/led",
                               ":/splash",
                               ":/editoricon"}) {
        QDirIterator files(prefix, QDir::Files, QDirIterator::Subdirectories);
        while (files.hasNext())
            compiled.insert(files.next());
    }
    QCOMPARE(QStringList(compiled.subtract(drawn_paths).values()), QStringList());
}

void tst_pictures::number_fields_show_the_colour_of_the_number_data()
{
    QTest::addColumn<table_form>("form");
    QTest::newRow("French table") << french;
    QTest::newRow("American table") << american;
}

void tst_pictures::number_fields_show_the_colour_of_the_number()
{
    QFETCH(table_form, form);
    const QImage table = loaded(table_path(form));
    for (int number = 1; number <= 36; ++number) {
        for (const int aside : {-26, 26}) { // above and below the digits
            const QPoint point = middle_of_field(number) + QPoint(0, aside);
            const QColor colour = table_pixel(table, point);
            QVERIFY(colour.alpha() > 200);
            QCOMPARE(seen_colour(colour.rgb()), told_colour(number));
        }
    }
    const QVector<int> zero_middles = form == french ? QVector<int>{445} : QVector<int>{373, 519};
    for (const int y : zero_middles) {
        for (const int aside : {-24, 24}) {
            const QColor colour = table_pixel(table, QPoint(864, y + aside));
            QVERIFY(colour.alpha() > 100);
            QCOMPARE(seen_colour(colour.rgb()), told_colour(0));
        }
    }
}

/// Where the jeton of the first player lies, on the central widget.
static QRectF jeton_square(jetons::jeton_names jeton, table_form form)
{
    const chance_geometry& geometry = geometry_of(jeton, form);
    return {geometry.jeton_x + 0.0, geometry.jeton_y - base_y + 0.0, 31, 31};
}

void tst_pictures::jetons_lie_on_the_fields_of_their_chance()
{
    for (const table_form form : both_forms) {
        for (int value = 0; value < jetons::LAST_JN; ++value) {
            const jetons::jeton_names jeton = place(value);
            const QString key = jetons::name(jeton);
            const QString kind = key.left(2);
            const QRectF square = jeton_square(jeton, form);
            const int index = key.right(2).toInt() - 1;
            if (kind == "KL") QVERIFY(table_layout::column_field(index).contains(square));
            if (kind == "DZ") QVERIFY(table_layout::dozen_field(index).contains(square));
            if (kind == "EC") QVERIFY(table_layout::even_chance_field(index).contains(square));
            if (kind == "PL") {
                if (form == french && value == jetons::PL37) continue;
                QVERIFY(table_layout::number_field(value, form).contains(square.center()));
            }
        }
    }
    // Between fields: the jeton touches each of the numbers that it means.
    for (const table_form form : both_forms) {
        for (int value = jetons::CH01; value <= jetons::CA23; ++value) {
            const jetons::jeton_names jeton = place(value);
            const QString kind = jetons::name(jeton).left(2);
            if (kind != "CH" && kind != "CA") continue;
            if (jeton == jetons::CA01) continue; // lies beside three fields and means four or five
            const bool of_american_zeros = jeton >= jetons::CH61 && jeton <= jetons::CH63;
            if (form == french ? of_american_zeros : jeton == jetons::CH03) continue;
            for (int number = 0; number <= (form == french ? 36 : 37); ++number) {
                if (!covers(jeton, number)) continue;
                QVERIFY(
                    table_layout::number_field(number, form).intersects(jeton_square(jeton, form)));
            }
        }
    }
}

void tst_pictures::the_corner_of_the_time_bar_stays_free()
{
    for (const table_form form : both_forms) {
        const QImage table = loaded(table_path(form));
        for (int y = 763; y <= 774; ++y) {
            for (int x = 950; x <= 1010; ++x) {
                QCOMPARE(table_pixel(table, QPoint(x, y)).alpha(), 0);
            }
        }
    }
}

void tst_pictures::announcement_rows_lie_in_their_bands_data()
{
    QTest::addColumn<int>("top");
    QTest::addColumn<bool>("on_american");
    // clang-format off
    QTest::newRow("GS") << 373 << false;
    QTest::newRow("KS") << 407 << false;
    QTest::newRow("OR") << 441 << false;
    QTest::newRow("OP") << 475 << false;
    QTest::newRow("ZS") << 509 << false;
    QTest::newRow("FI") << 543 << true;
    QTest::newRow("EN") << 577 << true;
    QTest::newRow("ZN") << 611 << true;
    QTest::newRow("DN") << 645 << true;
    // clang-format on
}

void tst_pictures::announcement_rows_lie_in_their_bands()
{
    QFETCH(int, top);
    QFETCH(bool, on_american);
    constexpr int band_height = 28;
    constexpr int left = 916;
    constexpr int right = 1010;
    for (const table_form form : both_forms) {
        const QImage table = loaded(table_path(form));
        const bool shown = form == french || on_american;
        for (const int x : {left + 12, right - 12}) {
            QCOMPARE(table_pixel(table, QPoint(x, top + band_height / 2)).alpha() > 0, shown);
        }
        if (!shown) continue;
        // Nothing of the row reaches over the band.
        const int below = top + band_height;
        for (int x = left; x <= right; ++x) {
            QCOMPARE(table_pixel(table, QPoint(x, below)).alpha(), 0);
        }
    }
}

/// How far two neighbouring columns of pixels differ in the mean.
static double step_between(const QImage& image, int left, int right)
{
    double sum = 0;
    for (int y = 0; y < image.height(); ++y) {
        sum += std::abs(qGreen(image.pixel(left, y)) - qGreen(image.pixel(right, y)));
    }
    return sum / image.height();
}

void tst_pictures::the_cloth_has_no_seam()
{
    const QImage cloth = loaded(":/table/grafik/table/cloth.png");
    QCOMPARE(cloth.size(), QSize(256, 256));
    double largest_inside = 0;
    for (int x = 0; x + 1 < cloth.width(); ++x) {
        largest_inside = std::max(largest_inside, step_between(cloth, x, x + 1));
    }
    QVERIFY(largest_inside > 0);
    QVERIFY(step_between(cloth, cloth.width() - 1, 0) <= 1.1 * largest_inside);

    const QImage turned = cloth.transformed(QTransform().rotate(90));
    QVERIFY(step_between(turned, turned.width() - 1, 0) <= 1.1 * largest_inside);
}

void tst_pictures::pockets_have_the_colour_of_their_number_data()
{
    QTest::addColumn<table_form>("form");
    QTest::addColumn<int>("factor");
    QTest::newRow("French wheel") << french << 1;
    QTest::newRow("French wheel, twin") << french << 2;
    QTest::newRow("American wheel") << american << 1;
    QTest::newRow("American wheel, twin") << american << 2;
}

void tst_pictures::pockets_have_the_colour_of_their_number()
{
    QFETCH(table_form, form);
    QFETCH(int, factor);
    const QImage wheel = factor == 1 ? loaded(wheel_path(form)) : loaded_twin(wheel_path(form));
    constexpr double middle = 200.5;
    constexpr double beside_number = 140; // between the digits and the pocket
    constexpr double ball_radius = 121;   // on which the ball comes to rest
    const int count = form == american ? 38 : 37;
    for (int index = 0; index < count; ++index) {
        const double angle = qDegreesToRadians(360.0 * index / count);
        for (const double radius : {beside_number, ball_radius}) {
            const QPoint point(static_cast<int>(factor * (middle + radius * std::sin(angle))),
                               static_cast<int>(factor * (middle - radius * std::cos(angle))));
            QCOMPARE(seen_colour(wheel.pixel(point)), told_colour(wheel_number(index, form)));
        }
    }
}

void tst_pictures::the_wheel_is_round()
{
    for (const table_form form : both_forms) {
        const QImage wheel = loaded(wheel_path(form));
        QCOMPARE(wheel.size(), QSize(401, 401));
        for (const QPoint& corner :
             {QPoint(0, 0), QPoint(400, 0), QPoint(0, 400), QPoint(400, 400)})
            QCOMPARE(qAlpha(wheel.pixel(corner)), 0);
        for (const QPoint& edge :
             {QPoint(200, 2), QPoint(398, 200), QPoint(200, 398), QPoint(2, 200)})
            QCOMPARE(qAlpha(wheel.pixel(edge)), 255);
    }
}

void tst_pictures::the_ball_is_bright_and_round()
{
    const QImage ball = loaded(":/general/grafik/ball/ball2.png");
    QCOMPARE(ball.size(), QSize(18, 18));
    QVERIFY(QColor(ball.pixel(9, 9)).lightness() > 200);
    QCOMPARE(qAlpha(ball.pixel(9, 9)), 255);
    for (const QPoint& corner : {QPoint(0, 0), QPoint(17, 0), QPoint(0, 17), QPoint(17, 17)})
        QCOMPARE(qAlpha(ball.pixel(corner)), 0);
}

void tst_pictures::jetons_differ_and_leave_room_for_the_count()
{
    QVector<QImage> pictures;
    for (int player = 1; player <= 4; ++player) {
        const QImage jeton = loaded(QString(":/jeton/grafik/jeton/jeton_%1_8.png").arg(player));
        QCOMPARE(jeton.size(), QSize(31, 31));
        QCOMPARE(qAlpha(jeton.pixel(0, 0)), 0);
        QCOMPARE(qAlpha(jeton.pixel(30, 0)), 0);
        // Black figures stand on the middle.
        for (int y = 10; y <= 20; ++y) {
            for (int x = 8; x <= 22; ++x)
                QVERIFY(QColor(jeton.pixel(x, y)).lightness() > 190);
        }
        pictures.append(jeton);
    }
    // Without their colours they still differ on the edge.
    for (int one = 0; one < 4; ++one) {
        for (int other = one + 1; other < 4; ++other) {
            int differing = 0;
            for (int y = 0; y < 31; ++y) {
                for (int x = 0; x < 31; ++x) {
                    const int first = qGray(pictures[one].pixel(x, y));
                    const int second = qGray(pictures[other].pixel(x, y));
                    if (std::abs(first - second) > 40) ++differing;
                }
            }
            QVERIFY(differing > 60);
        }
    }
}

void tst_pictures::figure_fields_are_light()
{
    const auto is_light = [](const QImage& image, const QRect& field) {
        for (const QPoint& point : {field.center(),
                                    QPoint(field.left() + 6, field.center().y()),
                                    QPoint(field.right() - 6, field.center().y())}) {
            if (QColor(image.pixel(point)).lightness() < 225) return false;
        }
        return true;
    };
    const QString folder = QStringLiteral(":/table/grafik/playertable/");

    const QImage players = loaded(folder + "player_panel.png");
    QCOMPARE(players.size(), QSize(560, 282));
    for (const int left : {115, 225, 333, 441}) {
        for (const int top : {56, 132, 206})
            QVERIFY(is_light(players, QRect(left, top, 98, 62)));
    }
    QVERIFY(is_light(loaded(folder + "replay.png"), QRect(0, 0, 100, 62)));

    const QImage numbers = loaded(folder + "last_numbers.png");
    QCOMPARE(numbers.size(), QSize(146, 282));
    for (int row = 0; row < 10; ++row) {
        for (const int left : {8, 76})
            QVERIFY(is_light(numbers, QRect(left, 6 + 27 * row, 62, 27)));
    }

    const QImage charts = loaded(folder + "hot_cold_stat3.png");
    QCOMPARE(charts.size(), QSize(401, 262));
    QVERIFY(is_light(charts, QRect(12, 12, 184, 238)));
    QVERIFY(is_light(charts, QRect(205, 12, 184, 238)));
}

void tst_pictures::a_reduced_picture_follows_the_rule_of_scale()
{
    const auto pixels = [](double reduction) {
        return scaled_picture(":/wheel/grafik/wheel/wheel33_F.png", reduction).size();
    };
    QCOMPARE(pixels(0.0), QSize(401, 401));
    QCOMPARE(pixels(0.1), QSize(360, 360)); // of 360.9
    QCOMPARE(pixels(0.2), QSize(320, 320)); // of 320.8
    QCOMPARE(pixels(0.3), QSize(280, 280)); // of 280.7
    QCOMPARE(scaled_picture(":/no/such.png", 0.1).isNull(), true);
}

void tst_pictures::the_program_icon_holds_all_sizes()
{
    QFile file(":/general/grafik/icon/Roul10.ico");
    QVERIFY(file.open(QIODevice::ReadOnly));
    const QByteArray bytes = file.readAll();
    QCOMPARE(bytes.left(6), QByteArray("\0\0\1\0\5\0", 6)); // an icon of five images
    QVector<int> sides;
    for (int i = 0; i < 5; ++i) {
        const int entry = 6 + 16 * i;
        const auto number_at = [&bytes](int at) {
            return qFromLittleEndian<quint32>(bytes.constData() + at);
        };
        const QByteArray image = bytes.mid(static_cast<int>(number_at(entry + 12)),
                                           static_cast<int>(number_at(entry + 8)));
        const QImage loaded_image = QImage::fromData(image, "png");
        QCOMPARE(loaded_image.width(), static_cast<int>(bytes.at(entry)));
        QCOMPARE(loaded_image.height(), static_cast<int>(bytes.at(entry + 1)));
        QCOMPARE(qAlpha(loaded_image.pixel(0, 0)), 0);
        sides.append(loaded_image.width());
    }
    QCOMPARE(sides, QVector<int>({16, 24, 32, 48, 64}));
    if (!QImageReader::supportedImageFormats().contains("ico")) return;
    QCOMPARE(QImageReader(":/general/grafik/icon/Roul10.ico").imageCount(), 5);
}

int main(int argc, char** argv)
{
    // No window is shown: the letters of the pictures alone need a graphical application.
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QTemporaryDir box;
    if (!box.isValid() || !QDir::setCurrent(box.path())) return 1;
    const QGuiApplication application(argc, argv);
    init_pictures();
    tst_pictures tests;
    const int failures = QTest::qExec(&tests, argc, argv);
    QDir::setCurrent(QDir::rootPath());
    return failures;
}

#include "tst_pictures.moc"
