// Draws all pictures of the program into the folder of the resources.
// Usage: zarvello_draw_pictures FOLDER

#include "picture_book.h"

#include <QDir>
#include <QFileInfo>
#include <QGuiApplication>
#include <QImageWriter>
#include <QSaveFile>
#include <QTextStream>

namespace
{

bool fails(const QString& file)
{
    QTextStream(stderr) << "can't write " << file << '\n';
    return false;
}

bool write_image(const QImage& image, const QString& file)
{
    QDir().mkpath(QFileInfo(file).path());
    QImageWriter writer(file, "png");
    writer.setQuality(0); // smallest
    return writer.write(image) || fails(file);
}

bool write_picture(const picture& which, const QString& folder)
{
    const QString file = folder + QLatin1Char('/') + file_of(which.path);
    if (!write_image(drawn(which, 1), file)) return false;
    return !which.has_twin || write_image(drawn(which, 2), twin_of(file));
}

bool write_program_icon(const QString& folder)
{
    const QString name = folder + QLatin1Char('/') + file_of(program_icon_path());
    QSaveFile file(name);
    if (!file.open(QIODevice::WriteOnly)) return fails(name);
    file.write(program_icon());
    return file.commit() || fails(name);
}

bool write_desktop_icons(const QString& folder)
{
    for (const int side : desktop_icon_sizes()) {
        const QString file = folder + QLatin1Char('/') + desktop_icon_file(side);
        if (!write_image(program_icon_of_size(side), file)) return false;
    }
    return true;
}

} // namespace

int main(int argc, char** argv)
{
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
    const QGuiApplication application(argc, argv);
    const QStringList arguments = QGuiApplication::arguments();
    if (arguments.size() != 2) {
        QTextStream(stderr) << "usage: zarvello_draw_pictures FOLDER\n";
        return 2;
    }
    for (const picture& which : all_pictures()) {
        if (!write_picture(which, arguments.at(1))) return 1;
    }
    const bool are_icons_written =
        write_program_icon(arguments.at(1)) && write_desktop_icons(arguments.at(1));
    return are_icons_written ? 0 : 1;
}
