#include "file_dialog.h"
#include "printer_c.h"
#include "setting.h"
#include "window_bench.h"

#include <QPixmap>
#include <QPrinterInfo>
#include <QProcess>
#include <QRandomGenerator>
#include <QRegularExpression>
#include <QStandardPaths>

#include <csignal>
#include <sys/resource.h>

namespace
{

const QString question = "Es ist kein Drucker bereit. Soll die Seite als PDF gespeichert werden?";

QPixmap red_picture(int width, int height)
{
    QPixmap picture(width, height);
    picture.fill(Qt::red);
    return picture;
}

/// What a saved page says about itself, read from the bytes of the file.
struct pdf_file {
    explicit pdf_file(const QString& path)
    {
        QFile file(path);
        if (file.open(QIODevice::ReadOnly)) bytes = file.readAll();
    }

    bool is_pdf() const { return bytes.startsWith("%PDF-") && bytes.contains("%%EOF"); }

    /// Unit: points of 1/72 inch.
    QSizeF sheet() const
    {
        const auto found = first("/MediaBox \\[0 0 ([0-9.]+) ([0-9.]+)\\]");
        return {found.captured(1).toDouble(), found.captured(2).toDouble()};
    }
    QSize picture_size() const
    {
        return {first("/Width (\\d+)").captured(1).toInt(),
                first("/Height (\\d+)").captured(1).toInt()};
    }
    QString picture_colours() const { return first("/ColorSpace /(\\w+)").captured(1); }

private:
    QRegularExpressionMatch first(const char* pattern) const
    {
        return QRegularExpression(pattern).match(
            QString::fromLatin1(bytes.constData(), bytes.size()));
    }

    QByteArray bytes;
};

/// A window, its printer, and a user who wants the page as "page.pdf".
struct printing_desk {
    printing_desk()
        : printer(settings, &window)
    {
        file_dialog::set_chooser([this](const file_dialog::request& what) {
            requests.append(what);
            return path;
        });
    }
    ~printing_desk() { file_dialog::set_chooser({}); }

    void save(const QPixmap& picture)
    {
        user.answer(QMessageBox::Yes);
        printer.print_pixmap(picture, picture.width(), picture.height());
    }

    QWidget window;
    setting settings;
    printer_c printer;
    box_user user;
    QString path = QDir::current().filePath("page.pdf");
    QVector<file_dialog::request> requests;
};

} // namespace

class tst_printer_c : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void cleanup() { QFile::remove("page.pdf"); }

    void a_picture_is_fitted_and_centred_data();
    void a_picture_is_fitted_and_centred();

    void without_a_printer_the_page_becomes_a_pdf();
    void the_user_may_want_no_pdf();
    void the_user_may_cancel_the_file_dialog();
    void an_empty_picture_prints_nothing_data();
    void an_empty_picture_prints_nothing();
    void the_format_follows_the_setting_data();
    void the_format_follows_the_setting();
    void the_colour_follows_the_setting_data();
    void the_colour_follows_the_setting();
    void a_dense_picture_counts_in_its_own_pixels();
    void the_page_looks_as_told_data();
    void the_page_looks_as_told();
    void a_path_that_can_not_be_written_is_told();
    void half_a_page_is_not_saved();
    void an_ending_is_added();
    void one_question_at_a_time();
};

void tst_printer_c::initTestCase()
{
    if (!QPrinterInfo::defaultPrinter().isNull()) QFAIL("the test would print on real paper");
}

void tst_printer_c::a_picture_is_fitted_and_centred_data()
{
    QTest::addColumn<QRect>("page");
    QTest::addColumn<QRect>("paper");
    QTest::addColumn<QSize>("picture");
    QTest::addColumn<QPointF>("top_left"); // of the picture on the page
    QTest::addColumn<QPointF>("bottom_right");
    const QRect page(40, 60, 1000, 800);
    const QRect paper(0, 0, 1080, 920);
    // clang-format off
    // scale 1/2: 2000 x 400 becomes 1000 x 200 round (500, 400)
    QTest::newRow("wide")       << page << paper << QSize(2000, 400) << QPointF(0, 300) << QPointF(1000, 500);
    // scale 1/4: 400 x 3200 becomes 100 x 800
    QTest::newRow("tall")       << page << paper << QSize(400, 3200) << QPointF(450, 0) << QPointF(550, 800);
    // scale 8: 100 x 100 becomes 800 x 800
    QTest::newRow("small")      << page << paper << QSize(100, 100)  << QPointF(100, 0) << QPointF(900, 800);
    QTest::newRow("fits")       << page << paper << QSize(1000, 800) << QPointF(0, 0)   << QPointF(1000, 800);
    // the sheet begins at (7, 9), so everything is moved by it
    QTest::newRow("moved")      << page << QRect(7, 9, 1080, 920) << QSize(1000, 800)
                                << QPointF(7, 9) << QPointF(1007, 809);
    // integer halves: 1001 / 2 = 500, 801 / 2 = 400, 101 / 2 = 50; scale 801 / 101
    QTest::newRow("odd halves") << QRect(0, 0, 1001, 801) << paper << QSize(101, 101)
                                << QPointF(500 - 50 * 801.0 / 101, 400 - 50 * 801.0 / 101)
                                << QPointF(500 + 51 * 801.0 / 101, 400 + 51 * 801.0 / 101);
    // clang-format on
}

void tst_printer_c::a_picture_is_fitted_and_centred()
{
    QFETCH(QRect, page);
    QFETCH(QRect, paper);
    QFETCH(QSize, picture);
    QFETCH(QPointF, top_left);
    QFETCH(QPointF, bottom_right);
    const QTransform place = fitted_transform(page, paper, picture.width(), picture.height());
    const QPointF corner = place.map(QPointF(0, 0));
    const QPointF far_corner = place.map(QPointF(picture.width(), picture.height()));
    QVERIFY(QLineF(corner, top_left).length() < 1e-9);
    QVERIFY(QLineF(far_corner, bottom_right).length() < 1e-9);
}

void tst_printer_c::without_a_printer_the_page_becomes_a_pdf()
{
    printing_desk desk;
    desk.save(red_picture(300, 200));
    QCOMPARE(desk.user.boxes().size(), 1);
    QCOMPARE(desk.user.boxes().first().title, QString("Zarvello Info"));
    QCOMPARE(desk.user.boxes().first().text, question);
    QCOMPARE(desk.requests.size(), 1);
    QCOMPARE(desk.requests.first().title, QString("Als PDF speichern"));
    QVERIFY(desk.requests.first().folder.endsWith("/zarvello.pdf"));
    const pdf_file page("page.pdf");
    QVERIFY(page.is_pdf());
    QCOMPARE(page.picture_size(), QSize(300, 200));
}

void tst_printer_c::the_user_may_want_no_pdf()
{
    printing_desk desk;
    desk.user.answer(QMessageBox::No);
    desk.printer.print_pixmap(red_picture(300, 200), 300, 200);
    QCOMPARE(desk.user.boxes().size(), 1);
    QVERIFY(desk.requests.isEmpty());
    QVERIFY(!QFile::exists("page.pdf"));
}

void tst_printer_c::the_user_may_cancel_the_file_dialog()
{
    printing_desk desk;
    desk.path.clear();
    desk.save(red_picture(300, 200));
    QCOMPARE(desk.requests.size(), 1);
    QCOMPARE(desk.user.boxes().size(), 1);
    QVERIFY(QDir::current().isEmpty());
}

void tst_printer_c::an_empty_picture_prints_nothing_data()
{
    QTest::addColumn<QPixmap>("picture");
    QTest::addColumn<QSize>("size");
    QTest::newRow("no picture") << QPixmap() << QSize(10, 10);
    QTest::newRow("no width") << red_picture(10, 10) << QSize(0, 10);
    QTest::newRow("no height") << red_picture(10, 10) << QSize(10, 0);
}

void tst_printer_c::an_empty_picture_prints_nothing()
{
    QFETCH(QPixmap, picture);
    QFETCH(QSize, size);
    printing_desk desk;
    desk.printer.print_pixmap(picture, size.width(), size.height());
    QVERIFY(desk.user.boxes().isEmpty());
    QVERIFY(desk.requests.isEmpty());
}

void tst_printer_c::the_format_follows_the_setting_data()
{
    QTest::addColumn<bool>("is_landscape");
    QTest::newRow("landscape") << true;
    QTest::newRow("portrait") << false;
}

void tst_printer_c::the_format_follows_the_setting()
{
    QFETCH(bool, is_landscape);
    printing_desk desk;
    desk.settings.set_value("s_pr_landscape", is_landscape ? "true" : "false");
    desk.save(red_picture(300, 200));
    const QSizeF sheet = pdf_file("page.pdf").sheet();
    QVERIFY(!sheet.isEmpty());
    QCOMPARE(sheet.width() > sheet.height(), is_landscape);
}

void tst_printer_c::the_colour_follows_the_setting_data()
{
    QTest::addColumn<bool>("is_coloured");
    QTest::addColumn<QString>("colours");
    QTest::newRow("colour") << true << "DeviceRGB";
    QTest::newRow("grey") << false << "DeviceGray";
}

void tst_printer_c::the_colour_follows_the_setting()
{
    QFETCH(bool, is_coloured);
    QFETCH(QString, colours);
    printing_desk desk;
    desk.settings.set_value("s_pr_color", is_coloured ? "true" : "false");
    desk.save(red_picture(300, 200));
    QCOMPARE(pdf_file("page.pdf").picture_colours(), colours);
}

void tst_printer_c::a_dense_picture_counts_in_its_own_pixels()
{
    const QPixmap plain = red_picture(300, 200);
    QPixmap dense = plain;
    dense.setDevicePixelRatio(2.0);
    printing_desk desk;
    const QString plain_path = desk.path;
    desk.save(plain);
    desk.path = QDir::current().filePath("dense.pdf");
    desk.save(dense);
    const auto drawing = [](const QString& path) {
        QFile file(path);
        if (!file.open(QIODevice::ReadOnly)) return QByteArray();
        const QByteArray bytes = file.readAll();
        return bytes.mid(bytes.indexOf("/Catalog")); // before it stands the time
    };
    QVERIFY(drawing(plain_path).size() > 1000);
    QCOMPARE(drawing("dense.pdf"), drawing(plain_path));
    QFile::remove("dense.pdf");
}

// An A4 sheet has 842 x 595 points with a margin of 10 on each side.
void tst_printer_c::the_page_looks_as_told_data()
{
    QTest::addColumn<bool>("is_landscape");
    QTest::addColumn<bool>("is_coloured");
    QTest::addColumn<QSize>("picture");
    QTest::addColumn<QRect>("expected"); // points of the sheet, within one
    // clang-format off
    // landscape: the page is 822 x 575; portrait: 575 x 822
    QTest::newRow("landscape") << true  << true  << QSize(411, 200) << QRect(10, 98, 822, 400);  // x 2
    QTest::newRow("grey")      << true  << false << QSize(411, 200) << QRect(10, 98, 822, 400);
    QTest::newRow("portrait")  << false << true  << QSize(230, 200) << QRect(10, 171, 575, 500); // x 2.5
    QTest::newRow("tall")      << true  << true  << QSize(100, 230) << QRect(296, 10, 250, 575); // x 2.5
    QTest::newRow("shrunk")    << true  << true  << QSize(1644, 20) << QRect(10, 293, 822, 10);  // x 0.5
    // clang-format on
}

void tst_printer_c::the_page_looks_as_told()
{
    QFETCH(bool, is_landscape);
    QFETCH(bool, is_coloured);
    QFETCH(QSize, picture);
    QFETCH(QRect, expected);
    const QString viewer = QStandardPaths::findExecutable("pdftoppm");
    if (viewer.isEmpty()) QSKIP("no pdftoppm to look at the page with");
    printing_desk desk;
    desk.settings.set_value("s_pr_landscape", is_landscape ? "true" : "false");
    desk.settings.set_value("s_pr_color", is_coloured ? "true" : "false");
    desk.save(red_picture(picture.width(), picture.height()));
    QCOMPARE(QProcess::execute(viewer, {"-r", "72", "-png", "-singlefile", "page.pdf", "page"}), 0);
    const QImage sheet("page.png");
    QFile::remove("page.png");
    QCOMPARE(sheet.size(), is_landscape ? QSize(842, 595) : QSize(595, 842));
    const QColor middle = sheet.pixelColor(expected.center());
    const bool is_grey = middle.red() == middle.green() && middle.green() == middle.blue();
    QCOMPARE(is_grey, !is_coloured);
    if (is_coloured) QCOMPARE(middle, QColor(Qt::red));
    const auto is_white = [&sheet](int x, int y) { return sheet.pixelColor(x, y) == Qt::white; };
    for (const int inside : {3, -3}) { // 3 points inside of each edge is ink, outside is paper
        const QRect frame = expected.adjusted(inside, inside, -inside, -inside);
        const QPoint centre = expected.center();
        QCOMPARE(is_white(frame.left(), centre.y()), inside < 0);
        QCOMPARE(is_white(frame.right(), centre.y()), inside < 0);
        QCOMPARE(is_white(centre.x(), frame.top()), inside < 0);
        QCOMPARE(is_white(centre.x(), frame.bottom()), inside < 0);
    }
}

void tst_printer_c::a_path_that_can_not_be_written_is_told()
{
    printing_desk desk;
    desk.path = QDir::current().filePath("no_such_folder/page.pdf");
    desk.user.answer(QMessageBox::Yes);
    desk.user.answer(QMessageBox::Ok);
    desk.printer.print_pixmap(red_picture(300, 200), 300, 200);
    QCOMPARE(desk.user.boxes().size(), 2);
    const shown_box told = desk.user.boxes().last();
    QCOMPARE(told.title, QString("Zarvello Info"));
    QCOMPARE(told.icon, QMessageBox::Warning);
    QVERIFY(told.text.startsWith("Die Datei " + desk.path + " konnte nicht gespeichert werden.\n"));
    QVERIFY(QDir::current().isEmpty());
}

// The page itself would have room where the user wants it: it is cut where it is drawn.
void tst_printer_c::half_a_page_is_not_saved()
{
    QImage noise(400, 300, QImage::Format_RGB32);
    QRandomGenerator source(1);
    for (int y = 0; y < noise.height(); ++y)
        for (int x = 0; x < noise.width(); ++x)
            noise.setPixel(x, y, source.generate());
    QFile old("page.pdf");
    QVERIFY(old.open(QIODevice::WriteOnly) && old.write("old") == 3);
    old.close();
    printing_desk desk;
    desk.user.answer(QMessageBox::Yes);
    desk.user.answer(QMessageBox::Ok);
    rlimit usual{};
    std::signal(SIGXFSZ, SIG_IGN);
    QCOMPARE(getrlimit(RLIMIT_FSIZE, &usual), 0);
    const rlimit small{20000, usual.rlim_max};
    QCOMPARE(setrlimit(RLIMIT_FSIZE, &small), 0);
    desk.printer.print_pixmap(QPixmap::fromImage(noise), 400, 300);
    QCOMPARE(setrlimit(RLIMIT_FSIZE, &usual), 0);
    QCOMPARE(desk.user.boxes().size(), 2);
    QVERIFY(desk.user.boxes().last().text.endsWith("\nDer Inhalt konnte nicht erzeugt werden."));
    QVERIFY(old.open(QIODevice::ReadOnly));
    QCOMPARE(old.readAll(), QByteArray("old"));
}

void tst_printer_c::an_ending_is_added()
{
    printing_desk desk;
    desk.path = QDir::current().filePath("page");
    desk.save(red_picture(300, 200));
    QVERIFY(pdf_file("page.pdf").is_pdf());
    QVERIFY(!QFile::exists("page"));
    // Now the completed name leads to a file that the dialog has not asked about.
    const QDateTime written = QFileInfo("page.pdf").lastModified();
    desk.user.forget();
    desk.user.answer(QMessageBox::Yes);
    desk.user.answer(QMessageBox::No);
    desk.printer.print_pixmap(red_picture(30, 20), 30, 20);
    QCOMPARE(desk.user.boxes().size(), 2);
    QCOMPARE(desk.user.boxes().last().text,
             "Die Datei " + desk.path + ".pdf ist schon da. Soll sie überschrieben werden?");
    QCOMPARE(pdf_file("page.pdf").picture_size(), QSize(300, 200));
    QCOMPARE(QFileInfo("page.pdf").lastModified(), written);
}

// While the box is open the lock is free: a second print does not hang.
void tst_printer_c::one_question_at_a_time()
{
    printing_desk desk;
    int looks = 0;
    desk.user.looks_at_box = [&desk, &looks] {
        ++looks;
        desk.printer.print_pixmap(red_picture(30, 20), 30, 20);
    };
    desk.save(red_picture(300, 200));
    QCOMPARE(looks, 1);
    QCOMPARE(desk.user.boxes().size(), 1);
    QCOMPARE(pdf_file("page.pdf").picture_size(), QSize(300, 200));
}

int main(int argc, char** argv)
{
    // No printer of the machine may print what a test draws.
    qputenv("CUPS_SERVER", "/no/such/server");
    return run_window_test<tst_printer_c>(argc, argv);
}

#include "tst_printer_c.moc"
