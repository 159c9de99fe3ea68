#ifndef COMPLETION_WORDS_H
#define COMPLETION_WORDS_H

#include <QStringList>

class system_pattern;

/// The words that the editor offers while a system is written: sections, keywords, the beginnings
/// of the arguments, and the jetons of one table, sorted.
/// @param form  value of `table_form`
QStringList completion_words(const system_pattern& patterns, int form);

#endif // COMPLETION_WORDS_H
