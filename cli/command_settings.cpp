#include "command_settings.h"

#include "readable_file.h"
#include "setting.h"

QString command_settings::apply(setting& settings, const QString& file, const QStringList& changes)
{
    if (!file.isEmpty()) {
        const QString fault = readable_file::fault_of(file);
        if (!fault.isEmpty()) return fault;
        if (!settings.read_settings(file)) {
            return QStringLiteral("%1: no settings file").arg(file);
        }
    }
    for (const QString& change : changes) {
        const int equals = change.indexOf(QLatin1Char('='));
        if (equals < 1) return QStringLiteral("--set %1: expected KEY=VALUE").arg(change);
        const QString fault = settings.set_value(change.left(equals), change.mid(equals + 1));
        if (!fault.isEmpty()) return QStringLiteral("--set %1: %2").arg(change, fault);
    }
    return {};
}
