#include "year_file_permanenz.h"

#include "pictures.h"
#include "run_record.h"
#include "ui_year_file_permanenz.h"

#include <QEvent>
#include <QFile>
#include <QFileInfo>
#include <QFontDatabase>
#include <QFontInfo>
#include <QIcon>
#include <QTextStream>

static constexpr int text_points = 9;
static constexpr qint64 most_bytes = 16LL * 1024 * 1024; // with more of them the window would stand

/// Not every desktop names its fixed-width font.
static QFont fixed_font()
{
    QFont font = QFontDatabase::systemFont(QFontDatabase::FixedFont);
    if (!QFontInfo(font).fixedPitch()) {
        font.setFamily(QStringLiteral("Monospace"));
        font.setStyleHint(QFont::Monospace);
    }
    font.setPointSize(text_points);
    return font;
}

year_file_permanenz::year_file_permanenz(int year, const QString& run_block, QWidget* parent)
    : QDialog(parent)
    , ui(std::make_unique<Ui::year_file_permanenz>())
    , file_name(year_file_name(year))
{
    init_pictures();
    ui->setupUi(this);
    setWindowIcon(QIcon(QStringLiteral(":/general/grafik/icon/Roul10.ico")));
    connect(ui->PB_close, &QPushButton::clicked, this, &QDialog::accept);
    ui->PE_year_file->setFont(fixed_font());

    QFile file(file_name);
    is_found = QFileInfo(file_name).isFile() && file.open(QIODevice::ReadOnly | QIODevice::Text);
    if (is_found) {
        QString text = shown_text(file);
        text.chop(2); // the ends of the last block
        const QString run = run_block.isEmpty() ? QStringLiteral("-") : run_block;
        ui->PE_year_file->setPlainText(text + QLatin1Char('\n') + tr("*aktueller Lauf") +
                                       QLatin1Char('\n') + run);
    }
    show_title();
}

year_file_permanenz::~year_file_permanenz() = default;

/// The whole file; of one that is far too long for a window its end.
QString year_file_permanenz::shown_text(QFile& file)
{
    const qint64 surplus = file.size() - most_bytes;
    if (surplus <= 0 || !file.seek(surplus)) return QTextStream(&file).readAll();
    file.readLine(); // the rest of a line
    return tr("... (die Datei ist zu lang, gezeigt wird ihr Ende)") + QLatin1Char('\n') +
           QTextStream(&file).readAll();
}

void year_file_permanenz::show_title()
{
    setWindowTitle(is_found ? file_name + tr(" (schreibgeschützt)")
                            : tr("Keine Jahres Permanenz gefunden!"));
}

void year_file_permanenz::changeEvent(QEvent* event)
{
    QDialog::changeEvent(event);
    if (event->type() != QEvent::LanguageChange) return;
    ui->retranslateUi(this);
    show_title();
}
