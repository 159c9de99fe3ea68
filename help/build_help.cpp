// Makes the help files from the sources of the manual:
//
//   zarvello_build_help SOURCES TARGET MARKDOWN_PROGRAM CHM_PROGRAM
//
// writes TARGET/de/*.html, TARGET/en/*.html, TARGET/zarvelloD.chm and TARGET/zarvelloE.chm. Ends
// with 1 and says why if a page is missing or a program fails.

#include "help_table.h"
#include "manual_chm.h"
#include "manual_html.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QProcess>
#include <QSaveFile>
#include <QTextStream>

namespace
{

/// Makes the help files, step by step; each step returns false and tells the fault if it fails.
class help_builder
{
public:
    help_builder(const QString& source_folder,
                 const QString& target_folder,
                 const QString& markdown,
                 const QString& chm)
        : sources(source_folder)
        , target(target_folder)
        , markdown_program(markdown)
        , chm_program(chm)
    {
    }

    bool build(manual::language spoken)
    {
        return set_pages(spoken) && write_browser_pages(spoken) && write_leading_pages(spoken) &&
               write_chm(spoken);
    }

    const QString& told_fault() const { return fault; }

private:
    bool fails(const QString& text)
    {
        fault = text;
        return false;
    }

    bool run(const QString& program, const QStringList& arguments, const QString& folder)
    {
        QProcess process;
        process.setWorkingDirectory(folder);
        process.start(program, arguments, QIODevice::ReadOnly);
        process.waitForFinished(-1);
        output = process.readAllStandardOutput();
        const bool is_done = process.error() == QProcess::UnknownError &&
                             process.exitStatus() == QProcess::NormalExit &&
                             process.exitCode() == 0;
        return is_done || fails(program + ' ' + arguments.join(' ') + ":\n" +
                                QString::fromUtf8(output + process.readAllStandardError()));
    }

    bool write(const QDir& folder, const QString& name, const QByteArray& bytes)
    {
        QSaveFile file(folder.filePath(name));
        const bool is_written =
            file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size() && file.commit();
        return is_written || fails(file.fileName() + ": " + file.errorString());
    }

    bool copy(const QDir& from, const QDir& to, const QString& name)
    {
        return QFile::copy(from.filePath(name), to.filePath(name)) ||
               fails(to.filePath(name) + ": can't be written");
    }

    bool copy_pictures(manual::language spoken, const QDir& to)
    {
        const QDir from(sources.filePath(manual::folder_of(spoken)));
        pictures = from.entryList({"*.png"}, QDir::Files, QDir::Name);
        for (const QString& picture : qAsConst(pictures))
            if (!copy(from, to, picture)) return false;
        return true;
    }

    bool empty_folder(const QString& name, QDir& folder)
    {
        folder = QDir(target.filePath(name));
        folder.removeRecursively();
        return target.mkpath(name) || fails(folder.path() + ": can't be made");
    }

    bool set_pages(manual::language spoken)
    {
        const manual::contents contents = manual::read_contents(sources, spoken);
        if (!contents.fault.isEmpty()) return fails(contents.fault);
        const QString folder = sources.filePath(manual::folder_of(spoken));
        pages.clear();
        for (const manual::page& page : contents.pages) {
            if (!run(markdown_program, {"--unsafe", "-e", "table", page.name + ".md"}, folder))
                return false;
            pages.append(manual::finish_page(page, QString::fromUtf8(output)));
        }
        return true;
    }

    bool write_browser_pages(manual::language spoken)
    {
        QDir folder;
        if (!empty_folder(manual::folder_of(spoken), folder)) return false;
        const QString frame = manual::read_text(sources.filePath("page.html"));
        if (frame.isEmpty()) return fails("page.html: can't be read");
        for (int i = 0; i < pages.size(); ++i) {
            const QString html = manual::browser_page(frame, pages, i, spoken);
            if (!write(folder, pages[i].source.name + ".html", html.toUtf8())) return false;
        }
        return copy(sources, folder, "style.css") && copy_pictures(spoken, folder);
    }

    bool write_leading_pages(manual::language spoken)
    {
        const QDir folder(target.filePath(manual::folder_of(spoken)));
        const help_table table = help_table::of_the_program();
        for (const QString& key : table.keys()) {
            const QString place = table.page_of(key);
            if (!place.contains('#')) continue;
            if (!write(folder,
                       manual::name_of_leading_page(place),
                       manual::leading_page(place).toUtf8()))
                return false;
        }
        return true;
    }

    bool write_chm(manual::language spoken)
    {
        const QString name = spoken == manual::language::german ? "zarvelloD.chm" : "zarvelloE.chm";
        QDir folder;
        if (!empty_folder("chm_" + manual::folder_of(spoken), folder)) return false;
        if (!copy(sources, folder, "style_chm.css") || !copy_pictures(spoken, folder)) return false;
        QStringList files = pictures;
        files.append("style_chm.css");
        for (const manual::set_page& page : qAsConst(pages)) {
            files.append(page.source.name + ".html");
            if (!write(folder, files.last(), manual::chm_page(page, spoken))) return false;
        }
        const QByteArray project = manual::chm_project(name, files, pages.first().source, spoken);
        return write(folder, "zarvello.hhc", manual::chm_contents(pages)) &&
               write(folder, "zarvello.hhk", manual::chm_index(pages)) &&
               write(folder, "zarvello.hhp", project) && compile_chm(folder, name);
    }

    bool compile_chm(const QDir& folder, const QString& name)
    {
        if (!run(chm_program, {"--no-html-scan", "zarvello.hhp"}, folder.path())) return false;
        QFile::remove(target.filePath(name));
        return QFile::rename(folder.filePath(name), target.filePath(name)) ||
               fails(name + " was not made:\n" + QString::fromUtf8(output));
    }

    QDir sources;
    QDir target;
    QString markdown_program;
    QString chm_program;
    QVector<manual::set_page> pages; // of the language that is built
    QStringList pictures;            // of that language
    QByteArray output;               // of the program that ran last
    QString fault;
};

} // namespace

int main(int argc, char** argv)
{
    const QCoreApplication application(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    if (arguments.size() != 5) {
        QTextStream(stderr) << "usage: zarvello_build_help SOURCES TARGET MARKDOWN_PROGRAM "
                               "CHM_PROGRAM\n";
        return 2;
    }
    help_builder builder(arguments[1], arguments[2], arguments[3], arguments[4]);
    if (builder.build(manual::language::german) && builder.build(manual::language::english))
        return 0;
    QTextStream(stderr) << "zarvello_build_help: " << builder.told_fault() << '\n';
    return 1;
}
