#include "program_language.h"

using general_setting::setting_language;

program_language::program_language(const QString& folder,
                                   const QString& system_locale,
                                   QObject* parent)
    : QObject(parent)
    , translations(folder)
    , locale(system_locale)
{
}

void program_language::set_game_language(setting_language language)
{
    const setting_language wanted = resolved(language);
    if (shown == wanted) return;
    shown = wanted;
    QCoreApplication::removeTranslator(&program_texts);
    QCoreApplication::removeTranslator(&qt_texts);
    if (wanted == general_setting::LANG_ENGLISH) {
        install(program_texts, translations + QStringLiteral("/trans_en.qm"));
    } else {
        install(qt_texts, translations + QStringLiteral("/qtbase_de.qm"));
    }
}

setting_language program_language::resolved(setting_language language) const
{
    if (language != general_setting::LANG_AUTO) return language;
    return locale.startsWith(QLatin1String("de")) ? general_setting::LANG_GERMAN
                                                  : general_setting::LANG_ENGLISH;
}

void program_language::install(QTranslator& texts, const QString& file)
{
    if (texts.load(file)) QCoreApplication::installTranslator(&texts);
}
