#ifndef DETERMINE_HISTORY_FILES_AND_DATE_H
#define DETERMINE_HISTORY_FILES_AND_DATE_H

#include <QDate>
#include <QObject>
#include <QStringList>

/// The years whose permanence lies in the working directory, the newest first. A file whose name
/// has anything but four digits between "Stat" and ".log" is none.
QStringList permanence_years();

/// Which rule picks the files of a history load.
namespace history_rule
{

constexpr int from_year = 0;
constexpr int one_day = 1;
constexpr int last_days = 2;
constexpr int from_date = 3;
constexpr int single_file = 4;

} // namespace history_rule

/// What the user has chosen to load.
struct history_choice {
    int rule = history_rule::from_year; ///< anything unknown counts as `from_year`
    int year_index = 0;                 ///< place in `permanence_years()`, -1 for none chosen
    int days = 0;                       ///< of `last_days`
    QDate fix_date;                     ///< of `from_date`
    QString single_path;                ///< of `single_file`
};

/// What is to be read.
struct history_files {
    QStringList files; ///< in the order in which they are read
    QDate first_date;  ///< blocks that began before this day are left out
};

/**
 * Turns the user's choice into the year files to read and the first day of interest.
 */
class determine_history_files_and_date : public QObject
{
    Q_OBJECT

public:
    /// @param present_day  the day from which days are counted back
    explicit determine_history_files_and_date(const QDate& present_day = QDate::currentDate(),
                                              QObject* parent = nullptr);

    /// @param date_before  the first date that stays where the choice gives none: a year that
    ///                     isn't there
    history_files determine(const history_choice& choice, const QDate& date_before = {}) const;

private:
    QDate today;
};

#endif // DETERMINE_HISTORY_FILES_AND_DATE_H
