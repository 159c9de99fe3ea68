#ifndef PRINTER_C_H
#define PRINTER_C_H

#include <QMutex>
#include <QObject>
#include <QTransform>

class QPixmap;
class QPrinter;
class QRect;
class QWidget;
class setting;

/// Where a picture stands on a page: as large as the page allows with its proportions kept, and
/// in the middle. Unit: pixels of the printer, whose origin is the corner of the page.
/// @param page  what can be printed on
/// @param paper  the whole sheet
/// @param width, height  of the picture, above 0
QTransform fitted_transform(const QRect& page, const QRect& paper, int width, int height);

/**
 * Prints a picture of a window on the default printer, fitted to the page and centred, without a
 * print dialog. Without a printer a box says so and offers to save the page as PDF.
 */
class printer_c : public QObject
{
    Q_OBJECT

public:
    /// The settings tell orientation and colour and must outlive the object.
    /// @param window  over which boxes are shown; the object does not belong to it
    explicit printer_c(const setting& settings, QWidget* window);

    /// Prints the picture, or offers the PDF; an empty picture prints nothing.
    /// @param width, height  of the picture in its pixels
    void print_pixmap(const QPixmap& picture, int width, int height);

private:
    bool print_on_default_printer(const QPixmap& picture, int width, int height);
    bool draw_page(QPrinter& printer, const QPixmap& picture, int width, int height) const;
    void save_as_pdf(const QPixmap& picture, int width, int height);
    QByteArray pdf_page(const QPixmap& picture, int width, int height);

    const setting& print_setting;
    QWidget* box_parent;
    QMutex mutex;
};

#endif // PRINTER_C_H
