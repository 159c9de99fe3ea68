#include "bet_target.h"

bet_target read_bet_target(const QString& text)
{
    bet_target target;
    target.text = text;
    const jetons::jeton_names jeton = jetons::value_of(text);
    if (jeton < jetons::LAST_JN) {
        target.jeton = jeton;
        return target;
    }
    const jetons::ext_jeton_names ext_jeton = jetons::ext_value_of(text);
    if (ext_jeton < jetons::LAST_ext_JN && ext_jeton != jetons::ENZNDN) {
        target.ext_jeton = ext_jeton;
    }
    return target;
}
