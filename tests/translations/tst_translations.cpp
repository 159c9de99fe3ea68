#include "system_file_reader.h"
#include "test_box.h"

#include <QDirIterator>
#include <QProcess>
#include <QRegularExpression>
#include <QTranslator>
#include <QXmlStreamReader>

namespace
{

/// A text of the program and its English.
struct message {
    QString context;
    QString source;
    QString translation;
    bool is_finished = true;

    QString name() const { return context + ": \"" + source + '"'; }
};

} // namespace

static message read_message(QXmlStreamReader& xml, const QString& context)
{
    message result;
    result.context = context;
    while (xml.readNextStartElement()) {
        if (xml.name() == QLatin1String("source")) {
            result.source = xml.readElementText();
        } else if (xml.name() == QLatin1String("translation")) {
            result.is_finished = !xml.attributes().hasAttribute("type");
            result.translation = xml.readElementText(QXmlStreamReader::IncludeChildElements);
        } else {
            xml.skipCurrentElement();
        }
    }
    return result;
}

static void read_context(QXmlStreamReader& xml, QVector<message>& messages)
{
    QString context;
    while (xml.readNextStartElement()) {
        if (xml.name() == QLatin1String("name")) {
            context = xml.readElementText();
        } else if (xml.name() == QLatin1String("message")) {
            messages.append(read_message(xml, context));
        } else {
            xml.skipCurrentElement();
        }
    }
}

/// Empty when the file can't be read to its end.
static QVector<message> read_messages(const QString& path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) return {};
    QXmlStreamReader xml(&file);
    QVector<message> messages;
    xml.readNextStartElement(); // TS
    while (xml.readNextStartElement())
        read_context(xml, messages);
    return xml.hasError() ? QVector<message>() : messages;
}

/// "%1" and the like, sorted, each as often as it stands there.
static QStringList place_holders(const QString& text)
{
    static const QRegularExpression place_holder("%(?:L?\\d{1,2}|L?n)");
    QStringList found;
    for (auto match = place_holder.globalMatch(text); match.hasNext();)
        found.append(match.next().captured());
    found.sort();
    return found;
}

static int trailing_line_feeds(const QString& text)
{
    int count = 0;
    while (count < text.size() && text.at(text.size() - 1 - count) == '\n')
        ++count;
    return count;
}

/// What is wrong with a translation; empty for a good one.
static QString fault_of(const message& text)
{
    if (!text.is_finished || text.translation.isEmpty()) return "is not translated";
    if (place_holders(text.source) != place_holders(text.translation)) {
        return "has other place holders in English";
    }
    if (trailing_line_feeds(text.source) != trailing_line_feeds(text.translation)) {
        return "ends with other line feeds in English";
    }
    return {};
}

class tst_translations : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void faults_are_seen_data();
    void faults_are_seen();
    void every_text_is_understood_by_lupdate();
    void every_text_has_its_english();
    void every_literal_of_the_sources_is_known();
    void the_built_file_gives_the_english();
    void a_text_changes_with_the_language();

private:
    QStringList command;
    QByteArray warnings;
    QVector<message> messages;
};

/// Brings a copy of the translations up to date with the sources.
void tst_translations::initTestCase()
{
    QVERIFY(QFile::copy(ZARVELLO_SOURCE_DIR "/translations/trans_en.ts", "trans_en.ts"));
    QVERIFY(QFile::setPermissions("trans_en.ts", QFile::ReadOwner | QFile::WriteOwner));
    command = QString(ZARVELLO_LUPDATE_COMMAND).split('|');

    QProcess lupdate;
    lupdate.start(command.first(), command.mid(1) + QStringList{"-ts", "trans_en.ts"});
    QVERIFY2(lupdate.waitForFinished(120000), qPrintable(lupdate.errorString()));
    QCOMPARE(lupdate.exitStatus(), QProcess::NormalExit);
    QCOMPARE(lupdate.exitCode(), 0);
    warnings = lupdate.readAllStandardError();
    messages = read_messages("trans_en.ts");
    QVERIFY(messages.size() > 100);
}

void tst_translations::faults_are_seen_data()
{
    QTest::addColumn<QString>("source");
    QTest::addColumn<QString>("translation");
    QTest::addColumn<bool>("is_finished");
    QTest::addColumn<bool>("is_good");

    QTest::newRow("good") << "Spieler %1\n"
                          << "Player %1\n"
                          << true << true;
    QTest::newRow("other order") << "%1 von %2"
                                 << "of %2, %1" << true << true;
    QTest::newRow("percent sign") << "50 % mehr"
                                  << "50% more" << true << true;
    QTest::newRow("empty") << "Spieler"
                           << "" << true << false;
    QTest::newRow("unfinished") << "Spieler"
                                << "Player" << false << false;
    QTest::newRow("place holder lost") << "Spieler %1"
                                       << "Player" << true << false;
    QTest::newRow("wrong place holder") << "Spieler %1"
                                        << "Player %2" << true << false;
    QTest::newRow("place holder twice") << "Spieler %1"
                                        << "Player %1 %1" << true << false;
    QTest::newRow("plural lost") << "%n Coups"
                                 << "coups" << true << false;
    QTest::newRow("line feed lost") << "Ende\n"
                                    << "End" << true << false;
    QTest::newRow("line feed more") << "Ende\n"
                                    << "End\n\n"
                                    << true << false;
}

void tst_translations::faults_are_seen()
{
    QFETCH(QString, source);
    QFETCH(QString, translation);
    QFETCH(bool, is_finished);
    QFETCH(bool, is_good);
    QCOMPARE(fault_of({"context", source, translation, is_finished}).isEmpty(), is_good);
}

/// A class without Q_OBJECT, a tr() outside of a class and a number with ' in it (as 1'000) are
/// told here; texts behind them would be lost.
void tst_translations::every_text_is_understood_by_lupdate()
{
    QVERIFY2(warnings.isEmpty(), warnings.constData());
}

void tst_translations::every_text_has_its_english()
{
    QStringList faults;
    for (const message& text : qAsConst(messages)) {
        const QString fault = fault_of(text);
        if (!fault.isEmpty()) faults.append(text.name() + ' ' + fault);
    }
    QVERIFY2(faults.isEmpty(),
             qPrintable("build the target update_translations and complete trans_en.ts:\n" +
                        faults.join('\n')));
}

/// Looks into the sources a second time, without lupdate: it must not have passed over any text.
void tst_translations::every_literal_of_the_sources_is_known()
{
    static const QRegularExpression literal(
        "\\b(?:tr|QT_TR_NOOP)\\(\\s*\"((?:[^\"\\\\]|\\\\.)+)\"");
    int literals = 0;
    QStringList unknown;
    for (const QString& folder : qAsConst(command)) {
        if (!folder.startsWith(ZARVELLO_SOURCE_DIR)) continue;
        QDirIterator files(folder, {"*.cpp", "*.h"}, QDir::Files, QDirIterator::Subdirectories);
        while (files.hasNext()) {
            QFile file(files.next());
            QVERIFY(file.open(QIODevice::ReadOnly));
            const QString text = QString::fromUtf8(file.readAll());
            for (auto match = literal.globalMatch(text); match.hasNext();) {
                QString source = match.next().captured(1);
                source.replace("\\n", "\n").replace("\\\"", "\"").replace("\\\\", "\\");
                ++literals;
                const auto begins_so = [&](const message& known) {
                    return known.source.startsWith(source); // the literal may go on in a new line
                };
                if (std::none_of(messages.cbegin(), messages.cend(), begins_so)) {
                    unknown.append(file.fileName() + ": " + source);
                }
            }
        }
    }
    QVERIFY(literals > 50);
    QVERIFY2(unknown.isEmpty(), qPrintable(unknown.join('\n')));
}

void tst_translations::the_built_file_gives_the_english()
{
    QTranslator english;
    QVERIFY(english.load(ZARVELLO_TRANSLATION_FOLDER "/trans_en.qm"));
    const QVector<message> kept = read_messages(ZARVELLO_SOURCE_DIR "/translations/trans_en.ts");
    QVERIFY(!kept.isEmpty());
    for (const message& text : kept) {
        if (!text.is_finished || text.source.contains("%n")) continue;
        const QString shown =
            english.translate(text.context.toUtf8().constData(), text.source.toUtf8().constData());
        QCOMPARE(shown, text.translation);
    }
}

void tst_translations::a_text_changes_with_the_language()
{
    const QString german = "Die Systemspieldatei konnte nicht geöffnet werden!";
    const auto told = [] { return read_system_lines(QString("missing.syf")).result.error_text; };
    QCOMPARE(told(), german);

    QTranslator english;
    QVERIFY(english.load(ZARVELLO_TRANSLATION_FOLDER "/trans_en.qm"));
    QVERIFY(QCoreApplication::installTranslator(&english));
    QCOMPARE(told(), QString("The system file could not be opened!"));
    QCoreApplication::removeTranslator(&english);
    QCOMPARE(told(), german);
}

int main(int argc, char** argv)
{
    return run_in_own_box<tst_translations>(argc, argv);
}
#include "tst_translations.moc"
