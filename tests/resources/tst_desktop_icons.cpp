#include "picture_book.h"

#include <QFileInfo>
#include <QGuiApplication>
#include <QtTest>

/// The icons for the menus of desktops, as they lie beside the pictures.
class tst_desktop_icons : public QObject
{
    Q_OBJECT

private slots:
    void every_icon_stands_as_it_is_drawn_data();
    void every_icon_stands_as_it_is_drawn();
    void the_sizes_are_those_of_the_common_theme();
};

void tst_desktop_icons::every_icon_stands_as_it_is_drawn_data()
{
    QTest::addColumn<int>("side");
    for (const int side : desktop_icon_sizes())
        QTest::addRow("%d", side) << side;
}

void tst_desktop_icons::every_icon_stands_as_it_is_drawn()
{
    QFETCH(int, side);
    const QImage icon(ZARVELLO_SOURCE_DIR "/resources/" + desktop_icon_file(side));
    QCOMPARE(icon.size(), QSize(side, side));
    const QImage fresh = program_icon_of_size(side);
    int differing = 0;
    for (int y = 0; y < side; ++y) {
        for (int x = 0; x < side; ++x) {
            const QColor one(icon.pixelColor(x, y));
            const QColor other(fresh.pixelColor(x, y));
            if (qAbs(one.alpha() - other.alpha()) > 8 || qAbs(one.red() - other.red()) > 8 ||
                qAbs(one.green() - other.green()) > 8 || qAbs(one.blue() - other.blue()) > 8) {
                ++differing;
            }
        }
    }
    QVERIFY(differing * 100 <= side * side); // another processor rounds a few pixels otherwise

    QCOMPARE(icon.pixelColor(0, 0).alpha(), 0);                 // outside the round wheel
    QCOMPARE(icon.pixelColor(side / 2, side / 2).alpha(), 255); // its hub
}

void tst_desktop_icons::the_sizes_are_those_of_the_common_theme()
{
    QCOMPARE(desktop_icon_sizes(), QVector<int>({16, 22, 24, 32, 48, 64, 128, 256}));
}

int main(int argc, char** argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QGuiApplication application(argc, argv);
    tst_desktop_icons tests;
    return QTest::qExec(&tests, argc, argv);
}

#include "tst_desktop_icons.moc"
