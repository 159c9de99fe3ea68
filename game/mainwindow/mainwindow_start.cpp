#include "mainwindow_start.h"

#include "mainwindow.h"
#include "pictures.h"

#include <QApplication>
#include <QSplashScreen>

int run_mainwindow()
{
    QSplashScreen splash(scaled_picture(
        QStringLiteral(":/splash/grafik/splash/explo-3.png"), 0.0, qApp->devicePixelRatio()));
    splash.show();
    QCoreApplication::processEvents();
    MainWindow window;
    window.show();
    // The picture runs events until the window is on the screen, a history load among them. In
    // front of the event loop it would stay up for the whole load, and who ends the program
    // meanwhile would not be heard.
    QMetaObject::invokeMethod(
        &splash, [&] { splash.finish(&window); }, Qt::QueuedConnection);
    return QApplication::exec();
}
