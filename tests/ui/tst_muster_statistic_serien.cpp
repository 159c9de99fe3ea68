#include "file_dialog.h"
#include "muster_serie_widget.h"
#include "muster_statistic_serien.h"
#include "page_export.h"
#include "setting.h"
#include "statistic_bench.h"
#include "window_bench.h"

#include <QClipboard>
#include <QDialogButtonBox>
#include <QFile>
#include <QGroupBox>
#include <QPainter>
#include <QPointer>
#include <QPrinterInfo>
#include <QPushButton>
#include <QTabWidget>

namespace
{

using pair_colours = muster_serie_widget::pair_colours;

QList<muster_figure> figures_of(int length, const QVector<int>& colours)
{
    muster_figure_set set(length);
    for (const int colour : colours)
        set.add(colour);
    return set.all_figures();
}

/// The squares of a figure as they are on the screen, r or k; . for anything else.
QString squares_on(const QImage& picture, const muster_serie_widget& list, int figure, int coups)
{
    QString signs;
    for (int coup = 0; coup < coups; ++coup) {
        const QColor colour = picture.pixelColor(list.square(figure, coup).center());
        QChar sign = '.';
        if (colour == QColor(Qt::red)) sign = 'r';
        if (colour == QColor(Qt::black)) sign = 'k';
        signs += sign;
    }
    return signs;
}

/// What a count looks like, written by hand.
QImage written(const muster_serie_widget& list, int figure, const QString& text)
{
    QImage picture(list.size(), QImage::Format_RGB32);
    picture.fill(Qt::white);
    QPainter painter(&picture);
    painter.setFont(list.font());
    painter.setPen(Qt::darkBlue);
    painter.drawText(list.count_place(figure), Qt::AlignRight | Qt::AlignVCenter, text);
    painter.end();
    return picture.copy(list.count_place(figure));
}

void give_colours(QWidget& widget)
{
    QPalette palette = widget.palette();
    palette.setColor(QPalette::Window, Qt::white);
    palette.setColor(QPalette::WindowText, Qt::darkBlue);
    widget.setPalette(palette);
}

/// The copied lines with a count above 0, without the head: pair and figure to count.
QStringList counted(const muster_statistic_serien& window)
{
    window.findChild<page_export*>()->copy();
    QStringList lines = QApplication::clipboard()->text().split('\n');
    lines.removeFirst();
    QStringList found;
    for (const QString& line : qAsConst(lines))
        if (!line.endsWith("\t0")) found.append(line);
    return found;
}

} // namespace

class tst_muster_statistic_serien : public QObject
{
    Q_OBJECT

private slots:
    void texts_are_those_of_the_window();
    void figures_are_rows_of_squares_data();
    void figures_are_rows_of_squares();
    void counts_stand_behind_their_figures();
    void the_counts_of_a_permanence_data();
    void the_counts_of_a_permanence();
    void each_tab_shows_its_pair();
    void the_window_keeps_what_it_opened_with();
    void great_counts_are_not_clipped_data();
    void great_counts_are_not_clipped();

    void figures_can_be_copied();
    void the_picture_is_printed();
    void the_language_changes_live();
    void it_may_die_when_it_closes();
    void everything_fits_at_each_scale_data();
    void everything_fits_at_each_scale();
};

void tst_muster_statistic_serien::texts_are_those_of_the_window()
{
    const statistic_data store;
    const setting settings;
    const muster_statistic_serien window(store, 0.0, settings);
    QCOMPARE(window.windowTitle(), QString("Muster Figuren"));
    const auto* tabs = child_of<QTabWidget>(window, "TW_pairs");
    QCOMPARE(tabs->count(), 3);
    QCOMPARE(tabs->tabText(0), QString("1-18/19-36 (EC01/EC06)"));
    QCOMPARE(tabs->tabText(1), QString("EVEN/ODD (EC02/EC05)"));
    QCOMPARE(tabs->tabText(2), QString("Rot/Schwarz (EC03/EC04)"));
    for (int tab = 0; tab < 3; ++tab) {
        QStringList titles;
        const auto groups = tabs->widget(tab)->findChildren<QGroupBox*>();
        for (const QGroupBox* group : groups)
            titles.append(group->title());
        QCOMPARE(titles, QStringList({"2er Figuren", "3er Figuren", "4er Figuren"}));
    }
}

void tst_muster_statistic_serien::figures_are_rows_of_squares_data()
{
    QTest::addColumn<int>("length");
    QTest::addColumn<QString>("rows"); // in the order of the figures, 0 red and 1 black
    QTest::newRow("2") << 2 << "rr rk kr kk";
    QTest::newRow("3") << 3 << "rrr rrk rkk rkr krk krr kkr kkk";
    QTest::newRow("4") << 4
                       << "rrrr rrrk rrkk rkkk krkk kkrk kkkr kkrr "
                          "krrr rkrk krkr rkkr krrk rrkr rkrr kkkk";
}

void tst_muster_statistic_serien::figures_are_rows_of_squares()
{
    QFETCH(int, length);
    QFETCH(QString, rows);
    muster_serie_widget list;
    list.set_figures(figures_of(length, {}), {Qt::red, Qt::black}, 0.0);
    list.resize(list.sizeHint());
    const QImage picture = list.grab().toImage();
    QStringList seen;
    for (int figure = 0; figure < rows.split(' ').size(); ++figure)
        seen.append(squares_on(picture, list, figure, length));
    QCOMPARE(seen.join(' '), rows);
    for (int figure = 1; figure < seen.size(); ++figure) { // rows apart, or another column
        const QRect above = list.square(figure - 1, 0);
        const QRect here = list.square(figure, 0);
        QVERIFY(here.top() > above.bottom() + 1 || here.left() > list.count_place(0).right());
    }
}

void tst_muster_statistic_serien::counts_stand_behind_their_figures()
{
    muster_serie_widget list;
    give_colours(list);
    // Red, red, black, red, red: "0,0" twice, "0,1" and "1,0" once.
    list.set_figures(figures_of(2, {7, 7, 2, 7, 7}), {Qt::red, Qt::black}, 0.0);
    list.resize(list.sizeHint());
    const QImage picture = list.grab().toImage().convertToFormat(QImage::Format_RGB32);
    const QStringList counts = {"2", "1", "1", "0"};
    for (int figure = 0; figure < counts.size(); ++figure) {
        const QRect place = list.count_place(figure);
        QVERIFY(place.left() > list.square(figure, 1).right());
        QCOMPARE(picture.copy(place), written(list, figure, counts.at(figure)));
    }
}

void tst_muster_statistic_serien::the_counts_of_a_permanence_data()
{
    QTest::addColumn<QVector<int>>("coups");
    QTest::addColumn<QStringList>("figures"); // of red and black
    QTest::newRow("red, black, black")
        << QVector<int>{1, 2, 4} << QStringList({"0,1\t1", "1,1\t1", "0,1,1\t1"});
    QTest::newRow("a zero between two reds") << QVector<int>{1, 0, 3} << QStringList("0,0\t1");
    QTest::newRow("black, red, black, red, black, red")
        << QVector<int>{2, 1, 4, 3, 6, 5}
        << QStringList({"0,1\t2", "1,0\t3", "0,1,0\t2", "1,0,1\t2", "0,1,0,1\t1", "1,0,1,0\t2"});
    QTest::newRow("one coup") << QVector<int>{1} << QStringList();
    QTest::newRow("none") << QVector<int>{} << QStringList();
}

void tst_muster_statistic_serien::the_counts_of_a_permanence()
{
    QFETCH(QVector<int>, coups);
    QFETCH(QStringList, figures);
    statistic_data store;
    throw_numbers(store, coups);
    const setting settings;
    const muster_statistic_serien window(store, 0.0, settings);
    QStringList lines;
    for (const QString& figure : qAsConst(figures))
        lines.append("Rot/Schwarz (EC03/EC04)\t" + figure);
    QCOMPARE(counted(window).filter("EC03"), lines);
}

/// 1, 2, 4 are low, low, low; odd, even, even; red, black, black.
void tst_muster_statistic_serien::each_tab_shows_its_pair()
{
    statistic_data store;
    throw_numbers(store, {1, 2, 4});
    const setting settings;
    muster_statistic_serien window(store, 0.0, settings);
    QCOMPARE(counted(window),
             QStringList({"1-18/19-36 (EC01/EC06)\t0,0\t2",
                          "1-18/19-36 (EC01/EC06)\t0,0,0\t1",
                          "EVEN/ODD (EC02/EC05)\t0,0\t1",
                          "EVEN/ODD (EC02/EC05)\t1,0\t1",
                          "EVEN/ODD (EC02/EC05)\t1,0,0\t1",
                          "Rot/Schwarz (EC03/EC04)\t0,1\t1",
                          "Rot/Schwarz (EC03/EC04)\t1,1\t1",
                          "Rot/Schwarz (EC03/EC04)\t0,1,1\t1"}));

    // On the screen: the first and the last figure of length 2, and the counts.
    window.show();
    auto* const tabs = child_of<QTabWidget>(window, "TW_pairs");
    const QVector<pair_colours> colours = {
        {Qt::darkYellow, Qt::cyan}, {Qt::darkYellow, Qt::cyan}, {Qt::red, Qt::black}};
    const QVector<QStringList> counts = {
        {"2", "0", "0", "0"}, {"1", "0", "1", "0"}, {"0", "1", "0", "1"}};
    for (int pair = 0; pair < 3; ++pair) {
        tabs->setCurrentIndex(pair);
        auto* const list =
            child_of<muster_serie_widget>(window, QString("WD_pair_%1_length_2").arg(pair));
        QVERIFY(list->isVisible());
        give_colours(*list);
        list->setAutoFillBackground(true);
        const QImage picture = list->grab().toImage().convertToFormat(QImage::Format_RGB32);
        QCOMPARE(picture.pixelColor(list->square(0, 0).center()), QColor(colours[pair][0]));
        QCOMPARE(picture.pixelColor(list->square(3, 1).center()), QColor(colours[pair][1]));
        for (int figure = 0; figure < 4; ++figure) {
            QCOMPARE(picture.copy(list->count_place(figure)),
                     written(*list, figure, counts[pair][figure]));
        }
    }
}

void tst_muster_statistic_serien::the_window_keeps_what_it_opened_with()
{
    statistic_data store;
    throw_numbers(store, {1, 0, 3});
    const setting settings;
    const muster_statistic_serien window(store, 0.0, settings);
    const QStringList before = counted(window);
    store.resetStatisticStorage();
    throw_numbers(store, {2, 4, 6});
    QCOMPARE(counted(window), before);
}

void tst_muster_statistic_serien::great_counts_are_not_clipped_data()
{
    QTest::addColumn<int>("step");
    QTest::addColumn<QString>("count");
    for (int step = 0; step <= 3; ++step) {
        for (const char* count : {"1000000", "8888888", "2147483647"})
            QTest::addRow("%s, step %d", count, step) << step << QString(count);
    }
}

void tst_muster_statistic_serien::great_counts_are_not_clipped()
{
    QFETCH(int, step);
    QFETCH(QString, count);
    muster_serie_widget list;
    QList<muster_figure> figures = figures_of(4, {});
    for (muster_figure& figure : figures)
        figure.count = count.toInt();
    list.set_figures(figures, {Qt::red, Qt::black}, step / 10.0);
    list.resize(list.sizeHint());
    const int needed = list.fontMetrics().horizontalAdvance(count);
    for (int figure = 0; figure < figures.size(); ++figure) {
        QVERIFY(list.count_place(figure).width() >= needed);
        QVERIFY(list.count_place(figure).height() >= list.fontMetrics().height());
        QVERIFY(list.rect().contains(list.count_place(figure)));
        QVERIFY(list.rect().contains(list.square(figure, 3)));
    }
    QVERIFY(list.count_place(0).right() < list.square(8, 0).left()); // the second column
}

// The window

void tst_muster_statistic_serien::figures_can_be_copied()
{
    const statistic_data store;
    const setting settings;
    const muster_statistic_serien window(store, 0.0, settings);
    window.findChild<page_export*>()->copy();
    const QStringList lines = QApplication::clipboard()->text().split('\n');
    QCOMPARE(lines.size(), 1 + 3 * (4 + 8 + 16));
    QCOMPARE(lines.first(), QString("Chance\tFigur\tAnzahl"));
    QCOMPARE(lines.last(), QString("Rot/Schwarz (EC03/EC04)\t1,1,1,1\t0"));
}

void tst_muster_statistic_serien::the_picture_is_printed()
{
    if (!QPrinterInfo::defaultPrinter().isNull()) QSKIP("would print on a real printer");
    const statistic_data store;
    const setting settings;
    const muster_statistic_serien window(store, 0.0, settings);
    box_user user;
    user.answer(QMessageBox::Yes);
    file_dialog::set_chooser([](const file_dialog::request&) { return "page.pdf"; });
    child_of<QPushButton>(window, "PB_print")->click();
    file_dialog::set_chooser({});
    QCOMPARE(user.boxes().size(), 1);
    QFile page("page.pdf");
    QVERIFY(page.open(QIODevice::ReadOnly));
    QVERIFY(page.readAll().startsWith("%PDF"));
}

void tst_muster_statistic_serien::the_language_changes_live()
{
    statistic_data store;
    throw_numbers(store, {1, 3});
    const setting settings;
    muster_statistic_serien window(store, 0.0, settings);
    window.show();
    auto* const tabs = child_of<QTabWidget>(window, "TW_pairs");
    tabs->setCurrentIndex(1);
    bracket_translator brackets;
    QCoreApplication::installTranslator(&brackets);
    QCoreApplication::processEvents();
    QCOMPARE(window.windowTitle(), QString("<Muster Figuren>"));
    QCOMPARE(tabs->tabText(2), QString("<Rot/Schwarz (EC03/EC04)>"));
    QCOMPARE(tabs->currentIndex(), 1);
    QCOMPARE(counted(window).filter("EC03"), QStringList("<Rot/Schwarz (EC03/EC04)>\t0,0\t1"));
    QCoreApplication::removeTranslator(&brackets);
    QCoreApplication::processEvents();
    QCOMPARE(window.windowTitle(), QString("Muster Figuren"));
}

void tst_muster_statistic_serien::it_may_die_when_it_closes()
{
    const statistic_data store;
    const setting settings;
    QPointer<muster_statistic_serien> window = new muster_statistic_serien(store, 0.0, settings);
    window->setAttribute(Qt::WA_DeleteOnClose);
    window->show();
    child_of<QDialogButtonBox>(*window, "buttonBox")->button(QDialogButtonBox::Close)->click();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QVERIFY(!window);
}

void tst_muster_statistic_serien::everything_fits_at_each_scale_data()
{
    QTest::addColumn<int>("step");
    QTest::addColumn<int>("side"); // of a square: 18 less its tenths
    QTest::newRow("full") << 0 << 18;
    QTest::newRow("0.1") << 1 << 16;
    QTest::newRow("0.2") << 2 << 14;
    QTest::newRow("0.3") << 3 << 12;
}

void tst_muster_statistic_serien::everything_fits_at_each_scale()
{
    QFETCH(int, step);
    QFETCH(int, side);
    const statistic_data store;
    const setting settings;
    muster_statistic_serien window(store, step / 10.0, settings);
    window.show();
    auto* const tabs = child_of<QTabWidget>(window, "TW_pairs");
    for (int pair = 0; pair < 3; ++pair) {
        tabs->setCurrentIndex(pair);
        QCoreApplication::processEvents();
        QCOMPARE(clipped_child(window), QString());
        for (int length = 2; length <= 4; ++length) {
            const QString name = QString("WD_pair_%1_length_%2").arg(pair).arg(length);
            const auto* list = child_of<muster_serie_widget>(window, name);
            QCOMPARE(list->square(0, 0).width(), side);
            const int last = (1 << length) - 1;
            QVERIFY(list->rect().contains(list->count_place(last)));
        }
    }
    QVERIFY(window.width() <= 1600 && window.height() <= 900);
}

int main(int argc, char** argv)
{
    return run_window_test<tst_muster_statistic_serien>(argc, argv);
}

#include "tst_muster_statistic_serien.moc"
