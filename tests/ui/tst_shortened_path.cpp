#include "shortened_path.h"
#include "test_box.h"

/// Paths as narrow fields show them.
class tst_shortened_path : public QObject
{
    Q_OBJECT

private slots:
    void first_and_last_folder_stay_data();
    void first_and_last_folder_stay();
    void a_relative_path_is_taken_from_the_working_directory();
};

void tst_shortened_path::first_and_last_folder_stay_data()
{
    QTest::addColumn<QString>("path");
    QTest::addColumn<int>("limit");
    QTest::addColumn<QString>("text");
    // clang-format off
    QTest::newRow("no path")        << ""                    << 50 << "";
    QTest::newRow("two folders")    << "/data/max/a.inp"     << 50 << "data/.../max/a.inp";
    QTest::newRow("many folders")   << "/data/max/b/c/a.inp" << 50 << "data/.../c/a.inp";
    QTest::newRow("one folder")     << "/data/a.inp"         << 50 << "data/.../data/a.inp";
    QTest::newRow("no folder")      << "/a.inp"              << 50 << "/a.inp";
    QTest::newRow("doubled slash")  << "/data//max/a.inp"    << 50 << "data/.../max/a.inp";
    QTest::newRow("just fits")      << "/data/max/a.inp"     << 18 << "data/.../max/a.inp";
    QTest::newRow("one too many")   << "/data/max/a.inp"     << 17 << "data/.../a.inp";
    QTest::newRow("no other cut")   << "/data/max/a.inp"     << 3  << "data/.../a.inp";
    // clang-format on
}

void tst_shortened_path::first_and_last_folder_stay()
{
    QFETCH(QString, path);
    QFETCH(int, limit);
    QFETCH(QString, text);
    QCOMPARE(shortened_path(path, limit), text);
}

void tst_shortened_path::a_relative_path_is_taken_from_the_working_directory()
{
    const QStringList folders = QDir::currentPath().split('/', Qt::SkipEmptyParts);
    QCOMPARE(shortened_path("sub/a.inp", 500), folders.first() + "/.../sub/a.inp");
}

int main(int argc, char** argv)
{
    return run_in_own_box<tst_shortened_path>(argc, argv);
}

#include "tst_shortened_path.moc"
