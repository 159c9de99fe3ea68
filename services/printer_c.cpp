#include "printer_c.h"

#include "file_saver.h"
#include "message_box.h"
#include "setting.h"

#include <QFile>
#include <QMutexLocker>
#include <QPainter>
#include <QPixmap>
#include <QPoint>
#include <QPrinter>
#include <QPrinterInfo>
#include <QTemporaryDir>

#include <algorithm>

QTransform fitted_transform(const QRect& page, const QRect& paper, int width, int height)
{
    const double scale = std::min(page.width() / static_cast<double>(width),
                                  page.height() / static_cast<double>(height));
    const QPoint page_centre(paper.x() + page.width() / 2, paper.y() + page.height() / 2);
    const QPoint picture_centre(width / 2, height / 2);
    QTransform place;
    place.translate(page_centre.x(), page_centre.y());
    place.scale(scale, scale);
    place.translate(-picture_centre.x(), -picture_centre.y());
    return place;
}

printer_c::printer_c(const setting& settings, QWidget* window)
    : print_setting(settings)
    , box_parent(window)
{
}

// A box runs an event loop, so it is shown when the lock is free again.
void printer_c::print_pixmap(const QPixmap& picture, int width, int height)
{
    if (picture.isNull() || width < 1 || height < 1) return;
    if (print_on_default_printer(picture, width, height)) return;
    const QString question =
        tr("Es ist kein Drucker bereit. Soll die Seite als PDF gespeichert werden?");
    if (!message_box::ask(box_parent, tr("Zarvello Info"), question)) return;
    save_as_pdf(picture, width, height);
}

bool printer_c::print_on_default_printer(const QPixmap& picture, int width, int height)
{
    const QMutexLocker locker(&mutex);
    if (QPrinterInfo::defaultPrinter().isNull()) return false;
    QPrinter printer(QPrinter::HighResolution);
    return draw_page(printer, picture, width, height);
}

bool printer_c::draw_page(QPrinter& printer, const QPixmap& picture, int width, int height) const
{
    QPixmap copy = picture.copy();
    copy.setDevicePixelRatio(1.0); // width and height count its own pixels
    printer.setPageOrientation(print_setting.s_pr_landscape() ? QPageLayout::Landscape
                                                              : QPageLayout::Portrait);
    printer.setColorMode(print_setting.s_pr_color() ? QPrinter::Color : QPrinter::GrayScale);
    QPainter painter;
    if (!painter.begin(&printer)) return false;
    const QPageLayout page = printer.pageLayout();
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    painter.setRenderHint(QPainter::LosslessImageRendering); // letters blur as a photograph
    painter.setTransform(fitted_transform(page.paintRectPixels(printer.resolution()),
                                          page.fullRectPixels(printer.resolution()),
                                          width,
                                          height));
    painter.drawPixmap(0, 0, copy);
    return painter.end();
}

void printer_c::save_as_pdf(const QPixmap& picture, int width, int height)
{
    file_saver::save(
        box_parent,
        {tr("Als PDF speichern"),
         QStringLiteral("zarvello"),
         QStringLiteral("pdf"),
         tr("PDF-Dateien (*.pdf)"),
         [this, &picture, width, height] { return pdf_page(picture, width, height); }});
}

// A printer writes straight into its file and keeps quiet when the disk is full. Through a file of
// our own the user's file is replaced only by a whole page.
QByteArray printer_c::pdf_page(const QPixmap& picture, int width, int height)
{
    const QMutexLocker locker(&mutex);
    const QTemporaryDir folder;
    if (!folder.isValid()) return {};
    QFile file(folder.filePath(QStringLiteral("page.pdf")));
    QPrinter printer(QPrinter::HighResolution);
    printer.setOutputFormat(QPrinter::PdfFormat);
    printer.setOutputFileName(file.fileName());
    printer.setDocName(QStringLiteral("Zarvello"));
    if (!draw_page(printer, picture, width, height)) return {};
    const QByteArray page = file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    return page.trimmed().endsWith("%%EOF") ? page : QByteArray();
}
