#include "completion_words.h"
#include "system_pattern.h"
#include "window_bench.h"
#include "zv_editor.h"

#include <QAbstractItemView>
#include <QCompleter>
#include <QMimeData>
#include <QScrollBar>
#include <QTextBlock>

using system_status::mark_line;
using system_status::mark_token;
using system_status::sys_error_infos;

namespace
{

QString lines(int count)
{
    QStringList all;
    for (int line = 1; line <= count; ++line)
        all.append(QString::number(line));
    return all.join('\n');
}

/// The underlined pieces of a text, as "line:column text style".
QStringList underlined(const ZV_Editor& editor)
{
    QStringList pieces;
    for (QTextBlock block = editor.document()->begin(); block.isValid(); block = block.next()) {
        for (auto place = block.begin(); !place.atEnd(); ++place) {
            const QTextFragment piece = place.fragment();
            const QTextCharFormat format = piece.charFormat();
            if (format.underlineStyle() == QTextCharFormat::NoUnderline) continue;
            if (format.underlineColor() != QColor(Qt::darkRed)) continue;
            const bool is_wave = format.underlineStyle() == QTextCharFormat::WaveUnderline;
            pieces.append(QString("%1:%2 %3 %4")
                              .arg(block.blockNumber() + 1)
                              .arg(piece.position() - block.position() + 1)
                              .arg(piece.text(), is_wave ? "wave" : "line"));
        }
    }
    return pieces;
}

/// How the widget looks.
QImage picture_of(QWidget& widget)
{
    return widget.grab().toImage();
}

int count_of(const QImage& image, const QRect& area, const QColor& colour)
{
    int count = 0;
    for (int y = area.top(); y <= area.bottom(); ++y)
        for (int x = area.left(); x <= area.right(); ++x)
            if (image.pixelColor(x, y) == colour) ++count;
    return count;
}

LineNumberArea& area_of(ZV_Editor& editor)
{
    return *editor.findChild<LineNumberArea*>();
}

struct written_editor : ZV_Editor {
    written_editor()
    {
        set_completion_words({"EC", "EC01", "EC02", "SZ", "THEN"});
        resize(400, 300);
        show();
    }
    QAbstractItemView& list() { return *findChild<QCompleter*>()->popup(); }
    bool offers() { return list().isVisible(); }
    QStringList offered()
    {
        QStringList words;
        for (int row = 0; row < list().model()->rowCount(); ++row)
            words.append(list().model()->index(row, 0).data().toString());
        return words;
    }
    void write(const QString& text) { QTest::keyClicks(this, text); }
    void press(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier)
    {
        QTest::keyClick(this, key, modifiers);
    }
    /// As a key comes in while the list is open.
    void press_in_list(Qt::Key key) { QTest::keyClick(&list(), key); }
};

} // namespace

class tst_zv_editor : public QObject
{
    Q_OBJECT

private slots:
    void the_text_comes_back_as_it_is();
    void the_number_area_grows_by_a_digit_data();
    void the_number_area_grows_by_a_digit();
    void the_number_area_stands_at_the_left();
    void numbers_stand_at_the_right_of_a_grey_strip();
    void numbers_follow_the_scrolling();
    void the_current_line_is_yellow();
    void a_read_only_text_has_no_yellow_line();
    void an_error_is_marked_data();
    void an_error_is_marked();
    void a_line_beyond_the_text_changes_nothing_data();
    void a_line_beyond_the_text_changes_nothing();
    void a_mark_is_no_change();
    void a_mark_moves_with_its_line();
    void a_mark_is_taken_off();
    void a_place_is_drawn_into_the_text_data();
    void a_place_is_drawn_into_the_text();
    void findings_are_marked_beside_their_numbers();
    void files_are_not_dropped_as_text();
    void words_are_offered_on_demand();
    void words_are_offered_while_one_writes();
    void enter_ends_the_line_while_no_word_is_chosen();
    void comments_are_prose_data();
    void comments_are_prose();
    void nothing_is_offered_where_nothing_is_written();
    void the_words_are_those_of_the_table_data();
    void the_words_are_those_of_the_table();
    void every_word_belongs_to_the_language();
};

void tst_zv_editor::the_text_comes_back_as_it_is()
{
    ZV_Editor editor;
    const QString text = QString::fromUtf8("a\u00a0b\n\n\tc ü\n");
    editor.setPlainText(text);
    QCOMPARE(editor.text(), text);
}

void tst_zv_editor::the_number_area_grows_by_a_digit_data()
{
    QTest::addColumn<int>("fewer");
    QTest::addColumn<int>("more");
    QTest::addColumn<int>("digits");
    QTest::newRow("one digit") << 1 << 9 << 0;
    QTest::newRow("two digits") << 9 << 10 << 1;
    QTest::newRow("four digits") << 999 << 1000 << 1;
    QTest::newRow("none to four") << 1 << 1000 << 3;
}

void tst_zv_editor::the_number_area_grows_by_a_digit()
{
    QFETCH(int, fewer);
    QFETCH(int, more);
    QFETCH(int, digits);
    ZV_Editor editor;
    editor.resize(400, 300);
    editor.show();
    editor.setPlainText(lines(fewer));
    const int narrow = area_of(editor).sizeHint().width();
    editor.setPlainText(lines(more));
    const int digit = editor.fontMetrics().horizontalAdvance('9');
    QCOMPARE(area_of(editor).sizeHint().width(), narrow + digits * digit);
    QCOMPARE(editor.line_number_area_width(), narrow + digits * digit);
    QCoreApplication::processEvents();
    QCOMPARE(area_of(editor).width(), narrow + digits * digit);
    QCOMPARE(editor.viewport()->x(), editor.contentsRect().left() + area_of(editor).width());
}

void tst_zv_editor::the_number_area_stands_at_the_left()
{
    ZV_Editor editor;
    editor.resize(500, 400);
    editor.show();
    const QRect contents = editor.contentsRect();
    const QRect area = area_of(editor).geometry();
    QCOMPARE(area.topLeft(), contents.topLeft());
    QCOMPARE(area.height(), contents.height());
    QVERIFY(area.right() < editor.viewport()->x());
}

void tst_zv_editor::numbers_stand_at_the_right_of_a_grey_strip()
{
    ZV_Editor editor;
    editor.resize(400, 300);
    editor.setPlainText(lines(20));
    editor.show();
    const QImage strip = picture_of(area_of(editor));
    QCOMPARE(strip.pixelColor(1, 1), QColor(Qt::lightGray));
    QCOMPARE(strip.pixelColor(1, strip.height() - 2), QColor(Qt::lightGray));
    const auto is_ink = [](const QColor& colour) { return colour.lightness() < 100; };
    const int row = editor.fontMetrics().height();
    const int digit = editor.fontMetrics().horizontalAdvance('9');
    int ink_left = strip.width();
    int ink_right = 0;
    for (int y = 5; y < 5 + 9 * row; ++y) { // the numbers of one digit
        for (int x = 0; x < strip.width(); ++x) {
            if (!is_ink(strip.pixelColor(x, y))) continue;
            ink_left = std::min(ink_left, x);
            ink_right = std::max(ink_right, x);
        }
    }
    QVERIFY(ink_right > strip.width() - digit - 6 && ink_right < strip.width());
    QVERIFY(ink_left >= strip.width() - digit - 7);
}

void tst_zv_editor::numbers_follow_the_scrolling()
{
    ZV_Editor editor;
    editor.resize(400, 300);
    editor.setPlainText(lines(500));
    editor.show();
    QCOMPARE(editor.blocks_on_show().first, 0);
    const int shown = editor.blocks_on_show().last;
    QVERIFY(shown > 5 && shown < 100);
    const QImage before = picture_of(area_of(editor));
    editor.verticalScrollBar()->setValue(100);
    QCOMPARE(editor.blocks_on_show().first, 100);
    QVERIFY(qAbs(editor.blocks_on_show().last - 100 - shown) <= 1);
    QVERIFY(picture_of(area_of(editor)) != before);
}

void tst_zv_editor::the_current_line_is_yellow()
{
    ZV_Editor editor;
    editor.setPlainText(lines(5));
    for (const int line : {0, 3}) {
        editor.go_to(line + 1, 1, 1);
        const auto selections = editor.extraSelections();
        QCOMPARE(selections.size(), 1);
        const QTextEdit::ExtraSelection& selection = selections.first();
        QCOMPARE(selection.cursor.blockNumber(), line);
        QVERIFY(!selection.cursor.hasSelection());
        QCOMPARE(selection.format.background().color(), QColor(Qt::yellow).lighter(160));
        QVERIFY(selection.format.boolProperty(QTextFormat::FullWidthSelection));
    }
    editor.setExtraSelections({{}, {}});
    editor.highlightCurrentLine();
    QCOMPARE(editor.extraSelections().size(), 1);
}

void tst_zv_editor::a_read_only_text_has_no_yellow_line()
{
    ZV_Editor editor;
    editor.setPlainText(lines(5));
    editor.setReadOnly(true);
    editor.go_to(3);
    QVERIFY(editor.extraSelections().isEmpty());
    editor.highlightErrorLineAndPos({"", 2, mark_line, ""});
    QVERIFY(editor.extraSelections().isEmpty());
    QCOMPARE(underlined(editor), QStringList("2:1 2 line"));
}

void tst_zv_editor::an_error_is_marked_data()
{
    QTest::addColumn<int>("line");
    QTest::addColumn<int>("mode");
    QTest::addColumn<QString>("token");
    QTest::addColumn<QStringList>("marked");
    const int token = mark_token, whole = mark_line;
    // clang-format off
    QTest::newRow("first line")        << 1 << token << "SZ"   << QStringList("1:1 SZ wave");
    QTest::newRow("token twice")       << 2 << token << "EC03" << QStringList("2:4 EC03 wave");
    QTest::newRow("not the line above")<< 3 << token << "SZ"   << QStringList("3:1 SZ wave");
    QTest::newRow("any case")          << 2 << token << "ec03" << QStringList("2:4 EC03 wave");
    QTest::newRow("whole line")        << 2 << whole << "EC03" << QStringList("2:1 SZ EC03,EC03; line");
    QTest::newRow("whole first line")  << 1 << whole << ""     << QStringList("1:1 SZ PL01; line");
    QTest::newRow("token not there")   << 2 << token << "AG"   << QStringList("2:1 SZ EC03,EC03; line");
    QTest::newRow("no token")          << 3 << token << ""     << QStringList("3:1 SZ PL02; line");
    QTest::newRow("no mode")           << 3 << 0     << "SZ"   << QStringList("3:1 SZ PL02; line");
    // clang-format on
}

void tst_zv_editor::an_error_is_marked()
{
    QFETCH(int, line);
    QFETCH(int, mode);
    QFETCH(QString, token);
    QFETCH(QStringList, marked);
    ZV_Editor editor;
    editor.setPlainText("SZ PL01;\nSZ EC03,EC03;\nSZ PL02;");
    editor.moveCursor(QTextCursor::End);
    editor.highlightErrorLineAndPos({"Fehler", line, mode, token});
    QCOMPARE(underlined(editor), marked);
    QCOMPARE(editor.textCursor().blockNumber(), line - 1);
    QVERIFY(!editor.textCursor().hasSelection());
    QCOMPARE(editor.extraSelections().first().cursor.blockNumber(), line - 1);
    QCOMPARE(editor.error_mark_line(), line);
}

void tst_zv_editor::a_line_beyond_the_text_changes_nothing_data()
{
    QTest::addColumn<int>("line");
    QTest::newRow("file not opened") << 0;
    QTest::newRow("below") << -1;
    QTest::newRow("beyond") << 4;
}

void tst_zv_editor::a_line_beyond_the_text_changes_nothing()
{
    QFETCH(int, line);
    ZV_Editor editor;
    editor.setPlainText("SZ\nSZ\nSZ");
    editor.go_to(2);
    editor.highlightErrorLineAndPos({"", line, mark_line, ""});
    QCOMPARE(editor.textCursor().blockNumber(), 1);
    QCOMPARE(underlined(editor), QStringList());
    QCOMPARE(editor.error_mark_line(), 0);
    editor.go_to_error_mark();
    QCOMPARE(editor.textCursor().blockNumber(), 1);
}

void tst_zv_editor::a_mark_is_no_change()
{
    ZV_Editor editor;
    editor.setPlainText("SZ\nIF");
    editor.highlightErrorLineAndPos({"", 2, mark_line, ""});
    QVERIFY(!editor.document()->isModified());
    QVERIFY(!editor.document()->isUndoAvailable());
    QTest::keyClicks(&editor, "x");
    editor.undo();
    QCOMPARE(editor.text(), QString("SZ\nIF"));
    QCOMPARE(underlined(editor), QStringList("2:1 IF line"));
}

void tst_zv_editor::a_mark_moves_with_its_line()
{
    ZV_Editor editor;
    editor.setPlainText("SZ\nIF");
    editor.highlightErrorLineAndPos({"", 2, mark_line, ""});
    editor.go_to(1);
    QTest::keyClick(&editor, Qt::Key_Return);
    QCOMPARE(editor.error_mark_line(), 3);
    editor.go_to_error_mark();
    QCOMPARE(editor.textCursor().blockNumber(), 2);
    editor.forget_error_mark();
    QCOMPARE(editor.error_mark_line(), 0);
}

void tst_zv_editor::a_mark_is_taken_off()
{
    ZV_Editor editor;
    editor.setPlainText("SZ EC03\nIF");
    editor.highlightErrorLineAndPos({"", 1, mark_token, "EC03"});
    editor.take_error_mark_off();
    QCOMPARE(underlined(editor), QStringList());
    QCOMPARE(editor.text(), QString("SZ EC03\nIF"));
    editor.undo();
    QCOMPARE(underlined(editor), QStringList("1:4 EC03 wave"));
    editor.redo();
    const int steps = editor.document()->availableUndoSteps();
    editor.take_error_mark_off(); // nothing is left to take off
    QCOMPARE(editor.document()->availableUndoSteps(), steps);
}

void tst_zv_editor::a_place_is_drawn_into_the_text_data()
{
    QTest::addColumn<int>("line");
    QTest::addColumn<int>("column");
    QTest::addColumn<int>("length");
    QTest::addColumn<int>("begin");
    QTest::addColumn<QString>("selected");
    QTest::newRow("inside") << 2 << 2 << 2 << 4 << "ef";
    QTest::newRow("length beyond the line") << 1 << 2 << 90 << 1 << "b";
    QTest::newRow("column beyond the line") << 1 << 9 << 2 << 2 << "";
    QTest::newRow("column below") << 2 << 0 << 1 << 3 << "d";
    QTest::newRow("line beyond") << 9 << 1 << 1 << 8 << "h";
    QTest::newRow("line below") << 0 << 1 << 0 << 0 << "";
    QTest::newRow("length below") << 2 << 2 << -3 << 4 << "";
}

void tst_zv_editor::a_place_is_drawn_into_the_text()
{
    QFETCH(int, line);
    QFETCH(int, column);
    QFETCH(int, length);
    QFETCH(int, begin);
    QFETCH(QString, selected);
    ZV_Editor editor;
    editor.setPlainText("ab\ndefg\nh");
    editor.go_to(line, column, length);
    QCOMPARE(editor.textCursor().selectionStart(), begin);
    QCOMPARE(editor.textCursor().selectedText(), selected);
}

void tst_zv_editor::findings_are_marked_beside_their_numbers()
{
    ZV_Editor editor;
    editor.resize(400, 300);
    editor.setPlainText(lines(8));
    editor.show();
    using kind = system_finding::kind;
    editor.show_findings({{kind::warning, 2, 1, 1, "eins"},
                          {kind::error, 5, 1, 1, "zwei"},
                          {kind::warning, 5, 2, 1, "drei"}});
    const QImage strip = picture_of(area_of(editor));
    const int row = qRound(editor.cursorRect().height() + 0.0);
    const auto line_area = [&](int line) {
        return QRect(0, 4 + (line - 1) * row, strip.width(), row - 1);
    };
    const QColor red(208, 24, 24), amber(250, 178, 24);
    QVERIFY(count_of(strip, line_area(2), amber) > 15);
    QVERIFY(count_of(strip, line_area(5), red) > 15);
    QCOMPARE(count_of(strip, line_area(5), amber), 0); // the error is worse
    QCOMPARE(count_of(strip, line_area(3), amber) + count_of(strip, line_area(3), red), 0);
    QCOMPARE(editor.finding_text_at(line_area(2).center().y()), QString("eins"));
    QCOMPARE(editor.finding_text_at(line_area(5).center().y()), QString("zwei\ndrei"));
    QCOMPARE(editor.finding_text_at(line_area(3).center().y()), QString());

    editor.show_findings({});
    QCOMPARE(count_of(picture_of(area_of(editor)), strip.rect(), red), 0);
}

void tst_zv_editor::files_are_not_dropped_as_text()
{
    struct open_editor : ZV_Editor {
        using ZV_Editor::canInsertFromMimeData;
    } editor;
    QMimeData files;
    files.setUrls({QUrl::fromLocalFile("/a.syf")});
    files.setText("file:///a.syf");
    QVERIFY(!editor.canInsertFromMimeData(&files));
    QMimeData text;
    text.setText("SZ");
    QVERIFY(editor.canInsertFromMimeData(&text));
}

void tst_zv_editor::words_are_offered_on_demand()
{
    written_editor editor;
    editor.press(Qt::Key_Space, Qt::ControlModifier);
    QVERIFY(editor.offers());
    QCOMPARE(editor.offered(), QStringList({"EC", "EC01", "EC02", "SZ", "THEN"}));
    editor.press_in_list(Qt::Key_Escape);
    QVERIFY(!editor.offers());
    QCOMPARE(editor.text(), QString());

    editor.write("t");
    editor.press(Qt::Key_Space, Qt::ControlModifier);
    QCOMPARE(editor.offered(), QStringList("THEN"));
    editor.press_in_list(Qt::Key_Return);
    QVERIFY(!editor.offers());
    QCOMPARE(editor.text(), QString("THEN"));
    editor.undo();
    QCOMPARE(editor.text(), QString("t"));
}

void tst_zv_editor::words_are_offered_while_one_writes()
{
    written_editor editor;
    editor.write("e");
    QVERIFY(!editor.offers());
    editor.write("c");
    QVERIFY(editor.offers());
    QCOMPARE(editor.offered(), QStringList({"EC", "EC01", "EC02"}));
    editor.write("0");
    QCOMPARE(editor.offered(), QStringList({"EC01", "EC02"}));
    editor.press(Qt::Key_Backspace);
    QCOMPARE(editor.offered().size(), 3);
    editor.write("0");
    editor.press_in_list(Qt::Key_Down);
    editor.press_in_list(Qt::Key_Down);
    editor.press_in_list(Qt::Key_Tab);
    QCOMPARE(editor.text(), QString("EC02"));
    editor.press(Qt::Key_Return);
    editor.write("sz");
    QVERIFY(!editor.offers()); // the word is whole
    editor.write(" ec");
    QVERIFY(editor.offers());
    editor.write(";");
    QVERIFY(!editor.offers());
    QCOMPARE(editor.text(), QString("EC02\nsz ec;"));
}

void tst_zv_editor::enter_ends_the_line_while_no_word_is_chosen()
{
    written_editor editor;
    editor.write("ec");
    QVERIFY(editor.offers());
    editor.press_in_list(Qt::Key_Return);
    QVERIFY(!editor.offers());
    QCOMPARE(editor.text(), QString("ec\n"));
}

void tst_zv_editor::comments_are_prose_data()
{
    QTest::addColumn<QString>("before");
    QTest::addColumn<bool>("is_offered");
    QTest::newRow("code") << "SZ " << true;
    QTest::newRow("line comment") << "SZ; // " << false;
    QTest::newRow("comment") << "/* " << false;
    QTest::newRow("behind a comment") << "/* a */ " << true;
}

void tst_zv_editor::comments_are_prose()
{
    QFETCH(QString, before);
    QFETCH(bool, is_offered);
    written_editor editor;
    editor.write(before + "ec");
    QCOMPARE(editor.offers(), is_offered);
    editor.list().hide();
    editor.press(Qt::Key_Space, Qt::ControlModifier);
    QVERIFY(editor.offers());
}

void tst_zv_editor::nothing_is_offered_where_nothing_is_written()
{
    written_editor editor;
    editor.setReadOnly(true);
    editor.press(Qt::Key_Space, Qt::ControlModifier);
    QVERIFY(!editor.offers());
    editor.setReadOnly(false);
    editor.set_completion_words({});
    editor.press(Qt::Key_Space, Qt::ControlModifier);
    editor.write("ec");
    QVERIFY(!editor.offers());
}

void tst_zv_editor::the_words_are_those_of_the_table_data()
{
    QTest::addColumn<int>("form");
    QTest::addColumn<QString>("word");
    QTest::addColumn<bool>("is_there");
    // clang-format off
    QTest::newRow("section")            << 0 << "AL:"    << true;
    QTest::newRow("keyword")            << 0 << "THEN"   << true;
    QTest::newRow("number 0")           << 0 << "PL00"   << true;
    QTest::newRow("number 36")          << 1 << "PL36"   << true;
    QTest::newRow("double zero, F")     << 0 << "PL37"   << false;
    QTest::newRow("double zero, A")     << 1 << "PL37"   << true;
    QTest::newRow("its neighbours, F")  << 0 << "EN37"   << false;
    QTest::newRow("its neighbours, A")  << 1 << "EN37"   << true;
    QTest::newRow("0/3, F")             << 0 << "CH03"   << true;
    QTest::newRow("0/3, A")             << 1 << "CH03"   << false;
    QTest::newRow("big series, F")      << 0 << "GS"     << true;
    QTest::newRow("big series, A")      << 1 << "GS"     << false;
    QTest::newRow("last column")        << 0 << "KL03"   << true;
    QTest::newRow("finale 9")           << 1 << "FI09"   << true;
    // clang-format on
}

void tst_zv_editor::the_words_are_those_of_the_table()
{
    QFETCH(int, form);
    QFETCH(QString, word);
    QFETCH(bool, is_there);
    const QStringList words = completion_words(system_pattern(form), form);
    QCOMPARE(words.contains(word), is_there);
    QCOMPARE(words.count(word), is_there ? 1 : 0);
}

void tst_zv_editor::every_word_belongs_to_the_language()
{
    const system_pattern patterns(0);
    const QStringList all = patterns.get_section_patterns() + patterns.get_keyword_patterns() +
                            patterns.get_jeton_patterns() + patterns.get_argument_patterns();
    const QStringList begun = {"AG", "CO", "EI", "PT", "RZ", "ST", "STMAX", "UZ", "MESSAGE"};
    const QStringList words = completion_words(patterns, 0);
    QVERIFY(words.size() > 200);
    for (const QString& word : words) {
        if (begun.contains(word)) continue;
        const bool is_token = std::any_of(all.begin(), all.end(), [&word](const QString& pattern) {
            return QRegExp(pattern).exactMatch(word);
        });
        QVERIFY2(is_token, qPrintable(word));
    }
}

int main(int argc, char** argv)
{
    return run_window_test<tst_zv_editor>(argc, argv);
}

#include "tst_zv_editor.moc"
