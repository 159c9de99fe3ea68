#include "help_keys.h"
#include "test_box.h"

#include <QAction>
#include <QApplication>
#include <QDialog>
#include <QGroupBox>
#include <QLineEdit>
#include <QMainWindow>
#include <QMenuBar>
#include <QSignalSpy>
#include <QVBoxLayout>

namespace
{

/// A window that knows the place in it.
class place_window : public QDialog
{
    Q_OBJECT
    Q_PROPERTY(QStringList help_keys READ help_keys)

public:
    QStringList help_keys() const { return keys; }
    QStringList keys;
};

class derived_window : public place_window
{
    Q_OBJECT
};

help_table known_pages()
{
    help_table table;
    table.read("QMainWindow index\n"
               "place_window dialog\n"
               "GB_part dialog#part\n"
               "statement:CO language_counters#co\n");
    return table;
}

} // namespace

class tst_help_keys : public QObject
{
    Q_OBJECT

private slots:
    void the_nearest_place_is_found();
    void a_class_stands_for_those_derived_from_it();
    void the_place_in_a_window_comes_first();
    void a_place_without_a_page();
    void f1_tells_the_page();
    void f1_comes_before_a_shortcut();
    void f1_in_a_modal_dialog();
    void f1_with_another_key_is_left_alone();
    void a_key_held_down_tells_once();
    void other_keys_are_left_alone();
};

void tst_help_keys::the_nearest_place_is_found()
{
    const help_keys keys(known_pages());
    QMainWindow main_window;
    place_window dialog;
    dialog.setParent(&main_window);
    QGroupBox group(&dialog);
    group.setObjectName("GB_part");
    QLineEdit in_group(&group);
    QLineEdit in_dialog(&dialog);
    QCOMPARE(keys.page_for(&in_group), QString("dialog.html#part"));
    QCOMPARE(keys.page_for(&in_dialog), QString("dialog.html"));
    QCOMPARE(keys.page_for(&main_window), QString("index.html"));
}

void tst_help_keys::a_class_stands_for_those_derived_from_it()
{
    const help_keys keys(known_pages());
    const derived_window dialog;
    QCOMPARE(keys.page_for(&dialog), QString("dialog.html"));
}

void tst_help_keys::the_place_in_a_window_comes_first()
{
    const help_keys keys(known_pages());
    place_window dialog;
    QLineEdit edit(&dialog);
    dialog.keys = QStringList{"statement:CO01", "statement:CO"};
    QCOMPARE(keys.page_for(&edit), QString("language_counters.html#co"));
    dialog.keys = QStringList{"statement:XX"};
    QCOMPARE(keys.page_for(&edit), QString("dialog.html"));
}

void tst_help_keys::a_place_without_a_page()
{
    const help_keys keys(known_pages());
    const QWidget widget;
    QVERIFY(keys.page_for(&widget).isEmpty());
    QVERIFY(keys.page_for(nullptr).isEmpty());
}

void tst_help_keys::f1_tells_the_page()
{
    const help_keys keys(known_pages());
    const QSignalSpy wanted(&keys, &help_keys::help_wanted);
    place_window dialog;
    QLineEdit edit(&dialog);
    QWidget plain;
    QTest::keyClick(&edit, Qt::Key_F1);
    QTest::keyClick(&plain, Qt::Key_F1);
    QCOMPARE(wanted.size(), 2);
    QCOMPARE(wanted[0][0].toString(), QString("dialog.html"));
    QVERIFY(wanted[1][0].toString().isEmpty());
}

void tst_help_keys::f1_comes_before_a_shortcut()
{
    const help_keys keys(known_pages());
    const QSignalSpy wanted(&keys, &help_keys::help_wanted);
    QMainWindow window;
    QAction action("Help");
    action.setShortcut(Qt::Key_F1);
    window.menuBar()->addMenu("Menu")->addAction(&action);
    const QSignalSpy triggered(&action, &QAction::triggered);
    auto* edit = new QLineEdit;
    window.setCentralWidget(edit);
    window.show();
    QVERIFY(QTest::qWaitForWindowActive(&window));
    edit->setFocus();
    QTest::keyClick(edit, Qt::Key_F1);
    QTest::keyClick(window.windowHandle(), Qt::Key_F1);
    QCOMPARE(triggered.size(), 0);
    QCOMPARE(wanted.size(), 2);
    QCOMPARE(wanted[1][0].toString(), QString("index.html"));
}

void tst_help_keys::f1_in_a_modal_dialog()
{
    const help_keys keys(known_pages());
    const QSignalSpy wanted(&keys, &help_keys::help_wanted);
    place_window dialog;
    QLineEdit edit(&dialog);
    QMetaObject::invokeMethod(
        &dialog,
        [&] {
            QTest::keyClick(&edit, Qt::Key_F1);
            dialog.reject();
        },
        Qt::QueuedConnection);
    dialog.exec();
    QCOMPARE(wanted.size(), 1);
    QCOMPARE(wanted[0][0].toString(), QString("dialog.html"));
}

void tst_help_keys::f1_with_another_key_is_left_alone()
{
    const help_keys keys(known_pages());
    const QSignalSpy wanted(&keys, &help_keys::help_wanted);
    QWidget plain;
    QTest::keyClick(&plain, Qt::Key_F1, Qt::ShiftModifier);
    QTest::keyClick(&plain, Qt::Key_F1, Qt::ControlModifier);
    QCOMPARE(wanted.size(), 0);
}

void tst_help_keys::a_key_held_down_tells_once()
{
    const help_keys keys(known_pages());
    const QSignalSpy wanted(&keys, &help_keys::help_wanted);
    QWidget plain;
    QKeyEvent first(QEvent::KeyPress, Qt::Key_F1, Qt::NoModifier);
    QKeyEvent repeated(QEvent::KeyPress, Qt::Key_F1, Qt::NoModifier, QString(), true);
    QCoreApplication::sendEvent(&plain, &first);
    QCoreApplication::sendEvent(&plain, &repeated);
    QCOMPARE(wanted.size(), 1);
}

void tst_help_keys::other_keys_are_left_alone()
{
    const help_keys keys(known_pages());
    const QSignalSpy wanted(&keys, &help_keys::help_wanted);
    QLineEdit edit;
    QTest::keyClicks(&edit, "a");
    QTest::keyClick(&edit, Qt::Key_F2);
    QCOMPARE(edit.text(), QString("a"));
    QCOMPARE(wanted.size(), 0);
}

int main(int argc, char** argv)
{
    return run_in_own_box<tst_help_keys, QApplication>(argc, argv);
}

#include "tst_help_keys.moc"
