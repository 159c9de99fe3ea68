#ifndef BET_TARGET_H
#define BET_TARGET_H

#include "jetons.h"

/**
 * The place or announcement that a word of a system names, looked up once. The word itself is
 * kept for the error that a wrong one draws when it is used.
 */
struct bet_target {
    jetons::jeton_names jeton = jetons::NO_JETON;
    jetons::ext_jeton_names ext_jeton = jetons::NO_EXT_JETON;
    QString text;

    bool is_jeton() const { return jeton != jetons::NO_JETON; }
    bool is_known() const { return is_jeton() || ext_jeton != jetons::NO_EXT_JETON; }
};

/// Looks a word up: first among the places, then among the announcements. Case counts.
bet_target read_bet_target(const QString& text);

#endif // BET_TARGET_H
