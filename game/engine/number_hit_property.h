#ifndef NUMBER_HIT_PROPERTY_H
#define NUMBER_HIT_PROPERTY_H

#include <QMetaType>

/**
 * All single bets that one number hits: a plain value of 23 ints that travels through queued
 * signals. Every bet field holds a `jetons::jeton_names` value, an unused place `NO_JETON`.
 */
struct number_hit_property {
    int number; ///< 0 to 37
    int ec[3];  ///< even chances, ascending; none for 0 and 00
    int dz;     ///< dozen
    int kl;     ///< column
    int tp[5];  ///< transversales pleines, ascending
    int ts[2];  ///< transversales simples, ascending
    int ca[4];  ///< carrés, ascending
    int ch[5];  ///< chevaux: vertical up, vertical down, then the horizontal ones
    int valid;  ///< 1 when filled from the table, 0 for a number without a record
};

Q_DECLARE_METATYPE(number_hit_property)

#endif // NUMBER_HIT_PROPERTY_H
