#ifndef TEST_BOX_H
#define TEST_BOX_H

#include <QCoreApplication>
#include <QDir>
#include <QLocale>
#include <QTemporaryDir>
#include <QtTest>

/// Runs one test object in a box of its own: an empty temporary working directory and the
/// C locale. Test programs can then run side by side and never meet the user's own files.
/// Tests of widgets need QApplication as their application.
template <typename test_object, typename application_type = QCoreApplication>
int run_in_own_box(int argc, char** argv)
{
    QLocale::setDefault(QLocale::c());
    const QTemporaryDir box;
    if (!box.isValid() || !QDir::setCurrent(box.path())) return 1;
    application_type application(argc, argv);
    test_object tests;
    const int failures = QTest::qExec(&tests, argc, argv);
    QDir::setCurrent(QDir::rootPath());
    return failures;
}

#endif // TEST_BOX_H
