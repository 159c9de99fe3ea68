#include "version_check.h"

#include <QStringList>

static constexpr int longest_version_text = 200;

/// What stands behind a mark; null if it is missing.
static QString behind(const QString& text, const QString& mark)
{
    const int position = text.indexOf(mark);
    return position < 0 ? QString() : text.mid(position + mark.size());
}

QString version_check::version_text(const QString& file)
{
    const QString section = behind(file, QStringLiteral("[V4]"));
    const QString version = behind(section, QStringLiteral("ZvlHaupt =")).trimmed();
    return version.size() > longest_version_text ? QString() : version;
}

std::optional<std::array<int, 3>> version_check::version_numbers(const QString& text)
{
    const QStringList parts = text.mid(1).split(QLatin1Char('.'), Qt::SkipEmptyParts);
    if (parts.size() < 3) return std::nullopt;
    return std::array<int, 3>{parts[0].toInt(), parts[1].toInt(), parts[2].toInt()};
}

bool version_check::is_newer(const QString& remote, const QString& own)
{
    const auto remote_numbers = version_numbers(remote);
    const auto own_numbers = version_numbers(own);
    return remote_numbers && own_numbers && *remote_numbers > *own_numbers;
}
