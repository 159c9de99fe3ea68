#include "determine_history_files_and_date.h"

#include <QDebug>
#include <QDir>
#include <QRegularExpression>

QStringList permanence_years()
{
    static const QRegularExpression name(QStringLiteral("^Stat(\\d{4})\\.log$"));
    QStringList years;
    const QStringList files =
        QDir(QStringLiteral(".")).entryList({QStringLiteral("Stat*.log")}, QDir::Files, QDir::Name);
    for (const QString& file : files) {
        const QRegularExpressionMatch match = name.match(file);
        if (match.hasMatch()) years.prepend(match.captured(1));
    }
    return years;
}

static QString path_of_year(const QString& year)
{
    return QStringLiteral("./Stat") + year + QStringLiteral(".log");
}

static QDate first_day_of(const QString& year)
{
    return {year.toInt(), 1, 1};
}

static history_files no_year_chosen(const QStringList& years)
{
    if (!years.isEmpty()) return {{}, first_day_of(years.first())};
    qDebug() << "WARNUNG HISTORY INDEX = -1";
    return {{}, QDate(2017, 1, 1)};
}

static history_files files_from_year(int index, const QDate& date_before)
{
    const QStringList years = permanence_years();
    if (index < 0) return no_year_chosen(years);
    if (index >= years.size()) return {{}, date_before};
    history_files found{{}, first_day_of(years.at(index))};
    for (int i = index; i >= 0; --i)
        found.files.append(path_of_year(years.at(i)));
    return found;
}

static history_files files_from_date(const QDate& date)
{
    history_files found{{}, date};
    const QStringList years = permanence_years();
    for (const QString& year : years) {
        if (year.toInt() >= date.year()) found.files.prepend(path_of_year(year));
    }
    return found;
}

determine_history_files_and_date::determine_history_files_and_date(const QDate& present_day,
                                                                   QObject* parent)
    : QObject(parent)
    , today(present_day)
{
}

history_files determine_history_files_and_date::determine(const history_choice& choice,
                                                          const QDate& date_before) const
{
    switch (choice.rule) {
    case history_rule::one_day:
        return files_from_date(today.addDays(-1));
    case history_rule::last_days:
        return files_from_date(today.addDays(-choice.days));
    case history_rule::from_date:
        return files_from_date(choice.fix_date);
    case history_rule::single_file:
        return {{choice.single_path}, QDate(1970, 1, 1)};
    default:
        return files_from_year(choice.year_index, date_before);
    }
}
