#include "program_language.h"
#include "test_box.h"

#include <QApplication>
#include <QDialogButtonBox>
#include <QPushButton>

using general_setting::LANG_AUTO;
using general_setting::LANG_ENGLISH;
using general_setting::LANG_GERMAN;
using general_setting::setting_language;

static const QString folder = ZARVELLO_TRANSLATION_FOLDER;

namespace
{

/// A window that counts how often it is told to refresh its texts.
class counting_window : public QWidget
{
public:
    int refreshes = 0;

protected:
    void changeEvent(QEvent* event) override
    {
        if (event->type() == QEvent::LanguageChange) ++refreshes;
        QWidget::changeEvent(event);
    }
};

} // namespace

/// A text of the program, and one of Qt, in the language of the moment.
static QStringList shown_texts()
{
    return {QCoreApplication::translate("system_file_reader",
                                        "Die Systemspieldatei konnte nicht geöffnet werden!"),
            QCoreApplication::translate("QPlatformTheme", "Cancel")};
}

static const QStringList german_texts = {"Die Systemspieldatei konnte nicht geöffnet werden!",
                                         "Abbrechen"};
static const QStringList english_texts = {"The system file could not be opened!", "Cancel"};

class tst_program_language : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void the_texts_follow_the_language_data();
    void the_texts_follow_the_language();
    void each_language_takes_the_place_of_the_other();
    void the_buttons_of_a_dialog_follow();
    void an_unchanged_language_does_no_work();
    void a_missing_file_is_passed_over();
    void the_files_lie_beside_the_program();
    void the_end_of_the_object_takes_its_texts_back();
};

void tst_program_language::initTestCase()
{
    QVERIFY(QFile::exists(folder + "/trans_en.qm"));
    QVERIFY(QFile::exists(folder + "/qtbase_de.qm"));
}

void tst_program_language::the_texts_follow_the_language_data()
{
    QTest::addColumn<setting_language>("language");
    QTest::addColumn<QString>("locale");
    QTest::addColumn<QStringList>("texts");

    QTest::newRow("German") << LANG_GERMAN << "en_GB" << german_texts;
    QTest::newRow("English") << LANG_ENGLISH << "de_DE" << english_texts;
    QTest::newRow("auto in Germany") << LANG_AUTO << "de_DE" << german_texts;
    QTest::newRow("auto in Austria") << LANG_AUTO << "de_AT" << german_texts;
    QTest::newRow("auto in Britain") << LANG_AUTO << "en_GB" << english_texts;
    QTest::newRow("auto in France") << LANG_AUTO << "fr_FR" << english_texts;
    QTest::newRow("auto without a locale") << LANG_AUTO << "C" << english_texts;
    QTest::newRow("auto in Northern Sotho") << LANG_AUTO << "nso_DE" << english_texts;
}

void tst_program_language::the_texts_follow_the_language()
{
    QFETCH(setting_language, language);
    QFETCH(QString, locale);
    QFETCH(QStringList, texts);

    program_language switcher(folder, locale);
    switcher.set_game_language(language);
    QCOMPARE(shown_texts(), texts);
}

void tst_program_language::each_language_takes_the_place_of_the_other()
{
    program_language switcher(folder, "de_DE");
    for (const setting_language language : {LANG_ENGLISH, LANG_AUTO, LANG_ENGLISH, LANG_GERMAN}) {
        switcher.set_game_language(language);
        QCOMPARE(shown_texts(), language == LANG_ENGLISH ? english_texts : german_texts);
    }
}

void tst_program_language::the_buttons_of_a_dialog_follow()
{
    QDialogButtonBox box(QDialogButtonBox::Cancel);
    program_language switcher(folder, "C");
    switcher.set_game_language(LANG_GERMAN);
    QCoreApplication::processEvents();
    QCOMPARE(box.button(QDialogButtonBox::Cancel)->text().remove('&'), QString("Abbrechen"));
    switcher.set_game_language(LANG_ENGLISH);
    QCoreApplication::processEvents();
    QCOMPARE(box.button(QDialogButtonBox::Cancel)->text().remove('&'), QString("Cancel"));
}

void tst_program_language::an_unchanged_language_does_no_work()
{
    program_language switcher(folder, "de_DE");
    counting_window window;
    switcher.set_game_language(LANG_GERMAN);
    QCoreApplication::processEvents();
    QCOMPARE(window.refreshes, 1);

    switcher.set_game_language(LANG_GERMAN);
    switcher.set_game_language(LANG_AUTO); // German as well
    QCoreApplication::processEvents();
    QCOMPARE(window.refreshes, 1);

    switcher.set_game_language(LANG_ENGLISH);
    QCoreApplication::processEvents();
    QCOMPARE(window.refreshes, 2);
}

void tst_program_language::a_missing_file_is_passed_over()
{
    program_language switcher(QDir::currentPath(), "C");
    const QStringList untranslated = {german_texts.first(), "Cancel"};
    switcher.set_game_language(LANG_ENGLISH);
    QCOMPARE(shown_texts(), untranslated);
    switcher.set_game_language(LANG_GERMAN);
    QCOMPARE(shown_texts(), untranslated);
}

void tst_program_language::the_files_lie_beside_the_program()
{
    const QString beside = QCoreApplication::applicationDirPath() + "/resources";
    const bool was_there = QDir(beside).exists();
    QVERIFY(QDir().mkpath(beside));
    const bool is_copied = QFile::copy(folder + "/trans_en.qm", beside + "/trans_en.qm");
    {
        program_language switcher;
        switcher.set_game_language(LANG_ENGLISH);
        QCOMPARE(shown_texts(), english_texts);
    }
    if (is_copied) QFile::remove(beside + "/trans_en.qm");
    if (!was_there) QDir().rmdir(beside);
}

void tst_program_language::the_end_of_the_object_takes_its_texts_back()
{
    {
        program_language switcher(folder, "C");
        switcher.set_game_language(LANG_ENGLISH);
        QCOMPARE(shown_texts(), english_texts);
    }
    QCOMPARE(shown_texts().first(), german_texts.first());
}

int main(int argc, char** argv)
{
    return run_in_own_box<tst_program_language, QApplication>(argc, argv);
}
#include "tst_program_language.moc"
