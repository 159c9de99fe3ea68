// The settings file: any content gives settings that the program can play with.

#include "fuzz_target.h"
#include "setting.h"
#include "settings_rules.h"

#include <QFile>
#include <QTemporaryDir>

#include <cstdlib>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    static const QTemporaryDir folder;
    const QString path = folder.filePath("zarvello.ini");
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly)) return 0;
    file.write(reinterpret_cast<const char*>(data), static_cast<qint64>(size));
    file.close();

    setting settings;
    settings.read_settings(path, QSize(1280, 720));
    const table_rules rules = rules_of(settings);
    const bool is_playable = rules.piece_value > 0 && rules.staff_piece >= 0 &&
                             rules.staff_piece <= 2 && settings.start_capital() >= 0 &&
                             settings.scale_reduction() >= 0.0 && settings.scale_reduction() <= 0.3;
    if (!is_playable) std::abort();
    return 0;
}
