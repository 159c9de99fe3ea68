// What F1 is asked for in the editor: the word at the cursor, or the one before it in its
// statement.

#include "editor_window.h"
#include "file_dialog.h"
#include "numberstorage.h"
#include "players_control.h"
#include "setting.h"
#include "window_bench.h"
#include "zv_editor.h"

class tst_editor_help : public QObject
{
    Q_OBJECT

private slots:
    void cleanup() { file_dialog::set_chooser({}); }
    void keys_at_the_cursor_data();
    void keys_at_the_cursor();
    void only_systems_have_keys();
};

/// The keys at the place of the '^' in a text, for a file of a name.
static QStringList keys_in(const QString& name, const QString& text)
{
    setting settings;
    players_control players(settings);
    numberStorage numbers(settings);
    file_dialog::set_chooser([&](const file_dialog::request&) { return name; });
    editor_window window(edit_mode::new_file, general_player::PLAYER_1, settings, players, numbers);
    auto* editor = child_of<ZV_Editor>(window, "editor");
    const int place = text.indexOf('^');
    editor->setPlainText(QString(text).remove('^'));
    QTextCursor cursor = editor->textCursor();
    cursor.setPosition(place);
    editor->setTextCursor(cursor);
    QStringList keys = window.property("help_keys").toStringList();
    keys.replaceInStrings("statement:", "");
    return keys;
}

void tst_editor_help::keys_at_the_cursor_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QStringList>("keys");
    const auto row = [](const char* name, const char* text, const QStringList& keys) {
        QTest::newRow(name) << QString::fromUtf8(text) << keys;
    };
    // clang-format off
    row("inside a word",          "AL:\nSZ CO^01(+1);",          {"CO01", "CO", "SZ"});
    row("before a word",          "AL:\nSZ ^CO01(+1);",          {"CO01", "CO", "SZ"});
    row("behind a word",          "AL:\nSZ STMAX^(S);",          {"STMAX", "SZ"});
    row("in a number",            "AL:\nSZ ST1(1,^2,4);",        {"ST1", "ST", "SZ"});
    row("small letters",          "AL:\nsz ei^1(2);",            {"EI1", "EI", "SZ"});
    row("behind the semicolon",   "AL:\nSZ EC03;^",              {"EC03", "EC", "SZ"});
    row("the statement alone",    "AL:\nSZ CO01(1);IF ^GZ",      {"GZ", "IF"});
    row("over two lines",         "AL:\nIF GZ IN EC03\nTH^EN SZ", {"THEN", "EC03", "EC", "IN", "GZ", "IF"});
    row("the name of a section",  "ST:\nSZ EC03;\nV^E:\nSZ",     {"VE:", "VE"});
    row("behind a section",       "AL: S^Z EC03;",               {"SZ"});
    row("in a line comment",      "AL:\nSZ EC03; // if ^and",    {"EC03", "EC", "SZ"});
    row("behind a long comment",  "AL:\n/* if and */ SZ^ EC03;", {"SZ"});
    row("an empty text",          "^",                           {});
    // clang-format on
}

void tst_editor_help::keys_at_the_cursor()
{
    QFETCH(QString, text);
    QFETCH(QStringList, keys);
    QCOMPARE(keys_in("x.syf", text), keys);
}

void tst_editor_help::only_systems_have_keys()
{
    QVERIFY(!keys_in("x.syf", "AL:\nSZ ^EC03;").isEmpty());
    QVERIFY(keys_in("x.inp", "AL:\nSZ ^EC03;").isEmpty());
}

int main(int argc, char** argv)
{
    return run_window_test<tst_editor_help>(argc, argv);
}

#include "tst_editor_help.moc"
