#include "mainwindow.h"
#include "pictures.h"

#include <QApplication>
#include <QDebug>
#include <QSplashScreen>

int main(int argc, char** argv)
{
    try {
        QApplication application(argc, argv);
        QCoreApplication::setApplicationName(QStringLiteral("Zarvello"));
        QCoreApplication::setApplicationVersion(QStringLiteral(ZARVELLO_VERSION));
        // Qt has taken its own options out of the list; the program has none.
        if (QCoreApplication::arguments().size() > 1) return 0;

        QSplashScreen splash(
            scaled_picture(QStringLiteral(":/splash/grafik/splash/explo-3.png"), 0.0));
        splash.show();
        QCoreApplication::processEvents();
        MainWindow window;
        window.show();
        splash.finish(&window);
        return QApplication::exec();
    } catch (...) {
        qDebug() << "exeption";
        return 1;
    }
}
