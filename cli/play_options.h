#ifndef PLAY_OPTIONS_H
#define PLAY_OPTIONS_H

#include "play_request.h"

class QCommandLineParser;

/// The options of the command `play`.
namespace play_options
{

void declare(QCommandLineParser& parser);

/// Fills a request from parsed options. Returns what is wrong with them, or an empty text.
QString read(const QCommandLineParser& parser, play_request& request);

/// Reads "normal", "fix:N", "random1:A-B" or "random2:ATTACKS,LENGTH" into the start mode.
/// Returns false for anything else.
bool read_start(const QString& text, load_file_settings& numbers);

} // namespace play_options

#endif // PLAY_OPTIONS_H
