#ifndef JETONS_H
#define JETONS_H

#include <QHash>
#include <QObject>
#include <QString>

/**
 * The names of the game: every place of the table that can take a jeton, every announcement,
 * and their texts. The enumerators are the words of the system language.
 */
class jetons : public QObject
{
    Q_OBJECT

public:
    // clang-format off
    /// A place of the table. The values run without a gap; 0 to 162 are the real places.
    enum jeton_names {
        PL00 = 0, PL01, PL02, PL03, PL04, PL05, PL06, PL07, PL08, PL09,
        PL10, PL11, PL12, PL13, PL14, PL15, PL16, PL17, PL18, PL19,
        PL20, PL21, PL22, PL23, PL24, PL25, PL26, PL27, PL28, PL29,
        PL30, PL31, PL32, PL33, PL34, PL35, PL36, PL37,
        CH01 = 38, CH02, CH03, CH04, CH05, CH06, CH07, CH08, CH09, CH10,
        CH11, CH12, CH13, CH14, CH15, CH16, CH17, CH18, CH19, CH20,
        CH21, CH22, CH23, CH24, CH25, CH26, CH27, CH28, CH29, CH30,
        CH31, CH32, CH33, CH34, CH35, CH36, CH37, CH38, CH39, CH40,
        CH41, CH42, CH43, CH44, CH45, CH46, CH47, CH48, CH49, CH50,
        CH51, CH52, CH53, CH54, CH55, CH56, CH57, CH58, CH59, CH60,
        CH61, CH62, CH63,
        TP01 = 101, TP02, TP03, TP04, TP05, TP06, TP07, TP08, TP09, TP10,
        TP11, TP12, TP13, TP14, TP15, TP16,
        TS01 = 117, TS02, TS03, TS04, TS05, TS06, TS07, TS08, TS09, TS10,
        TS11,
        EC01 = 128, EC02, EC03, EC04, EC05, EC06,
        CA01 = 134, CA02, CA03, CA04, CA05, CA06, CA07, CA08, CA09, CA10,
        CA11, CA12, CA13, CA14, CA15, CA16, CA17, CA18, CA19, CA20,
        CA21, CA22, CA23,
        KL01 = 157, KL02, KL03,
        DZ01 = 160, DZ02, DZ03,
        LAST_JN  = 163, ///< count of the real places of the table
        NO_JETON = 164, ///< end mark of lists, result of a failed look-up
        PRIS_EC01 = 165, PRIS_EC02, PRIS_EC03, PRIS_EC04, PRIS_EC05, PRIS_EC06, ///< the even chance in prison
        D_PRIS_EC01 = 171, D_PRIS_EC02, D_PRIS_EC03, D_PRIS_EC04, D_PRIS_EC05, D_PRIS_EC06 ///< the even chance in double prison
    };
    Q_ENUM(jeton_names)

    /// An announcement: a bet that lays out several jetons.
    enum ext_jeton_names {
        FI00 = 0, FI01, FI02, FI03, FI04, FI05, FI06, FI07, FI08, FI09,
        GS = 10, ///< big series
        KS = 11, ///< small series
        OR = 12, ///< orphans à cheval
        OP = 13, ///< orphans en plein
        ZS = 14, ///< zero game
        ENZNDN = 15, ///< separator in front of the neighbour bets
        EN00 = 16, EN01, EN02, EN03, EN04, EN05, EN06, EN07, EN08, EN09,
        EN10, EN11, EN12, EN13, EN14, EN15, EN16, EN17, EN18, EN19,
        EN20, EN21, EN22, EN23, EN24, EN25, EN26, EN27, EN28, EN29,
        EN30, EN31, EN32, EN33, EN34, EN35, EN36, EN37,
        ZN00 = 54, ZN01, ZN02, ZN03, ZN04, ZN05, ZN06, ZN07, ZN08, ZN09,
        ZN10, ZN11, ZN12, ZN13, ZN14, ZN15, ZN16, ZN17, ZN18, ZN19,
        ZN20, ZN21, ZN22, ZN23, ZN24, ZN25, ZN26, ZN27, ZN28, ZN29,
        ZN30, ZN31, ZN32, ZN33, ZN34, ZN35, ZN36, ZN37,
        DN00 = 92, DN01, DN02, DN03, DN04, DN05, DN06, DN07, DN08, DN09,
        DN10, DN11, DN12, DN13, DN14, DN15, DN16, DN17, DN18, DN19,
        DN20, DN21, DN22, DN23, DN24, DN25, DN26, DN27, DN28, DN29,
        DN30, DN31, DN32, DN33, DN34, DN35, DN36, DN37,
        LAST_ext_JN = 130, ///< end of the list
        NO_EXT_JETON = 131 ///< no announcement, result of a failed look-up
    };
    Q_ENUM(ext_jeton_names)
    // clang-format on

    /// The shared object of the program.
    static jetons& instance();

    /// The key of the enumeration, as the system language writes it ("CH15"); empty for a value
    /// that has none.
    static QString name(jeton_names jeton);
    static QString name(ext_jeton_names ext_jeton);

    /// The value of a key. Case counts. Anything that is no key gives `NO_JETON`.
    static jeton_names value_of(const QString& name);

    /// The value of a key. Case counts. Anything that is no key gives `NO_EXT_JETON`.
    static ext_jeton_names ext_value_of(const QString& name);

    /// The text shown to the user ("CH 12/15", "PL 00"); empty for separators, end marks and
    /// prison places.
    QString display_text(jeton_names jeton) const;
    QString display_text(ext_jeton_names ext_jeton) const;

private:
    jetons();

    QHash<int, QString> jeton_texts;     // by jeton_names
    QHash<int, QString> ext_jeton_texts; // by ext_jeton_names
};

#endif // JETONS_H
