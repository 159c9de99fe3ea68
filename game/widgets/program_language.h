#ifndef PROGRAM_LANGUAGE_H
#define PROGRAM_LANGUAGE_H

#include "game_types.h"

#include <QCoreApplication>
#include <QLocale>
#include <QObject>
#include <QString>
#include <QTranslator>

#include <optional>

/**
 * The language in which the program shows its texts. It is switched live: every widget gets
 * `QEvent::LanguageChange` and refreshes its texts. The texts in the source are German, so German
 * only needs the translation of Qt's own texts, and English that of ours.
 */
class program_language : public QObject
{
    Q_OBJECT

public:
    /// @param folder  of "trans_en.qm" and "qtbase_de.qm"; a file that is missing is passed over
    /// @param system_locale  name such as "de_AT"; decides when the language is chosen by itself
    explicit program_language(const QString& folder = QCoreApplication::applicationDirPath() +
                                                      QStringLiteral("/resources"),
                              const QString& system_locale = QLocale::system().name(),
                              QObject* parent = nullptr);

    /// The language that is meant: German or English, that of the system for an automatic choice.
    general_setting::setting_language resolved(general_setting::setting_language language) const;

public slots:
    /// Switches the whole program. The language that is shown already is left alone.
    void set_game_language(general_setting::setting_language language);

private:
    static void install(QTranslator& texts, const QString& file);

    QString translations;
    QString locale;
    QTranslator program_texts; // "trans_en.qm"
    QTranslator qt_texts;      // "qtbase_de.qm"
    std::optional<general_setting::setting_language> shown;
};

#endif // PROGRAM_LANGUAGE_H
