#include "file_dialog.h"
#include "muster_legend_widget.h"
#include "muster_statistic.h"
#include "muster_widget.h"
#include "page_export.h"
#include "setting.h"
#include "statistic_bench.h"
#include "window_bench.h"

#include <QCheckBox>
#include <QClipboard>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QFile>
#include <QHelpEvent>
#include <QPointer>
#include <QPrinterInfo>
#include <QPushButton>
#include <QSpinBox>
#include <QToolTip>

namespace
{

// 1: low, odd, red, first dozen and column; 20: high, even, black, second and second;
// 36: high, even, red, third and third; 2: low, even, black, first and second.
const QVector<int> coups = {1, 20, 0, 36, 2};

/// The window over a store of its own.
struct pattern_desk {
    explicit pattern_desk(const QVector<int>& thrown = coups)
    {
        throw_numbers(store, thrown);
        window = std::make_unique<muster_statistic>(store, 0.0, settings);
        window->show();
        QCoreApplication::processEvents();
    }

    muster_widget& grid() const { return *child_of<muster_widget>(*window, "WD_muster"); }
    QComboBox& courses() const { return *child_of<QComboBox>(*window, "CB_course"); }
    QCheckBox& vertical() const { return *child_of<QCheckBox>(*window, "CB_vertical"); }
    QSpinBox& grid_size() const { return *child_of<QSpinBox>(*window, "SB_grid_size"); }

    /// The colours of the first squares along a line, read from the screen: y darkYellow, c cyan,
    /// d darkRed, r red, k black, . no square.
    QString row(int squares = 5) const { return line(squares, 1, 0); }
    QString column(int squares = 5) const { return line(squares, 0, 1); }
    QString line(int squares, int right, int down) const
    {
        const QImage picture = grid().viewport()->grab().toImage();
        const int side = grid_size().value();
        QString signs;
        for (int index = 0; index < squares; ++index) {
            const QColor colour =
                picture.pixelColor(index * right * side + side / 2, index * down * side + side / 2);
            signs += sign_of(colour);
        }
        return signs;
    }
    static QChar sign_of(const QColor& colour)
    {
        if (colour == QColor(Qt::darkYellow)) return 'y';
        if (colour == QColor(Qt::cyan)) return 'c';
        if (colour == QColor(Qt::darkRed)) return 'd';
        if (colour == QColor(Qt::red)) return 'r';
        return colour == QColor(Qt::black) ? 'k' : '.';
    }

    setting settings;
    statistic_data store;
    std::unique_ptr<muster_statistic> window;
};

/// The colours of the squares of a key, from left to right.
QString key_colours(muster_legend_widget& legend)
{
    const QImage picture = legend.grab().toImage();
    QString signs;
    for (int x = 3; x < picture.width(); ++x) {
        const QChar here = pattern_desk::sign_of(picture.pixelColor(x, picture.height() / 2));
        const QChar before = pattern_desk::sign_of(picture.pixelColor(x - 3, picture.height() / 2));
        const QColor next = picture.pixelColor(x - 1, picture.height() / 2 + 2);
        const bool is_square = here != '.' && here == before && pattern_desk::sign_of(next) == here;
        if (is_square && !signs.endsWith(here)) signs += here;
    }
    return signs;
}

} // namespace

class tst_muster_statistic : public QObject
{
    Q_OBJECT

private slots:
    void texts_are_those_of_the_window();
    void each_course_is_drawn_in_its_colours_data();
    void each_course_is_drawn_in_its_colours();
    void each_course_has_its_key_data();
    void each_course_has_its_key();
    void vertical_makes_columns();
    void the_grid_size_can_be_chosen();
    void a_long_course_goes_on_in_the_next_row();
    void a_course_is_read_when_it_is_chosen();
    void an_empty_store_shows_nothing();
    void the_mouse_reads_a_square();

    void the_course_can_be_copied();
    void the_picture_is_printed();
    void the_language_changes_live();
    void it_may_die_when_it_closes();
    void everything_fits_at_each_scale_data();
    void everything_fits_at_each_scale();
};

void tst_muster_statistic::texts_are_those_of_the_window()
{
    const pattern_desk desk;
    QCOMPARE(desk.window->windowTitle(), QString("Muster Verlauf"));
    QStringList courses;
    for (int entry = 0; entry < desk.courses().count(); ++entry)
        courses.append(desk.courses().itemText(entry));
    QCOMPARE(courses,
             QStringList({"1-18/19-36", "EVEN/ODD", "Rot/Schwarz", "Dutzende", "Kolonnen"}));
    QCOMPARE(desk.vertical().text(), QString("Vertikal"));
    QVERIFY(!desk.vertical().isChecked());
    QCOMPARE(child_of<QLabel>(*desk.window, "LB_grid_size")->text(), QString("Rastergröße"));
    QCOMPARE(child_of<QPushButton>(*desk.window, "PB_print")->text(), QString("Print"));
}

void tst_muster_statistic::each_course_is_drawn_in_its_colours_data()
{
    QTest::addColumn<int>("course");
    QTest::addColumn<QString>("squares"); // the zero has none
    QTest::newRow("low and high") << 0 << "yccy.";
    QTest::newRow("even and odd") << 1 << "cyyy.";
    QTest::newRow("red and black") << 2 << "rkrk.";
    QTest::newRow("dozens") << 3 << "ycdy.";
    QTest::newRow("columns") << 4 << "ycdc.";
}

void tst_muster_statistic::each_course_is_drawn_in_its_colours()
{
    QFETCH(int, course);
    QFETCH(QString, squares);
    const pattern_desk desk;
    QCOMPARE(desk.row(), QString("yccy."));
    desk.courses().setCurrentIndex(course);
    QCOMPARE(desk.row(), squares);
    desk.vertical().click();
    QCoreApplication::processEvents();
    QCOMPARE(desk.column(), squares);
}

void tst_muster_statistic::each_course_has_its_key_data()
{
    QTest::addColumn<int>("course");
    QTest::addColumn<QString>("colours");
    QTest::addColumn<QStringList>("chances");
    QTest::newRow("low and high") << 0 << "yc" << QStringList({"1-18", "19-36"});
    QTest::newRow("even and odd") << 1 << "yc" << QStringList({"EVEN", "ODD"});
    QTest::newRow("red and black") << 2 << "rk" << QStringList({"Rot", "Schwarz"});
    QTest::newRow("dozens") << 3 << "ycd" << QStringList({"1-12", "13-24", "25-36"});
    QTest::newRow("columns") << 4 << "ycd"
                             << QStringList({"1. Kolonne", "2. Kolonne", "3. Kolonne"});
}

void tst_muster_statistic::each_course_has_its_key()
{
    QFETCH(int, course);
    QFETCH(QString, colours);
    QFETCH(QStringList, chances);
    const pattern_desk desk;
    desk.courses().setCurrentIndex(course);
    auto* const legend = child_of<muster_legend_widget>(*desk.window, "WD_legend");
    QPalette paper = legend->palette();
    paper.setColor(QPalette::Window, Qt::white);
    paper.setColor(QPalette::WindowText, Qt::blue); // black letters are no squares
    legend->setPalette(paper);
    QCOMPARE(key_colours(*legend), colours);
    QStringList texts;
    const auto entries = muster_legend_widget::entries_of(static_cast<colour_course_index>(course));
    for (const muster_legend_widget::entry& entry : entries)
        texts.append(entry.chance);
    QCOMPARE(texts, chances);
}

void tst_muster_statistic::vertical_makes_columns()
{
    const pattern_desk desk;
    QCOMPARE(desk.column(2), QString("y."));
    desk.vertical().click();
    QCoreApplication::processEvents();
    QCOMPARE(desk.row(2), QString("y."));
    QCOMPARE(desk.column(5), QString("yccy."));
    desk.vertical().click();
    QCoreApplication::processEvents();
    QCOMPARE(desk.row(5), QString("yccy."));
}

void tst_muster_statistic::the_grid_size_can_be_chosen()
{
    const pattern_desk desk;
    QCOMPARE(desk.grid_size().value(), 18);
    for (const int size : {desk.grid_size().minimum(), 30, desk.grid_size().maximum()}) {
        desk.grid_size().setValue(size);
        QCOMPARE(desk.grid().square(0), QRect(0, 0, size, size));
        QCOMPARE(desk.row(), QString("yccy."));
    }
}

void tst_muster_statistic::a_long_course_goes_on_in_the_next_row()
{
    const pattern_desk desk(QVector<int>(99, 1) + QVector<int>(1, 20)); // the last one is high
    const int per_row = (desk.grid().viewport()->width() - 1) / 18;
    const QRect last(99 % per_row * 18, 99 / per_row * 18, 18, 18);
    QVERIFY(per_row < 99 && last.top() > 0);
    const QImage picture = desk.grid().viewport()->grab().toImage();
    QCOMPARE(picture.pixelColor(last.center()), QColor(Qt::cyan));
    QCOMPARE(picture.pixelColor(last.center() - QPoint(0, 18)), QColor(Qt::darkYellow));
}

void tst_muster_statistic::a_course_is_read_when_it_is_chosen()
{
    pattern_desk desk;
    throw_numbers(desk.store, {19});
    QCOMPARE(desk.row(), QString("yccy."));
    desk.courses().setCurrentIndex(2);
    QCOMPARE(desk.row(), QString("rkrkr"));
    desk.store.resetStatisticStorage();
    QCOMPARE(desk.row(), QString("rkrkr"));
    desk.courses().setCurrentIndex(0);
    QCOMPARE(desk.row(), QString("....."));
}

void tst_muster_statistic::an_empty_store_shows_nothing()
{
    const pattern_desk desk({0, 37, 0});
    for (int course = 0; course < desk.courses().count(); ++course) {
        desk.courses().setCurrentIndex(course);
        QCOMPARE(desk.row(), QString("....."));
    }
}

// The 36 is the fourth coup, but the third square: the zero has none.
void tst_muster_statistic::the_mouse_reads_a_square()
{
    const pattern_desk desk;
    desk.courses().setCurrentIndex(3);
    QHelpEvent help(QEvent::ToolTip, {45, 5}, desk.grid().viewport()->mapToGlobal({45, 5}));
    QCoreApplication::sendEvent(desk.grid().viewport(), &help);
    QCOMPARE(QToolTip::text(), QString("Nr. 3: 25-36"));
    QToolTip::hideText();
}

// The window

void tst_muster_statistic::the_course_can_be_copied()
{
    const pattern_desk desk;
    desk.courses().setCurrentIndex(2);
    desk.window->findChild<page_export*>()->copy();
    QCOMPARE(QApplication::clipboard()->text().split('\n'),
             QStringList({"Nr.\tFarbe\tChance",
                          "1\tRot\tRot",
                          "2\tSchwarz\tSchwarz",
                          "3\tRot\tRot",
                          "4\tSchwarz\tSchwarz"}));
    desk.courses().setCurrentIndex(4);
    desk.window->findChild<page_export*>()->copy();
    QCOMPARE(QApplication::clipboard()->text().split('\n'),
             QStringList({"Nr.\tFarbe\tChance",
                          "1\tDunkelgelb\t1. Kolonne",
                          "2\tCyan\t2. Kolonne",
                          "3\tDunkelrot\t3. Kolonne",
                          "4\tCyan\t2. Kolonne"}));
}

void tst_muster_statistic::the_picture_is_printed()
{
    if (!QPrinterInfo::defaultPrinter().isNull()) QSKIP("would print on a real printer");
    const pattern_desk desk;
    box_user user;
    user.answer(QMessageBox::Yes);
    file_dialog::set_chooser([](const file_dialog::request&) { return "page.pdf"; });
    child_of<QPushButton>(*desk.window, "PB_print")->click();
    file_dialog::set_chooser({});
    QCOMPARE(user.boxes().size(), 1);
    QFile page("page.pdf");
    QVERIFY(page.open(QIODevice::ReadOnly));
    QVERIFY(page.readAll().startsWith("%PDF"));
}

void tst_muster_statistic::the_language_changes_live()
{
    const pattern_desk desk;
    desk.courses().setCurrentIndex(4);
    desk.grid_size().setValue(25);
    bracket_translator brackets;
    QCoreApplication::installTranslator(&brackets);
    QCoreApplication::processEvents();
    QCOMPARE(desk.window->windowTitle(), QString("<Muster Verlauf>"));
    QCOMPARE(desk.courses().currentText(), QString("<Kolonnen>"));
    QCOMPARE(desk.vertical().text(), QString("<Vertikal>"));
    QCOMPARE(desk.grid_size().value(), 25);
    QCOMPARE(desk.row(), QString("ycdc."));
    desk.window->findChild<page_export*>()->copy();
    QVERIFY(QApplication::clipboard()->text().endsWith("\n4\t<Cyan>\t<2. Kolonne>"));
    QCoreApplication::removeTranslator(&brackets);
    QCoreApplication::processEvents();
    QCOMPARE(desk.window->windowTitle(), QString("Muster Verlauf"));
}

void tst_muster_statistic::it_may_die_when_it_closes()
{
    const statistic_data store;
    const setting settings;
    QPointer<muster_statistic> window = new muster_statistic(store, 0.0, settings);
    window->setAttribute(Qt::WA_DeleteOnClose);
    window->show();
    child_of<QDialogButtonBox>(*window, "buttonBox")->button(QDialogButtonBox::Close)->click();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QVERIFY(!window);
}

void tst_muster_statistic::everything_fits_at_each_scale_data()
{
    QTest::addColumn<int>("step");
    QTest::addColumn<int>("grid_size"); // 18 less its tenths
    QTest::newRow("full") << 0 << 18;
    QTest::newRow("0.1") << 1 << 16;
    QTest::newRow("0.2") << 2 << 14;
    QTest::newRow("0.3") << 3 << 12;
}

void tst_muster_statistic::everything_fits_at_each_scale()
{
    QFETCH(int, step);
    QFETCH(int, grid_size);
    setting settings;
    settings.set_s_scr_res_factor(step);
    const statistic_data store;
    muster_statistic window(store, step / 10.0, settings);
    window.show();
    QCOMPARE(child_of<QSpinBox>(window, "SB_grid_size")->value(), grid_size);
    auto* const courses = child_of<QComboBox>(window, "CB_course");
    for (int course = 0; course < courses->count(); ++course) {
        courses->setCurrentIndex(course);
        QCoreApplication::processEvents();
        QCOMPARE(clipped_child(window), QString());
        auto* const legend = child_of<QWidget>(window, "WD_legend");
        QVERIFY(legend->width() >= legend->sizeHint().width());
    }
    QVERIFY(window.width() <= 1600 && window.height() <= 900);
}

int main(int argc, char** argv)
{
    return run_window_test<tst_muster_statistic>(argc, argv);
}

#include "tst_muster_statistic.moc"
