#include "help_viewer.h"

#include <QCoreApplication>
#include <QDesktopServices>
#include <QFile>
#include <QOperatingSystemVersion>
#include <QStandardPaths>
#include <QTextStream>

namespace
{

help_viewer::platform& stand_in_platform()
{
    static help_viewer::platform current;
    return current;
}

/// A list of programs by type of file, as desktops keep it: lines "TYPE=PROGRAM;PROGRAM;".
bool names_a_program(const QString& path, const QStringList& types)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly | QIODevice::Text)) return false;
    QTextStream stream(&file);
    for (QString line; stream.readLineInto(&line);) {
        const int end = line.indexOf(QLatin1Char('='));
        if (end > 0 && end + 1 < line.size() && types.contains(line.left(end))) return true;
    }
    return false;
}

bool desktop_shows_compiled_help()
{
    const QStringList types = {QStringLiteral("application/vnd.ms-htmlhelp"),
                               QStringLiteral("application/x-chm")};
    const QStringList folders =
        QStandardPaths::standardLocations(QStandardPaths::GenericConfigLocation) +
        QStandardPaths::standardLocations(QStandardPaths::ApplicationsLocation);
    for (const QString& folder : folders) {
        for (const char* list : {"/mimeapps.list", "/mimeinfo.cache"})
            if (names_a_program(folder + QLatin1String(list), types)) return true;
    }
    return false;
}

bool is_german(general_setting::setting_language language)
{
    return language == general_setting::LANG_GERMAN;
}

QString compiled_file(general_setting::setting_language language)
{
    return is_german(language) ? QStringLiteral("zarvelloD.chm") : QStringLiteral("zarvelloE.chm");
}

} // namespace

help_viewer::platform help_viewer::this_platform()
{
    platform real;
    real.program_folder = QCoreApplication::applicationDirPath();
    real.has_help_program =
        QOperatingSystemVersion::currentType() == QOperatingSystemVersion::Windows;
    real.shows_compiled_help = desktop_shows_compiled_help;
    real.open_url = QDesktopServices::openUrl;
    return real;
}

void help_viewer::set_platform(platform stand_in)
{
    stand_in_platform() = std::move(stand_in);
}

help_viewer::help_viewer()
    : offers(stand_in_platform().open_url ? stand_in_platform() : this_platform())
{
}

QStringList help_viewer::help_program_arguments(general_setting::setting_language language,
                                                const QString& page) const
{
    const QString file =
        offers.program_folder + QLatin1String("\\resources\\") + compiled_file(language);
    return {page.isEmpty() ? file : file + QLatin1String("::/") + page};
}

QUrl help_viewer::url_of(general_setting::setting_language language, const QString& page) const
{
    const QString resources = offers.program_folder + QLatin1String("/resources/");
    const QString compiled = resources + compiled_file(language);
    const QString pages = resources + QLatin1String(is_german(language) ? "help/de/" : "help/en/");
    const bool has_compiled = QFile::exists(compiled);
    const bool has_pages = QFile::exists(pages + QLatin1String("index.html"));
    const bool wants_compiled =
        has_compiled && (!has_pages || (page.isEmpty() && offers.shows_compiled_help()));
    if (wants_compiled) return QUrl::fromLocalFile(compiled);
    return has_pages ? page_url(pages, page) : QUrl();
}

// Some desktops lose the anchor of a file on its way to the browser: a page of its own leads there.
QUrl help_viewer::page_url(const QString& pages, const QString& page) const
{
    QString place = page;
    place.replace(QLatin1String(".html#"), QLatin1String("-"));
    const QString leading = pages + QLatin1String("at-") + place + QLatin1String(".html");
    if (QFile::exists(leading)) return QUrl::fromLocalFile(leading);

    const QString file = page.section(QLatin1Char('#'), 0, 0);
    if (file.isEmpty() || !QFile::exists(pages + file))
        return QUrl::fromLocalFile(pages + QLatin1String("index.html"));
    QUrl url = QUrl::fromLocalFile(pages + file);
    const QString anchor = page.section(QLatin1Char('#'), 1);
    if (!anchor.isEmpty()) url.setFragment(anchor);
    return url;
}

void help_viewer::open(general_setting::setting_language language, const QString& page) const
{
    const QUrl url = url_of(language, page);
    if (!url.isEmpty()) offers.open_url(url);
}
