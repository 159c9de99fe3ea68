#include "recent_files.h"
#include "window_bench.h"

#include <QSettings>
#include <QSignalSpy>

class tst_recent_files : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void the_newest_file_stands_in_front();
    void a_file_that_comes_back_moves_to_the_front();
    void the_oldest_files_fall_out();
    void kinds_do_not_mix();
    void a_file_that_is_gone_is_not_offered();
    void they_are_kept_over_the_end_of_the_program();
    void an_empty_path_is_passed_over();
    void a_list_that_cannot_be_kept_does_no_harm();
    void the_menu_tells_what_was_chosen();
    void odd_names_data();
    void odd_names();
    void a_menu_without_files_is_disabled();

private:
    static QString file(const QString& name);
};

namespace
{

using kind = recent_files::kind;

QString store()
{
    return QDir::current().absoluteFilePath(QStringLiteral("windows.ini"));
}

} // namespace

QString tst_recent_files::file(const QString& name)
{
    QFile made(name);
    if (!made.open(QIODevice::WriteOnly)) qFatal("can't make a file");
    return QDir::current().absoluteFilePath(name);
}

void tst_recent_files::init()
{
    QFile::remove(store());
}

void tst_recent_files::the_newest_file_stands_in_front()
{
    recent_files recent(store());
    recent.add(kind::systems, file("a.syf"));
    recent.add(kind::systems, file("b.syf"));
    QCOMPARE(recent.files(kind::systems), QStringList({file("b.syf"), file("a.syf")}));
}

void tst_recent_files::a_file_that_comes_back_moves_to_the_front()
{
    recent_files recent(store());
    recent.add(kind::systems, file("a.syf"));
    recent.add(kind::systems, file("b.syf"));
    recent.add(kind::systems, QStringLiteral("./a.syf"));
    QCOMPARE(recent.files(kind::systems), QStringList({file("a.syf"), file("b.syf")}));
}

void tst_recent_files::the_oldest_files_fall_out()
{
    recent_files recent(store());
    for (int i = 0; i < recent_files::limit + 2; ++i)
        recent.add(kind::load_files, file(QStringLiteral("%1.inp").arg(i)));
    const QStringList files = recent.files(kind::load_files);
    QCOMPARE(files.size(), 8);
    QCOMPARE(files.first(), file("9.inp"));
    QCOMPARE(files.last(), file("2.inp"));
}

void tst_recent_files::kinds_do_not_mix()
{
    recent_files recent(store());
    recent.add(kind::systems, file("a.syf"));
    recent.add(kind::load_files, file("a.inp"));
    recent.add(kind::protocols, file("a.out"));
    QCOMPARE(recent.files(kind::systems), QStringList(file("a.syf")));
    QCOMPARE(recent.files(kind::load_files), QStringList(file("a.inp")));
    QCOMPARE(recent.files(kind::protocols), QStringList(file("a.out")));
}

void tst_recent_files::a_file_that_is_gone_is_not_offered()
{
    recent_files recent(store());
    recent.add(kind::systems, file("gone.syf"));
    recent.add(kind::systems, file("b.syf"));
    QVERIFY(QFile::remove("gone.syf"));
    QCOMPARE(recent.files(kind::systems), QStringList(file("b.syf")));
}

void tst_recent_files::they_are_kept_over_the_end_of_the_program()
{
    recent_files(store()).add(kind::protocols, file("a.out"));
    QCOMPARE(recent_files(store()).files(kind::protocols), QStringList(file("a.out")));
}

void tst_recent_files::an_empty_path_is_passed_over()
{
    recent_files recent(store());
    recent.add(kind::systems, QString());
    QVERIFY(recent.files(kind::systems).isEmpty());
    QVERIFY(!QFile::exists(store()));
}

void tst_recent_files::a_list_that_cannot_be_kept_does_no_harm()
{
    recent_files recent(QStringLiteral("/proc/no/such/file.ini"));
    recent.add(kind::systems, file("a.syf"));
    QVERIFY(recent.files(kind::systems).isEmpty());
}

void tst_recent_files::the_menu_tells_what_was_chosen()
{
    recent_files recent(store());
    recent.add(kind::systems, file("a.syf"));
    recent.add(kind::systems, file("this & that.syf"));
    QMenu menu;
    recent.fill(menu, kind::systems);
    QVERIFY(menu.menuAction()->isEnabled());
    QCOMPARE(menu.actions().size(), 2);
    QCOMPARE(menu.actions().at(0)->text(), QStringLiteral("&1  this && that.syf"));

    QSignalSpy chosen(&recent, &recent_files::chosen);
    menu.actions().at(1)->trigger();
    QCOMPARE(chosen.size(), 1);
    QCOMPARE(chosen.at(0).at(1).toString(), file("a.syf"));
}

void tst_recent_files::odd_names_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("text"); // of the entry
    const QString many = QString(40, QLatin1Char('a')) + QString(60, QLatin1Char('b'));
    // clang-format off
    QTest::newRow("tab")         << "red\tF2.syf"          << "&1  red F2.syf";
    QTest::newRow("two lines")   << "red\nblack.syf"       << "&1  red black.syf";
    QTest::newRow("places")      << "%1 %2 100%.syf"       << "&1  %1 %2 100%.syf";
    QTest::newRow("list marks")  << "@a, \"b\"; c=d.syf"   << "&1  @a, \"b\"; c=d.syf";
    QTest::newRow("blanks")      << "  .syf"               << "&1    .syf";
    QTest::newRow("letters")     << QString::fromUtf8("Glück Рулетка 轮.syf")
                                                           << QString::fromUtf8("&1  Glück Рулетка 轮.syf");
    QTest::newRow("sixty")       << QString(56, 'a') + ".syf"
                                                           << "&1  " + QString(56, 'a') + ".syf";
    QTest::newRow("sixty-one")   << QString(57, 'a') + ".syf"
                                                           << "&1  " + QString(29, 'a') + QChar(0x2026) +
                                                              QString(26, 'a') + ".syf";
    QTest::newRow("very long")   << many + ".syf"          << "&1  " + QString(29, 'a') + QChar(0x2026) +
                                                              QString(26, 'b') + ".syf";
    QTest::newRow("ampersands")  << "&&.syf"               << "&1  &&&&.syf";
    // clang-format on
}

void tst_recent_files::odd_names()
{
    QFETCH(QString, name);
    const QString path = file(name);
    recent_files(store()).add(kind::systems, path);
    recent_files recent(store());
    QMenu menu;
    recent.fill(menu, kind::systems);
    QCOMPARE(menu.actions().size(), 1);
    QTEST(menu.actions().at(0)->text(), "text");
    QVERIFY(!menu.actions().at(0)->statusTip().contains('\n'));
    QSignalSpy chosen(&recent, &recent_files::chosen);
    menu.actions().at(0)->trigger();
    QCOMPARE(chosen.at(0).at(1).toString(), path);
}

void tst_recent_files::a_menu_without_files_is_disabled()
{
    recent_files recent(store());
    QMenu menu;
    recent.fill(menu, kind::systems);
    QVERIFY(!menu.menuAction()->isEnabled());
    recent.add(kind::systems, file("a.syf"));
    emit menu.aboutToShow();
    QVERIFY(menu.menuAction()->isEnabled());
}

int main(int argc, char** argv)
{
    qRegisterMetaType<recent_files::kind>("recent_files::kind");
    return run_window_test<tst_recent_files>(argc, argv);
}

#include "tst_recent_files.moc"
