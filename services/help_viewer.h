#ifndef HELP_VIEWER_H
#define HELP_VIEWER_H

#include "game_types.h"

#include <QString>
#include <QStringList>
#include <QUrl>

#include <functional>

/**
 * Finds the manual beside the program and opens it as the platform does it: on Windows its help
 * program shows the compiled file; elsewhere the desktop shows the compiled file if it has a
 * program for such files, or else the pages in the browser. A place in the manual is always shown
 * by the browser there, since no desktop passes it on to a help viewer.
 */
class help_viewer
{
public:
    /// What the platform offers; a test brings its own.
    struct platform {
        QString program_folder;                    ///< the manual lies in its folder "resources"
        bool has_help_program = false;             ///< "hh.exe"
        std::function<bool()> shows_compiled_help; ///< the desktop has a program for .chm files
        std::function<bool(const QUrl&)> open_url; ///< hands something over to the desktop
    };

    /// The platform that the program runs on.
    static platform this_platform();

    /// Puts another platform in the place of this one for all viewers made later; a default
    /// constructed one takes it back.
    static void set_platform(platform stand_in);

    /// For the platform that was put in, or else this one.
    help_viewer();

    /// True if the caller is to start "hh.exe" with `help_program_arguments()`.
    bool needs_help_program() const { return offers.has_help_program; }

    /// What "hh.exe" shows.
    /// @param language  German or English
    /// @param page  "page.html" or "page.html#anchor"; empty for the contents
    QStringList help_program_arguments(general_setting::setting_language language,
                                       const QString& page) const;

    /// What the desktop is to show; empty if there is no manual.
    QUrl url_of(general_setting::setting_language language, const QString& page) const;

    /// Has the desktop show the manual. Nothing happens where there is none, or no program for it.
    void open(general_setting::setting_language language, const QString& page) const;

private:
    QUrl page_url(const QString& pages, const QString& page) const;

    platform offers;
};

#endif // HELP_VIEWER_H
