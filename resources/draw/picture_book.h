#ifndef PICTURE_BOOK_H
#define PICTURE_BOOK_H

#include <QImage>
#include <QPainter>
#include <QSize>
#include <QString>
#include <QVector>

#include <functional>

/// One picture of the program and how it is drawn.
struct picture {
    QString path;                        ///< resource path, as the program names it
    QSize size;                          ///< at full size
    std::function<void(QPainter&)> draw; ///< in pixels of the full size
    bool has_twin = true;                ///< stands beside itself in double size, as "name@2x.png"
    bool is_grainy = false; ///< its grain hides coarser steps of colour, which keep its file small
};

/// All pictures, by subject.
QVector<picture> table_pictures();
QVector<picture> selection_pictures();
QVector<picture> wheel_pictures();
QVector<picture> jeton_pictures();
QVector<picture> panel_pictures();
QVector<picture> icon_pictures();
QVector<picture> splash_pictures();

/// All of them.
QVector<picture> all_pictures();

/// The picture in its full size times the factor, with a transparent ground. Every size is drawn
/// anew, none is enlarged. Needs a `QGuiApplication` for the lettering.
QImage drawn(const picture& which, int factor);

/// The file of a picture below the folder of the resources: the path without its prefix.
QString file_of(const QString& path);

/// The file or path of the twin of double size.
QString twin_of(const QString& path);

/// The sizes that the program's icon holds, the smallest first.
QVector<int> icon_sizes();

/// Path of the program's icon.
QString program_icon_path();

/// The program's icon as the picture of a square with such a side. Unit: pixels.
QImage program_icon_of_size(int side);

/// The sizes in which the menus of desktops ask for the icon, the smallest first.
QVector<int> desktop_icon_sizes();

/// The file of the icon for the menus of desktops, below the folder of the resources.
QString desktop_icon_file(int side);

/// The program's icon as a file: every size drawn by itself and stored as PNG.
QByteArray program_icon();

#endif // PICTURE_BOOK_H
