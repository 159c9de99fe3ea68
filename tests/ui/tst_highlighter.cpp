#include "cpp_highlighter.h"
#include "highlighter_icon.h"
#include "pictures.h"
#include "system_pattern.h"
#include "window_bench.h"

#include <QSignalSpy>
#include <QTextBlock>
#include <QTextDocument>
#include <QTextLayout>

namespace
{

const system_pattern& french()
{
    static const system_pattern patterns(0);
    return patterns;
}

/// A document with the colours of the system language.
struct coloured_text {
    explicit coloured_text(const QString& text, const system_pattern& patterns = french())
        : highlighter(new CppHighlighter(patterns, &document))
    {
        document.documentLayout(); // without one a document tells of no change
        document.setPlainText(text);
        highlighter->rehighlight();
    }

    QTextCharFormat format_at(int line, int column) const
    {
        const auto ranges = document.findBlockByNumber(line).layout()->formats();
        for (const QTextLayout::FormatRange& range : ranges) {
            if (column >= range.start && column < range.start + range.length) return range.format;
        }
        return {};
    }
    /// The colour of a character; black without a format of its own, which has no weight.
    QColor colour_at(int line, int column) const
    {
        return format_at(line, column).foreground().color();
    }
    bool is_plain(int line, int column) const { return format_at(line, column).isEmpty(); }
    bool has_colours(int line) const
    {
        return !document.findBlockByNumber(line).layout()->formats().isEmpty();
    }

    QTextDocument document;
    CppHighlighter* highlighter; // belongs to the document
};

QTextCharFormat coloured(const QColor& colour)
{
    QTextCharFormat format;
    format.setForeground(colour);
    return format;
}

} // namespace

class tst_highlighter : public QObject
{
    Q_OBJECT

private slots:
    void tokens_have_the_colour_of_their_group_data();
    void tokens_have_the_colour_of_their_group();
    void rules_stand_in_the_order_in_which_they_act();
    void the_table_decides_on_the_jetons();
    void a_later_rule_overwrites_an_earlier_one();
    void rules_of_any_number_act_in_order();
    void a_match_of_no_length_ends_its_rule();
    void comments_run_over_lines();
    void comments_win_over_every_rule();
    void several_comments_stand_in_a_line();
    void a_change_of_a_comment_reaches_the_lines_below();
    void an_error_rule_takes_its_text_literally();
    void only_lines_on_show_are_coloured();
    void a_line_that_nobody_reads_is_left_alone();
    void without_a_document_nothing_happens();
    void the_icon_shows_the_state();
};

void tst_highlighter::tokens_have_the_colour_of_their_group_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<int>("column");
    QTest::addColumn<QColor>("colour");
    QTest::addColumn<int>("weight");
    const int bold = QFont::Bold;
    const int normal = QFont::Normal;
    // clang-format off
    QTest::newRow("section")          << "ST:"                << 0 << QColor(Qt::darkYellow)  << bold;
    QTest::newRow("colon of section") << "AL:"                << 2 << QColor(Qt::darkYellow)  << bold;
    QTest::newRow("section, small")   << "gw:"                << 0 << QColor(Qt::darkYellow)  << bold;
    QTest::newRow("jeton")            << "SZ EC03;"           << 3 << QColor(Qt::darkMagenta) << bold;
    QTest::newRow("end of jeton")     << "SZ EC03;"           << 6 << QColor(Qt::darkMagenta) << bold;
    QTest::newRow("second jeton")     << "SZ EC03,PL12;"      << 8 << QColor(Qt::darkMagenta) << bold;
    QTest::newRow("jeton type")       << "IN DZ RESULT"       << 3 << QColor(Qt::darkMagenta) << bold;
    QTest::newRow("announcement")     << "SZ GS;"             << 3 << QColor(Qt::darkMagenta) << bold;
    QTest::newRow("argument")         << "SZ EI1+12;"         << 3 << QColor(Qt::black)       << bold;
    QTest::newRow("jeton in table")   << "SZ PT1(EC03);"      << 7 << QColor(Qt::black)       << bold;
    QTest::newRow("option list")      << "SZ STMAX(C(500));"  << 9 << QColor(Qt::black)       << bold;
    QTest::newRow("keyword")          << "IF GZ IN EC01"      << 0 << QColor(Qt::blue)        << normal;
    QTest::newRow("keyword of two")   << "NOT  IN EC01"       << 5 << QColor(Qt::blue)        << normal;
    QTest::newRow("message")          << "MESSAGE(GZ)"        << 8 << QColor(Qt::blue)        << normal;
    QTest::newRow("line comment")     << "SZ EC03; // SZ"     << 12 << QColor(Qt::darkGreen)  << normal;
    QTest::newRow("quotation")        << "\"SZ EC03\" SZ"     << 4 << QColor(Qt::darkGreen)   << normal;
    QTest::newRow("greedy quotation") << "\"a\" SZ \"b\""     << 4 << QColor(Qt::darkGreen)   << normal;
    // clang-format on
}

void tst_highlighter::tokens_have_the_colour_of_their_group()
{
    QFETCH(QString, text);
    QFETCH(int, column);
    QFETCH(QColor, colour);
    QFETCH(int, weight);
    const coloured_text code(text);
    QVERIFY(!code.is_plain(0, column));
    QCOMPARE(code.colour_at(0, column), colour);
    QCOMPARE(code.format_at(0, column).fontWeight(), weight);
}

// 4 sections, 12 jetons, 21 arguments and 14 keywords have numbers 0 to 50.
void tst_highlighter::rules_stand_in_the_order_in_which_they_act()
{
    coloured_text code("");
    code.highlighter->add_error_rule("x");
    code.highlighter->add_error_rule("y");
    const QStringList names = code.highlighter->rule_names();
    QCOMPARE(names.size(), 51 + 2 + 2);
    for (int i = 0; i <= 50; ++i)
        QCOMPARE(names[i], "00_KeyWord_" + QString::number(1000 + i).mid(1));
    QCOMPARE(names.mid(51),
             QStringList({"01_Error_000", "01_Error_001", "02_SingleLineComment", "03_Quotation"}));
}

void tst_highlighter::the_table_decides_on_the_jetons()
{
    const system_pattern american(1);
    QVERIFY(coloured_text("CH62").is_plain(0, 0));
    QCOMPARE(coloured_text("CH62", american).colour_at(0, 0), QColor(Qt::darkMagenta));
}

void tst_highlighter::a_later_rule_overwrites_an_earlier_one()
{
    QTextDocument document;
    auto* highlighter = new Highlighter(&document);
    highlighter->set_rule("2_late", "b+", coloured(Qt::red));
    highlighter->set_rule("1_early", "[abc]+", coloured(Qt::blue));
    document.setPlainText("abbc x ab");
    highlighter->rehighlight();
    QStringList seen;
    for (const auto& range : document.firstBlock().layout()->formats())
        seen.append(QString("%1+%2 %3")
                        .arg(range.start)
                        .arg(range.length)
                        .arg(range.format.foreground().color().name()));
    QCOMPARE(
        seen,
        QStringList({"0+1 #0000ff", "1+2 #ff0000", "3+1 #0000ff", "7+1 #0000ff", "8+1 #ff0000"}));
    QCOMPARE(document.firstBlock().userState(), 0);
}

void tst_highlighter::rules_of_any_number_act_in_order()
{
    QTextDocument document;
    auto* highlighter = new Highlighter(&document);
    highlighter->set_rule("00_KeyWord_010", "x", coloured(Qt::red));
    highlighter->set_rule("00_KeyWord_002", "x", coloured(Qt::blue));
    document.setPlainText("x");
    highlighter->rehighlight();
    QCOMPARE(document.firstBlock().layout()->formats().first().format.foreground().color(),
             QColor(Qt::red));
}

void tst_highlighter::a_match_of_no_length_ends_its_rule()
{
    QTextDocument document;
    auto* highlighter = new Highlighter(&document);
    highlighter->set_rule("1", "a*", coloured(Qt::red));
    highlighter->set_rule("2", "b", coloured(Qt::blue));
    document.setPlainText("aab");
    highlighter->rehighlight();
    const auto ranges = document.firstBlock().layout()->formats();
    QCOMPARE(ranges.size(), 2);
    QCOMPARE(ranges[0].length, 2);
    QCOMPARE(ranges[1].start, 2);
}

void tst_highlighter::comments_run_over_lines()
{
    const coloured_text code("SZ /* a\nSZ EC03;\nIF\nSZ */ SZ EC03;\nSZ");
    const QColor green = Qt::darkGreen;
    QCOMPARE(code.colour_at(0, 0), QColor(Qt::blue));
    QCOMPARE(code.colour_at(0, 3), green);
    for (int column = 0; column < 8; ++column)
        QCOMPARE(code.colour_at(1, column), green);
    QCOMPARE(code.colour_at(2, 0), green);
    QCOMPARE(code.colour_at(3, 0), green);
    QCOMPARE(code.colour_at(3, 4), green); // the slash
    QVERIFY(code.is_plain(3, 5));
    QCOMPARE(code.colour_at(3, 6), QColor(Qt::blue));
    QCOMPARE(code.colour_at(3, 9), QColor(Qt::darkMagenta));
    QCOMPARE(code.colour_at(4, 0), QColor(Qt::blue));
    QVector<int> states;
    for (int line = 0; line < 5; ++line)
        states.append(code.document.findBlockByNumber(line).userState());
    QCOMPARE(states, QVector<int>({1, 1, 1, 0, 0}));
}

void tst_highlighter::comments_win_over_every_rule()
{
    coloured_text code("/* EC03 x */ EC03 x");
    code.highlighter->add_error_rule("x");
    QCOMPARE(code.colour_at(0, 3), QColor(Qt::darkGreen));
    QCOMPARE(code.format_at(0, 3).fontWeight(), int(QFont::Normal));
    QCOMPARE(code.format_at(0, 8).underlineStyle(), QTextCharFormat::NoUnderline);
    QCOMPARE(code.format_at(0, 18).underlineStyle(), QTextCharFormat::WaveUnderline);
}

void tst_highlighter::several_comments_stand_in_a_line()
{
    const coloured_text code("/*a*/ SZ /*b*/ SZ /*c");
    QCOMPARE(code.colour_at(0, 2), QColor(Qt::darkGreen));
    QCOMPARE(code.colour_at(0, 6), QColor(Qt::blue));
    QCOMPARE(code.colour_at(0, 11), QColor(Qt::darkGreen));
    QCOMPARE(code.colour_at(0, 15), QColor(Qt::blue));
    QCOMPARE(code.colour_at(0, 20), QColor(Qt::darkGreen));
    QCOMPARE(code.document.firstBlock().userState(), 1);
}

void tst_highlighter::a_change_of_a_comment_reaches_the_lines_below()
{
    coloured_text code("SZ\nSZ\nSZ");
    QCoreApplication::processEvents();
    QTextCursor cursor(&code.document);
    cursor.insertText("/*");
    QCOMPARE(code.colour_at(2, 0), QColor(Qt::darkGreen));
    cursor.deletePreviousChar();
    QCOMPARE(code.colour_at(2, 0), QColor(Qt::blue));
}

void tst_highlighter::an_error_rule_takes_its_text_literally()
{
    coloured_text code("EI1+0 EI110");
    code.highlighter->add_error_rule("EI1+0");
    const QTextCharFormat marked = code.format_at(0, 0);
    QCOMPARE(marked.underlineStyle(), QTextCharFormat::WaveUnderline);
    QCOMPARE(marked.underlineColor(), QColor(Qt::red));
    QCOMPARE(marked.fontWeight(), int(QFont::Bold));
    QCOMPARE(marked.foreground().color(), QColor(Qt::black));
    QCOMPARE(code.format_at(0, 6).underlineStyle(), QTextCharFormat::NoUnderline);
}

void tst_highlighter::only_lines_on_show_are_coloured()
{
    QTextDocument document;
    document.documentLayout();
    auto* highlighter = new CppHighlighter(french(), &document);
    highlighter->set_blocks_on_show(1, 2);
    document.setPlainText("SZ\nSZ\n/* SZ\nSZ\nSZ */ SZ\nSZ");
    highlighter->rehighlight();
    const auto coloured_lines = [&document] {
        QVector<int> lines;
        for (QTextBlock block = document.begin(); block.isValid(); block = block.next())
            if (!block.layout()->formats().isEmpty()) lines.append(block.blockNumber());
        return lines;
    };
    QCOMPARE(coloured_lines(), QVector<int>({1, 2}));
    QCOMPARE(document.findBlockByNumber(3).userState(), 1); // comments are known everywhere
    QCOMPARE(document.findBlockByNumber(4).userState(), 0);

    highlighter->set_blocks_on_show(3, 4);
    QCOMPARE(coloured_lines(), QVector<int>({1, 2, 3, 4}));
    QCOMPARE(document.findBlockByNumber(3).layout()->formats().first().format.foreground().color(),
             QColor(Qt::darkGreen));

    QCoreApplication::processEvents();
    // A line that changes out of sight gets its colours when it comes back.
    QTextCursor cursor(document.findBlockByNumber(1));
    cursor.insertText("IF ");
    QCOMPARE(coloured_lines(), QVector<int>({2, 3, 4}));
    highlighter->set_blocks_on_show(0, 1);
    QCOMPARE(coloured_lines(), QVector<int>({0, 1, 2, 3, 4}));
}

void tst_highlighter::a_line_that_nobody_reads_is_left_alone()
{
    const coloured_text code(QString("SZ ").repeated(1400) + "\n" + QString("SZ ").repeated(1300));
    QVERIFY(!code.has_colours(0));
    QVERIFY(code.has_colours(1));
}

void tst_highlighter::without_a_document_nothing_happens()
{
    coloured_text code("SZ");
    code.highlighter->setDocument(nullptr);
    code.highlighter->set_blocks_on_show(0, 5);
    QVERIFY(!code.has_colours(0));
    code.highlighter->setDocument(&code.document);
    code.highlighter->rehighlight();
    QVERIFY(code.has_colours(0));
}

void tst_highlighter::the_icon_shows_the_state()
{
    highlighter_icon icon;
    QSignalSpy on(&icon, &highlighter_icon::enable_highlighter);
    QSignalSpy off(&icon, &highlighter_icon::disable_highlighter);
    const auto shows = [&icon](const QString& name) {
        const QPixmap picture =
            scaled_picture(":/editoricon/grafik/editoricon/" + name + ".png", 0.0);
        return !picture.isNull() && icon.icon().pixmap(24, 24).toImage() == picture.toImage();
    };
    QCOMPARE(icon.text(), QString("Syntax Highligther"));
    QVERIFY(shows("edit-icon"));
    QVERIFY(icon.is_on());

    icon.change_icon();
    QVERIFY(shows("no-edit-icon"));
    QVERIFY(!icon.isChecked());
    QCOMPARE(off.size(), 1);
    QCOMPARE(on.size(), 0);
    icon.change_icon();
    QVERIFY(shows("edit-icon"));
    QCOMPARE(off.size(), 1);
    QCOMPARE(on.size(), 1);

    icon.highlighter_not_activ();
    QVERIFY(shows("no-edit-icon"));
    icon.highlighter_activ();
    QVERIFY(shows("edit-icon"));
    QCOMPARE(off.size() + on.size(), 2);
}

int main(int argc, char** argv)
{
    return run_window_test<tst_highlighter>(argc, argv);
}

#include "tst_highlighter.moc"
