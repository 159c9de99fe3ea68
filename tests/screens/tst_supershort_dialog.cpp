#include "dialog_supershort_game_counter.h"
#include "setting.h"
#include "window_bench.h"

#include <QDialogButtonBox>
#include <QLabel>
#include <QPushButton>
#include <QSignalSpy>
#include <QSpinBox>
#include <QTranslator>

/// The question for the length of a super short game.
class tst_supershort_dialog : public QObject
{
    Q_OBJECT

private slots:
    void accepting_tells_the_count_data();
    void accepting_tells_the_count();
    void leaving_it_otherwise_cancels_data();
    void leaving_it_otherwise_cancels();
    void the_count_has_its_range();
    void it_can_be_asked_again();
    void texts_follow_the_language();
};

namespace
{

/// The dialog, what it tells, and its parts.
struct question {
    question() { dialog.show(); }

    QSpinBox* count() const { return dialog.findChild<QSpinBox*>("SB_coups"); }
    QPushButton* button(QDialogButtonBox::StandardButton which) const
    {
        return dialog.findChild<QDialogButtonBox*>("buttonBox")->button(which);
    }

    setting settings;
    dialog_supershort_game_counter dialog{settings};
    QSignalSpy activated{&dialog, &dialog_supershort_game_counter::dia_activate_supershort_game};
    QSignalSpy cancelled{&dialog, &dialog_supershort_game_counter::dia_deactivate_supershort_game};
};

/// Puts every text between angle brackets.
class bracket_translator : public QTranslator
{
public:
    bool isEmpty() const override { return false; }
    QString translate(const char*, const char* text, const char*, int) const override
    {
        return '<' + QString::fromUtf8(text) + '>';
    }
};

} // namespace

void tst_supershort_dialog::accepting_tells_the_count_data()
{
    QTest::addColumn<int>("count");
    QTest::newRow("endless") << 0;
    QTest::newRow("one") << 1;
    QTest::newRow("the most") << 999999;
}

void tst_supershort_dialog::accepting_tells_the_count()
{
    QFETCH(int, count);
    const question asked;
    asked.count()->setValue(count);
    QTest::mouseClick(asked.button(QDialogButtonBox::Ok), Qt::LeftButton);
    QCOMPARE(asked.activated.count(), 1);
    QCOMPARE(asked.activated.first().first().toInt(), count);
    QCOMPARE(asked.cancelled.count(), 0);
    QVERIFY(!asked.dialog.isVisible());
}

void tst_supershort_dialog::leaving_it_otherwise_cancels_data()
{
    QTest::addColumn<QString>("way");
    QTest::newRow("button") << "button";
    QTest::newRow("Escape") << "escape";
    QTest::newRow("closed") << "close";
}

void tst_supershort_dialog::leaving_it_otherwise_cancels()
{
    QFETCH(QString, way);
    question asked;
    if (way == "button") {
        QTest::mouseClick(asked.button(QDialogButtonBox::Cancel), Qt::LeftButton);
    } else if (way == "escape") {
        QTest::keyClick(&asked.dialog, Qt::Key_Escape);
    } else {
        asked.dialog.close();
    }
    QCOMPARE(asked.cancelled.count(), 1);
    QCOMPARE(asked.activated.count(), 0);
}

void tst_supershort_dialog::the_count_has_its_range()
{
    const question asked;
    QCOMPARE(asked.count()->minimum(), 0);
    QCOMPARE(asked.count()->maximum(), 999999);
    QCOMPARE(asked.count()->value(), 0);
}

void tst_supershort_dialog::it_can_be_asked_again()
{
    question asked;
    asked.dialog.reject();
    asked.dialog.show();
    asked.count()->setValue(5);
    asked.dialog.accept();
    QCOMPARE(asked.cancelled.count(), 1);
    QCOMPARE(asked.activated.count(), 1);
    QCOMPARE(asked.activated.first().first().toInt(), 5);
}

void tst_supershort_dialog::texts_follow_the_language()
{
    const question asked;
    QCOMPARE(asked.dialog.windowTitle(), QString("Superkurzspiel"));
    asked.count()->setValue(12);
    bracket_translator brackets;
    QCoreApplication::installTranslator(&brackets);
    QCoreApplication::processEvents();
    QCOMPARE(asked.dialog.windowTitle(), QString("<Superkurzspiel>"));
    QCOMPARE(asked.dialog.findChild<QLabel*>()->text(), QString("<Anzahl der Coups (0 = endlos)>"));
    QCOMPARE(asked.count()->value(), 12);
    QCoreApplication::removeTranslator(&brackets);
}

int main(int argc, char** argv)
{
    return run_window_test<tst_supershort_dialog>(argc, argv);
}

#include "tst_supershort_dialog.moc"
