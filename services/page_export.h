#ifndef PAGE_EXPORT_H
#define PAGE_EXPORT_H

#include <QObject>
#include <QString>
#include <QStringList>
#include <QVector>

#include <functional>

class QAction;
class QDialog;
class QDialogButtonBox;
class QPushButton;
class QWidget;

/// What a window gives away: its figures as rows of cells, and its picture.
struct page_content {
    QWidget* page = nullptr;                          ///< what the pictures show
    std::function<QVector<QStringList>()> table = {}; ///< asked when needed; heads first
    QString name = {}; ///< proposed file name, without ending; empty: the title of the window
    std::function<QWidget*()> current_page = {}; ///< asked instead, where the page changes
};

/**
 * The button "Exportieren" of a statistic window, with a menu: copy (Ctrl+C anywhere in the
 * window, as text with tabs), and save as CSV, PNG or SVG through the file dialog of the platform.
 * In a text field with a selection Ctrl+C copies that selection. A file that can't be written is
 * told.
 */
class page_export : public QObject
{
    Q_OBJECT

public:
    /// Puts the button into the button box beside "Drucken"; belongs to the window.
    page_export(QDialog& window, QDialogButtonBox& box, page_content what);

    /// For windows without a button box: the caller gives the button its place.
    page_export(QDialog& window, page_content what);

    /// Object name "PB_export".
    QPushButton* button() const { return export_button; }

public slots:
    /// Puts the table on the clipboard: cells divided by tabs, rows by line feeds. A table without
    /// rows leaves the clipboard as it is.
    void copy();
    /// Comma-separated values: cells with a comma, quote or line break stand in quotes; UTF-8
    /// with byte order mark, by which spreadsheets know it; lines end with CR LF.
    void save_csv();
    /// A picture of the page in the pixels of the screen.
    void save_png();
    /// A picture of the page in lines and letters, which stays sharp at every size.
    void save_svg();

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void build_button();
    QAction* add_entry(const QString& name, void (page_export::*slot)());
    void set_texts();
    bool is_in_window(const QObject* watched) const;
    QWidget* shown_page() const;
    QByteArray csv() const;
    QByteArray png() const;
    QByteArray svg() const;
    void
    save(const QString& ending, const QString& filter, const std::function<QByteArray()>& content);

    QDialog& owner;
    page_content content;
    QPushButton* export_button = nullptr;
    QAction* copy_entry = nullptr;
    QAction* csv_entry = nullptr;
    QAction* png_entry = nullptr;
    QAction* svg_entry = nullptr;
};

#endif // PAGE_EXPORT_H
