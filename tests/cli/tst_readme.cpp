// What the README shows is what the program does.

#include "runner_process.h"
#include "test_box.h"

class tst_readme : public QObject
{
    Q_OBJECT

private slots:
    void the_example_compiles_and_leaves_the_protocol_shown();
};

/// The indented block of a text that begins with the line given, without its indent and without
/// blanks at the ends of lines.
static QStringList block_of(const QString& text, const QString& first_line)
{
    QStringList block;
    for (const QString& line : text.split('\n')) {
        const QString content = line.mid(4);
        const bool is_indented = line.startsWith("    ");
        if (block.isEmpty() && !(is_indented && content.startsWith(first_line))) continue;
        if (!is_indented) break;
        QString trimmed = content;
        while (trimmed.endsWith(' '))
            trimmed.chop(1);
        block.append(trimmed);
    }
    return block;
}

void tst_readme::the_example_compiles_and_leaves_the_protocol_shown()
{
    const QString readme = QString::fromUtf8(read_file(ZARVELLO_SOURCE_DIR "/README.md"));
    const QStringList system = block_of(readme, "// double up on red");
    const QStringList shown = block_of(readme, " GZ ");
    QVERIFY(system.size() > 5);
    QVERIFY(shown.size() > 5);

    write_file("double.syf", system.join('\n').toUtf8());
    QCOMPARE(run_runner({"tokens", "double.syf"}).status, 0);
    QCOMPARE(run_runner({"play",
                         "--quiet",
                         "--system",
                         "double.syf",
                         "--numbers",
                         ZARVELLO_SOURCE_DIR "/examples/sysin/french_5000.inp",
                         "--protocol",
                         "double.out"})
                 .status,
             0);
    const QStringList written = QString::fromUtf8(read_file("double.out")).split('\n');
    for (int i = 0; i < shown.size(); ++i) {
        QString line = written.value(i);
        while (line.endsWith(' '))
            line.chop(1);
        QCOMPARE(line, shown.at(i));
    }
}

int main(int argc, char** argv)
{
    return run_in_own_box<tst_readme>(argc, argv);
}

#include "tst_readme.moc"
