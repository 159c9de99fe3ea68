#include "window_bench.h"
#include "window_places.h"

#include <QScreen>
#include <QSettings>

class tst_window_places : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void a_window_comes_back_where_it_stood();
    void a_window_of_fixed_size_keeps_its_size();
    void a_place_off_every_screen_is_not_taken();
    void what_was_open_is_known_at_the_next_start();
    void a_window_that_died_is_not_open();
    void a_spoilt_file_moves_nothing();
    void absurd_places_data();
    void absurd_places();
};

namespace
{

QString store()
{
    return QDir::current().absoluteFilePath(QStringLiteral("windows.ini"));
}

std::unique_ptr<QWidget> window_of(const QString& name)
{
    auto window = std::make_unique<QWidget>();
    window->setObjectName(name);
    window->resize(200, 100);
    return window;
}

} // namespace

void tst_window_places::init()
{
    QFile::remove(store());
}

void tst_window_places::a_window_comes_back_where_it_stood()
{
    {
        window_places places(store());
        const auto window = window_of("table");
        places.watch(*window);
        window->show();
        window->move(60, 70);
        window->resize(320, 240);
        window->hide();
    }
    window_places places(store());
    const auto window = window_of("table");
    places.watch(*window);
    QCOMPARE(window->pos(), QPoint(60, 70));
    QCOMPARE(window->size(), QSize(320, 240));

    const auto other = window_of("other");
    const QPoint own = other->pos();
    places.watch(*other);
    QCOMPARE(other->pos(), own);
}

void tst_window_places::a_window_of_fixed_size_keeps_its_size()
{
    {
        window_places places(store());
        const auto window = window_of("table");
        window->setFixedSize(300, 200);
        places.watch(*window);
        window->show();
        window->move(10, 20);
        window->close();
    }
    window_places places(store());
    const auto window = window_of("table");
    window->setFixedSize(150, 120); // the scale is another one now
    places.watch(*window);
    QCOMPARE(window->pos(), QPoint(10, 20));
    QCOMPARE(window->size(), QSize(150, 120));
}

void tst_window_places::a_place_off_every_screen_is_not_taken()
{
    const QRect screen = QGuiApplication::primaryScreen()->geometry();
    {
        window_places places(store());
        const auto window = window_of("table");
        places.watch(*window);
        window->show();
        window->move(screen.right() + 500, screen.bottom() + 500);
        window->hide();
    }
    window_places places(store());
    const auto window = window_of("table");
    const QPoint own = window->pos();
    places.watch(*window);
    QCOMPARE(window->pos(), own);
}

void tst_window_places::what_was_open_is_known_at_the_next_start()
{
    {
        window_places places(store());
        const auto open = window_of("open");
        const auto closed = window_of("closed");
        places.watch(*open);
        places.watch(*closed);
        open->show();
        places.remember_all();
    }
    const window_places places(store());
    QVERIFY(places.was_open("open"));
    QVERIFY(!places.was_open("closed"));
    QVERIFY(!places.was_open("never_seen"));
}

void tst_window_places::a_window_that_died_is_not_open()
{
    window_places places(store());
    auto window = window_of("short_lived");
    places.watch(*window);
    window->show();
    places.remember_all();
    QVERIFY(places.was_open("short_lived"));
    window.reset();
    places.remember_all();
    QVERIFY(!places.was_open("short_lived"));
}

void tst_window_places::a_spoilt_file_moves_nothing()
{
    QFile file(store());
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write("[windows]\ntable_place=@Rect(a b)\n\x01\xff[[[\ntable_open=perhaps\n");
    file.close();
    window_places places(store());
    const auto window = window_of("table");
    const QPoint own = window->pos();
    places.watch(*window);
    QCOMPARE(window->pos(), own);
    QCOMPARE(window->size(), QSize(200, 100));
}

void tst_window_places::absurd_places_data()
{
    QTest::addColumn<QByteArray>("place");
    QTest::addColumn<bool>("is_taken");
    QTest::newRow("as large as many screens") << QByteArray("10 20 90000 90000") << true;
    QTest::newRow("without an end") << QByteArray("10 20 2147483000 2147483000") << false;
    QTest::newRow("far to the left") << QByteArray("-2147483648 0 2147483647 100") << false;
    QTest::newRow("far below") << QByteArray("0 2147483600 100 20") << false;
    QTest::newRow("turned round") << QByteArray("10 20 -300 -200") << false;
}

void tst_window_places::absurd_places()
{
    QFETCH(QByteArray, place);
    QFETCH(bool, is_taken);
    QFile file(store());
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write("[windows]\ntable_place=@Rect(" + place + ")\n");
    file.close();
    window_places places(store());
    const auto window = window_of("table");
    const QPoint own = window->pos();
    places.watch(*window);
    const QSize all_screens = QGuiApplication::primaryScreen()->virtualSize();
    QCOMPARE(window->pos(), is_taken ? QPoint(10, 20) : own);
    QCOMPARE(window->size(), is_taken ? all_screens : QSize(200, 100));
}

int main(int argc, char** argv)
{
    return run_window_test<tst_window_places>(argc, argv);
}

#include "tst_window_places.moc"
