#include "jetons.h"

#include "game_types.h"

#include <QMetaEnum>
#include <QVector>

namespace
{

/// The keys of one registered enumeration in both directions. Asking the meta object itself walks
/// over all keys each time.
struct key_index {
    explicit key_index(const QMetaEnum& meta_enum)
    {
        for (int i = 0; i < meta_enum.keyCount(); ++i) {
            const QString key = QString::fromLatin1(meta_enum.key(i));
            values.insert(key, meta_enum.value(i));
            keys.insert(meta_enum.value(i), key);
        }
    }

    QHash<QString, int> values;
    QHash<int, QString> keys;
};

const key_index& jeton_index()
{
    static const key_index index(QMetaEnum::fromType<jetons::jeton_names>());
    return index;
}

const key_index& ext_jeton_index()
{
    static const key_index index(QMetaEnum::fromType<jetons::ext_jeton_names>());
    return index;
}

QString number_text(const QString& kind, int number)
{
    const QString digits =
        number == number_code::double_zero ? QStringLiteral("00") : QString::number(number);
    return kind + QLatin1Char(' ') + digits;
}

void add_plein_texts(QHash<int, QString>& texts)
{
    for (int number = 0; number < number_code::number_count; ++number) {
        texts.insert(jetons::PL00 + number, number_text(QStringLiteral("PL"), number));
    }
}

void add_cheval_texts(QHash<int, QString>& texts)
{
    const QString pair = QStringLiteral("CH %1/%2");
    for (int number = 1; number <= 3; ++number) {
        texts.insert(jetons::CH01 + number - 1, pair.arg(0).arg(number));
    }
    for (int number = 1; number <= 33; ++number) {
        texts.insert(jetons::CH04 + number - 1, pair.arg(number).arg(number + 3));
    }
    for (int street = 0; street < 12; ++street) {
        const int first = 1 + 3 * street;
        const int jeton = jetons::CH37 + 2 * street;
        texts.insert(jeton, pair.arg(first).arg(first + 1));
        texts.insert(jeton + 1, pair.arg(first + 1).arg(first + 2));
    }
    texts.insert(jetons::CH61, QStringLiteral("CH 0/00"));
    texts.insert(jetons::CH62, QStringLiteral("CH 00/2"));
    texts.insert(jetons::CH63, QStringLiteral("CH 00/3"));
}

void add_transversale_texts(QHash<int, QString>& texts)
{
    texts.insert(jetons::TP01, QStringLiteral("TP 0/1/2"));
    texts.insert(jetons::TP02, QStringLiteral("TP 0/2/3"));
    texts.insert(jetons::TP15, QStringLiteral("TP 0/00/2"));
    texts.insert(jetons::TP16, QStringLiteral("TP 00/2/3"));
    for (int street = 0; street < 12; ++street) {
        const int first = 1 + 3 * street;
        texts.insert(jetons::TP03 + street,
                     QStringLiteral("TP %1/%2/%3").arg(first).arg(first + 1).arg(first + 2));
    }
    for (int street = 0; street < 11; ++street) {
        const int first = 1 + 3 * street;
        texts.insert(jetons::TS01 + street, QStringLiteral("TS %1/%2").arg(first).arg(first + 5));
    }
}

void add_carre_texts(QHash<int, QString>& texts)
{
    const QString corners = QStringLiteral("CA %1-%2");
    texts.insert(jetons::CA01, corners.arg(0).arg(3));
    for (int street = 0; street < 11; ++street) {
        const int first = 1 + 3 * street;
        const int jeton = jetons::CA02 + 2 * street;
        texts.insert(jeton, corners.arg(first).arg(first + 4));
        texts.insert(jeton + 1, corners.arg(first + 1).arg(first + 5));
    }
}

void add_outside_texts(QHash<int, QString>& texts)
{
    texts.insert(jetons::EC01, QStringLiteral("EC 1-18"));
    texts.insert(jetons::EC02, QStringLiteral("EC EVEN"));
    texts.insert(jetons::EC03, QStringLiteral("EC RED"));
    texts.insert(jetons::EC04, QStringLiteral("EC BLACK"));
    texts.insert(jetons::EC05, QStringLiteral("EC ODD"));
    texts.insert(jetons::EC06, QStringLiteral("EC 19-36"));
    for (int third = 1; third <= 3; ++third) {
        texts.insert(jetons::KL01 + third - 1, number_text(QStringLiteral("KL"), third));
        texts.insert(jetons::DZ01 + third - 1, number_text(QStringLiteral("DZ"), third));
    }
}

void add_announcement_texts(QHash<int, QString>& texts)
{
    for (int digit = 0; digit <= 9; ++digit) {
        texts.insert(jetons::FI00 + digit, number_text(QStringLiteral("FI"), digit));
    }
    for (const int sector : {jetons::GS, jetons::KS, jetons::OR, jetons::OP, jetons::ZS}) {
        texts.insert(sector, ext_jeton_index().keys.value(sector));
    }
    for (int number = 0; number < number_code::number_count; ++number) {
        texts.insert(jetons::EN00 + number, number_text(QStringLiteral("EN"), number));
        texts.insert(jetons::ZN00 + number, number_text(QStringLiteral("ZN"), number));
        texts.insert(jetons::DN00 + number, number_text(QStringLiteral("DN"), number));
    }
}

} // namespace

jetons::jetons()
{
    add_plein_texts(jeton_texts);
    add_cheval_texts(jeton_texts);
    add_transversale_texts(jeton_texts);
    add_carre_texts(jeton_texts);
    add_outside_texts(jeton_texts);
    add_announcement_texts(ext_jeton_texts);
}

jetons& jetons::instance()
{
    static jetons shared;
    return shared;
}

QString jetons::name(jeton_names jeton)
{
    return jeton_index().keys.value(jeton);
}

QString jetons::name(ext_jeton_names ext_jeton)
{
    return ext_jeton_index().keys.value(ext_jeton);
}

jetons::jeton_names jetons::value_of(const QString& name)
{
    return static_cast<jeton_names>(jeton_index().values.value(name, NO_JETON));
}

jetons::ext_jeton_names jetons::ext_value_of(const QString& name)
{
    return static_cast<ext_jeton_names>(ext_jeton_index().values.value(name, NO_EXT_JETON));
}

QString jetons::display_text(jeton_names jeton) const
{
    return jeton_texts.value(jeton);
}

QString jetons::display_text(ext_jeton_names ext_jeton) const
{
    return ext_jeton_texts.value(ext_jeton);
}
