#include "dense_screen.h"
#include "mainwindow_start.h"
#include "message_box.h"
#include "program_language.h"

#include <QApplication>
#include <QDebug>

/// The launcher has no box: it tells by the environment which folder it could not make or enter.
static QString missing_folder()
{
    return qEnvironmentVariable("ZARVELLO_MISSING_FOLDER");
}

static int tell_missing_folder()
{
    program_language language;
    language.set_game_language(general_setting::LANG_AUTO);
    const QString text =
        QCoreApplication::translate("main",
                                    "Zarvello hält seine Dateien im Ordner %1. Er kann nicht "
                                    "angelegt oder nicht betreten werden!");
    message_box::tell(nullptr,
                      QCoreApplication::translate("main", "Zarvello Warnung"),
                      text.arg(missing_folder()),
                      QMessageBox::Critical);
    return 1;
}

int main(int argc, char** argv)
{
    try {
        use_dense_screens();
        QApplication application(argc, argv);
        QCoreApplication::setApplicationName(QStringLiteral("Zarvello"));
        QCoreApplication::setApplicationVersion(QStringLiteral(ZARVELLO_VERSION));
        // Qt has taken its own options out of the list; the program has none.
        if (QCoreApplication::arguments().size() > 1) return 0;

        if (!missing_folder().isEmpty()) return tell_missing_folder();

        return run_mainwindow();
    } catch (...) {
        qDebug() << "exeption";
        return 1;
    }
}
