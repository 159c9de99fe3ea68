#include "determine_history_files_and_date.h"
#include "test_box.h"

#include <QFile>
#include <QTemporaryDir>

#include <memory>

Q_DECLARE_METATYPE(history_choice)

/// Which year files a choice means, and from which day on.
class tst_determine_history_files_and_date : public QObject
{
    Q_OBJECT

private slots:
    void init();

    void the_years_of_a_folder_data();
    void the_years_of_a_folder();
    void a_choice_data();
    void a_choice();
    void no_year_at_all_is_told();

private:
    std::unique_ptr<QTemporaryDir> folder;
};

static const QDate today(2020, 2, 29);

static void put_files(const QStringList& names)
{
    for (const QString& name : names) {
        QFile file(name);
        if (!file.open(QIODevice::WriteOnly)) qFatal("%s cannot be written", qPrintable(name));
    }
}

void tst_determine_history_files_and_date::init()
{
    folder = std::make_unique<QTemporaryDir>();
    QVERIFY(QDir::setCurrent(folder->path()));
}

void tst_determine_history_files_and_date::the_years_of_a_folder_data()
{
    QTest::addColumn<QStringList>("files");
    QTest::addColumn<QStringList>("years");
    const auto row = [](const char* name, const QStringList& files, const QStringList& years) {
        QTest::newRow(name) << files << years;
    };
    row("none", {}, {});
    row("newest first", {"Stat2017.log", "Stat2020.log", "Stat2018.log"}, {"2020", "2018", "2017"});
    row("other names",
        {"Stat2018.log",
         "Stat2018.old.log",
         "Stat18.log",
         "Stat20188.log",
         "StatABCD.log",
         "Stat.log",
         "Stat2019.txt",
         "MyStat2019.log",
         "Stat_run_1.draft"},
        {"2018"});
}

void tst_determine_history_files_and_date::the_years_of_a_folder()
{
    QFETCH(QStringList, files);
    put_files(files);
    QTEST(permanence_years(), "years");
}

void tst_determine_history_files_and_date::a_choice_data()
{
    QTest::addColumn<QStringList>("years");
    QTest::addColumn<history_choice>("choice");
    QTest::addColumn<QStringList>("files");
    QTest::addColumn<QDate>("first_date");

    const auto row = [](const char* name,
                        const QStringList& years,
                        const history_choice& choice,
                        const QStringList& files,
                        const QDate& first_date) {
        QTest::newRow(name) << years << choice << files << first_date;
    };
    const auto from_year = [](int index) {
        history_choice choice;
        choice.rule = 0;
        choice.year_index = index;
        return choice;
    };
    const auto days = [](int rule, int count) {
        history_choice choice;
        choice.rule = rule;
        choice.days = count;
        return choice;
    };
    const auto from_date = [](const QDate& date) {
        history_choice choice;
        choice.rule = 3;
        choice.fix_date = date;
        return choice;
    };
    history_choice single;
    single.rule = 4;
    single.single_path = "/some/where/table.inp";
    history_choice unknown = from_year(1);
    unknown.rule = 7;

    const QStringList years = {"2017", "2018", "2020"};
    const QString file_17 = "./Stat2017.log", file_18 = "./Stat2018.log",
                  file_20 = "./Stat2020.log";
    const QDate before(2011, 11, 11);
    // clang-format off
    row("newest year",        years, from_year(0),  {file_20},                   {2020, 1, 1});
    row("second year",        years, from_year(1),  {file_18, file_20},          {2018, 1, 1});
    row("oldest year",        years, from_year(2),  {file_17, file_18, file_20}, {2017, 1, 1});
    row("year beyond",        years, from_year(3),  {},                          before);
    row("index of no list",   {},    from_year(0),  {},                          before);
    row("none chosen",        years, from_year(-1), {},                          {2020, 1, 1});
    row("unknown rule",       years, unknown,       {file_18, file_20},          {2018, 1, 1});
    row("one day",            years, days(1, 30),   {file_20},                   {2020, 2, 28});
    row("last two days",      years, days(2, 2),    {file_20},                   {2020, 2, 27});
    row("sixty days",         years, days(2, 60),   {file_20},                   {2019, 12, 31});
    row("last year of days",  years, days(2, 365),  {file_20},                   {2019, 3, 1});
    row("no days",            years, days(2, 0),    {file_20},                   {2020, 2, 29});
    row("a date",             years, from_date({2018, 6, 1}), {file_18, file_20}, {2018, 6, 1});
    row("a date in a gap",    years, from_date({2019, 6, 1}), {file_20},         {2019, 6, 1});
    row("an old date",        years, from_date({2000, 1, 1}), {file_17, file_18, file_20},
                                                                                 {2000, 1, 1});
    row("a date to come",     years, from_date({2021, 1, 1}), {},                {2021, 1, 1});
    row("a date, no files",   {},    from_date({2018, 6, 1}), {},                {2018, 6, 1});
    row("a single file",      years, single,        {"/some/where/table.inp"},   {1970, 1, 1});
    // clang-format on
}

void tst_determine_history_files_and_date::a_choice()
{
    QFETCH(QStringList, years);
    QFETCH(history_choice, choice);
    for (const QString& year : years)
        put_files({"Stat" + year + ".log"});
    const history_files found =
        determine_history_files_and_date(today).determine(choice, QDate(2011, 11, 11));
    QTEST(found.files, "files");
    QTEST(found.first_date, "first_date");
}

void tst_determine_history_files_and_date::no_year_at_all_is_told()
{
    QTest::ignoreMessage(QtDebugMsg, "WARNUNG HISTORY INDEX = -1");
    history_choice none;
    none.year_index = -1;
    const history_files found = determine_history_files_and_date(today).determine(none);
    QCOMPARE(found.files, QStringList());
    QCOMPARE(found.first_date, QDate(2017, 1, 1));
}

int main(int argc, char** argv)
{
    return run_in_own_box<tst_determine_history_files_and_date>(argc, argv);
}

#include "tst_determine_history_files_and_date.moc"
