#include "file_dialog.h"
#include "page_export.h"
#include "window_bench.h"

#include <QClipboard>
#include <QDialog>
#include <QDialogButtonBox>
#include <QImage>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QTableWidget>
#include <QVBoxLayout>
#include <QXmlStreamReader>

namespace
{

/// A statistic window in small: a page, a table, text fields and a button box.
struct export_desk {
    export_desk()
    {
        window.setWindowTitle("Wie oft?");
        page->setFixedSize(120, 80);
        page->setAutoFillBackground(true);
        page->setPalette(QPalette(Qt::darkGreen));
        auto* layout = new QVBoxLayout(&window);
        for (QWidget* child : QVector<QWidget*>{page, table, line, text, box})
            layout->addWidget(child);
        file_dialog::set_chooser([this](const file_dialog::request& what) {
            requests.append(what);
            return path;
        });
        QApplication::clipboard()->setText("before");
        window.show();
        window.activateWindow();
    }
    ~export_desk() { file_dialog::set_chooser({}); }

    QAction& entry(const QString& name)
    {
        const auto entries = exporter.button()->menu()->actions();
        for (QAction* action : entries)
            if (action->text() == name) return *action;
        qFatal("no entry \"%s\"", qPrintable(name));
        return *entries.first();
    }
    QByteArray saved(const QString& name, const QString& file)
    {
        path = QDir::current().filePath(file);
        entry(name).trigger();
        QFile written(path);
        return written.open(QIODevice::ReadOnly) ? written.readAll() : QByteArray();
    }
    QString copied_by_key(QWidget& focus)
    {
        QApplication::clipboard()->setText("before");
        focus.setFocus();
        QTest::keyClick(&focus, Qt::Key_C, Qt::ControlModifier);
        return QApplication::clipboard()->text();
    }

    QVector<QStringList> rows = {{"Coups", "Zahl"}, {"3", "a,b"}, {"ä\"ö", "x\ny"}, {"", "00"}};
    QDialog window;
    QWidget* page = new QWidget;
    QTableWidget* table = new QTableWidget(1, 1);
    QLineEdit* line = new QLineEdit("Auswahl");
    QPlainTextEdit* text = new QPlainTextEdit("Absatz");
    QDialogButtonBox* box = new QDialogButtonBox(QDialogButtonBox::Close);
    page_export& exporter =
        *new page_export(window, *box, {page, [this] { return rows; }, "Standard - Wie oft?"});
    box_user user;
    QString path;
    QVector<file_dialog::request> requests;
};

const QString copied_rows = "Coups\tZahl\n3\ta,b\nä\"ö\tx\ny\n\t00";

} // namespace

class tst_page_export : public QObject
{
    Q_OBJECT

private slots:
    void cleanup();

    void the_button_stands_in_the_box();
    void the_menu_has_its_entries();
    void without_a_box_the_button_is_the_callers();
    void the_texts_follow_the_language();

    void copying_gives_tabs_and_lines();
    void copying_nothing_leaves_the_clipboard_alone();
    void ctrl_c_copies_in_the_whole_window();
    void a_selection_in_a_text_field_goes_first();
    void ctrl_c_in_another_window_is_left_alone();

    void csv_quotes_what_must_be_quoted();
    void png_holds_the_pixels_of_the_page();
    void svg_is_a_drawing_of_the_page();
    void the_page_may_change();
    void the_dialog_proposes_name_and_folder();
    void without_a_name_the_title_of_the_moment_is_proposed();
    void a_cancelled_dialog_saves_nothing();
    void a_path_that_can_not_be_written_is_told();
};

void tst_page_export::cleanup()
{
    const auto files = QDir::current().entryList(QDir::Files);
    for (const QString& file : files)
        QFile::remove(file);
}

void tst_page_export::the_button_stands_in_the_box()
{
    export_desk desk;
    QPushButton* button = desk.exporter.button();
    QCOMPARE(button->objectName(), QString("PB_export"));
    QCOMPARE(button->text(), QString("Exportieren"));
    QVERIFY(desk.box->buttons().contains(button));
    QCOMPARE(desk.box->buttonRole(button), QDialogButtonBox::ActionRole);
    QCOMPARE(desk.exporter.parent(), &desk.window);
}

void tst_page_export::the_menu_has_its_entries()
{
    export_desk desk;
    QStringList texts;
    const auto entries = desk.exporter.button()->menu()->actions();
    for (const QAction* action : entries)
        if (!action->isSeparator()) texts.append(action->text());
    QCOMPARE(
        texts,
        QStringList(
            {"Kopieren", "Als CSV speichern...", "Als PNG speichern...", "Als SVG speichern..."}));
    QCOMPARE(desk.entry("Kopieren").shortcut(), QKeySequence("Ctrl+C"));
}

void tst_page_export::without_a_box_the_button_is_the_callers()
{
    QDialog window;
    const page_export* exporter =
        new page_export(window, {&window, [] { return QVector<QStringList>{{"1"}}; }});
    QCOMPARE(exporter->button()->window(), &window);
    window.show();
    window.activateWindow();
    QTest::keyClick(&window, Qt::Key_C, Qt::ControlModifier);
    QCOMPARE(QApplication::clipboard()->text(), QString("1"));
}

void tst_page_export::the_texts_follow_the_language()
{
    export_desk desk;
    desk.exporter.button()->setText("Export");
    desk.entry("Kopieren").setText("Copy");
    QEvent change(QEvent::LanguageChange);
    QCoreApplication::sendEvent(&desk.window, &change);
    QCOMPARE(desk.exporter.button()->text(), QString("Exportieren"));
    QCOMPARE(desk.entry("Kopieren").shortcut(), QKeySequence("Ctrl+C"));
}

void tst_page_export::copying_gives_tabs_and_lines()
{
    export_desk desk;
    desk.entry("Kopieren").trigger();
    QCOMPARE(QApplication::clipboard()->text(), copied_rows);
    desk.rows = {{"später"}};
    desk.entry("Kopieren").trigger();
    QCOMPARE(QApplication::clipboard()->text(), QString("später"));
}

void tst_page_export::copying_nothing_leaves_the_clipboard_alone()
{
    export_desk desk;
    desk.rows.clear();
    desk.entry("Kopieren").trigger();
    QCOMPARE(QApplication::clipboard()->text(), QString("before"));
}

void tst_page_export::ctrl_c_copies_in_the_whole_window()
{
    export_desk desk;
    desk.table->setItem(0, 0, new QTableWidgetItem("Zelle"));
    desk.table->setCurrentCell(0, 0);
    QCOMPARE(desk.copied_by_key(*desk.table), copied_rows);
    QCOMPARE(desk.copied_by_key(*desk.exporter.button()), copied_rows);
    desk.line->deselect();
    QCOMPARE(desk.copied_by_key(*desk.line), copied_rows);
    QCOMPARE(desk.copied_by_key(*desk.text), copied_rows);
}

void tst_page_export::a_selection_in_a_text_field_goes_first()
{
    export_desk desk;
    desk.line->setSelection(0, 4);
    QCOMPARE(desk.copied_by_key(*desk.line), QString("Ausw"));
    desk.text->selectAll();
    QCOMPARE(desk.copied_by_key(*desk.text), QString("Absatz"));
    QCOMPARE(desk.copied_by_key(*desk.table), copied_rows);
}

void tst_page_export::ctrl_c_in_another_window_is_left_alone()
{
    export_desk desk;
    QLineEdit other("fremd");
    other.show();
    other.activateWindow();
    other.deselect();
    QCOMPARE(desk.copied_by_key(other), QString("before"));
}

// The bytes are written out: the mark of UTF-8, commas, CR LF, doubled quotes.
void tst_page_export::csv_quotes_what_must_be_quoted()
{
    export_desk desk;
    const QByteArray expected = "\xEF\xBB\xBF"
                                "Coups,Zahl\r\n"
                                "3,\"a,b\"\r\n"
                                "\"\xC3\xA4\"\"\xC3\xB6\",\"x\ny\"\r\n"
                                ",00\r\n";
    QCOMPARE(desk.saved("Als CSV speichern...", "zahlen.csv"), expected);
}

void tst_page_export::png_holds_the_pixels_of_the_page()
{
    export_desk desk;
    QVERIFY(!desk.saved("Als PNG speichern...", "bild.png").isEmpty());
    const QImage picture("bild.png", "PNG");
    const qreal ratio = desk.page->devicePixelRatioF();
    QCOMPARE(picture.size(), QSize(qRound(120 * ratio), qRound(80 * ratio)));
    QCOMPARE(picture.pixelColor(picture.width() / 2, picture.height() / 2),
             QColor(desk.page->palette().color(QPalette::Window)));
}

void tst_page_export::svg_is_a_drawing_of_the_page()
{
    export_desk desk;
    auto* label = new QLabel("Dutzend", desk.page);
    label->show();
    QXmlStreamReader xml(desk.saved("Als SVG speichern...", "bild.svg"));
    QVERIFY(xml.readNextStartElement());
    QCOMPARE(xml.name().toString(), QString("svg"));
    QCOMPARE(xml.attributes().value("viewBox").toString(), QString("0 0 120 80"));
    QString title;
    QString letters;
    while (!xml.atEnd()) {
        if (!xml.readNext()) break;
        if (!xml.isStartElement()) continue;
        if (xml.name() == "title") title = xml.readElementText();
        if (xml.name() == "text") letters += xml.readElementText();
    }
    QVERIFY2(!xml.hasError(), qPrintable(xml.errorString()));
    QCOMPARE(title, QString("Wie oft?"));
    QCOMPARE(letters.trimmed(), QString("Dutzend"));
}

void tst_page_export::the_page_may_change()
{
    QDialog window;
    QWidget first(&window);
    QWidget second(&window);
    first.resize(10, 20);
    second.resize(30, 40);
    QWidget* shown = &first;
    page_content content;
    content.table = [] { return QVector<QStringList>(); };
    content.current_page = [&shown] { return shown; };
    page_export exporter(window, content);
    file_dialog::set_chooser([](const file_dialog::request&) { return QString("bild.png"); });
    const qreal ratio = window.devicePixelRatioF();
    exporter.save_png();
    QCOMPARE(QImage("bild.png").size(), QSize(10, 20) * ratio);
    shown = &second;
    exporter.save_png();
    QCOMPARE(QImage("bild.png").size(), QSize(30, 40) * ratio);
    file_dialog::set_chooser({});
}

void tst_page_export::the_dialog_proposes_name_and_folder()
{
    export_desk desk;
    QVERIFY(QDir().mkdir("ablage"));
    desk.saved("Als CSV speichern...", "ablage/zahlen.csv");
    desk.saved("Als SVG speichern...", "ablage/bild.svg");
    QCOMPARE(desk.requests.size(), 2);
    QVERIFY(desk.requests.at(0).folder.endsWith("/Standard - Wie oft_.csv"));
    QCOMPARE(desk.requests.at(0).filter, QString("CSV-Dateien (*.csv)"));
    QCOMPARE(desk.requests.at(1).folder,
             QDir::current().filePath("ablage/Standard - Wie oft_.svg"));
    QVERIFY(QDir("ablage").removeRecursively());
}

void tst_page_export::without_a_name_the_title_of_the_moment_is_proposed()
{
    QDialog window;
    QString proposal;
    file_dialog::set_chooser([&proposal](const file_dialog::request& what) {
        proposal = what.folder;
        return QString();
    });
    window.setWindowTitle("Serien");
    page_export exporter(window, {&window, [] { return QVector<QStringList>{{"1"}}; }});
    window.setWindowTitle("Kolonne / Dutzend");
    exporter.save_csv();
    file_dialog::set_chooser({});
    QVERIFY2(proposal.endsWith("/Kolonne _ Dutzend.csv"), qPrintable(proposal));
}

void tst_page_export::a_cancelled_dialog_saves_nothing()
{
    export_desk desk;
    for (const char* text :
         {"Als CSV speichern...", "Als PNG speichern...", "Als SVG speichern..."})
        desk.entry(text).trigger();
    QCOMPARE(desk.requests.size(), 3);
    QVERIFY(desk.user.boxes().isEmpty());
    QVERIFY(QDir::current().isEmpty());
}

void tst_page_export::a_path_that_can_not_be_written_is_told()
{
    export_desk desk;
    desk.user.answer(QMessageBox::Ok);
    QCOMPARE(desk.saved("Als PNG speichern...", "no_such_folder/bild.png"), QByteArray());
    QCOMPARE(desk.user.boxes().size(), 1);
    QCOMPARE(desk.user.boxes().first().title, QString("Zarvello Info"));
    QVERIFY(desk.user.boxes().first().text.startsWith("Die Datei " + desk.path +
                                                      " konnte nicht gespeichert werden.\n"));
}

int main(int argc, char** argv)
{
    return run_window_test<tst_page_export>(argc, argv);
}

#include "tst_page_export.moc"
