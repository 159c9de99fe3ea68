#include "setting.h"

#include <QSettings>

#include <algorithm>
#include <array>
#include <optional>
#include <type_traits>
#include <variant>

// What stands for a value out of its range.

static int seconds_or_none(int value)
{
    return value < 1000 ? 0 : value;
}

static int zero_or_one(int value)
{
    return value == 1 ? 1 : 0;
}

static int zero_or_else_one(int value)
{
    return value == 0 ? 0 : 1;
}

static int known_language(int value)
{
    constexpr int english = general_setting::LANG_ENGLISH;
    return value == general_setting::LANG_AUTO || value == general_setting::LANG_GERMAN ? value
                                                                                        : english;
}

static int at_least_zero(int value)
{
    return std::max(value, 0);
}

static int known_piece_size(int value)
{
    constexpr std::array sizes = {2, 5, 10, 20, 25, 50, 100, 500};
    const bool is_known = std::find(sizes.begin(), sizes.end(), value) != sizes.end();
    return is_known ? value : sizes.front();
}

/// -1 stays: the step is not decided. Everything below it is no reduction, as 0.
static int scale_step(int value)
{
    return value < -1 ? 0 : std::min(value, 3);
}

template <int last>
static int index_up_to(int value)
{
    return value >= 0 && value <= last ? value : 0;
}

namespace
{

using value_place = std::variant<int setting_values::*,
                                 bool setting_values::*,
                                 QString setting_values::*,
                                 QDate setting_values::*>;

using member = setting_values; // short, for the table below

/// A key of the settings file.
struct setting_row {
    const char* key;
    value_place place;
    int (*counts_as)(int) = nullptr; // numbers only: what stands for a value out of its range
};

// clang-format off
const setting_row setting_rows[] = {
    {"s_balkenzeit",                   &member::s_balkenzeit,                   seconds_or_none},
    {"s_language",                     &member::s_language,                     known_language},
    {"s_language_term",                &member::s_language_term,                zero_or_else_one},
    {"s_start_jetons",                 &member::s_start_jetons,                 at_least_zero},
    {"s_setzart",                      &member::s_setzart,                      zero_or_one},
    {"s_setzart_real_size",            &member::s_setzart_real_size,            known_piece_size},
    {"s_wheel_disabled",               &member::s_wheel_disabled},
    {"s_su_shortthrow_activ",          &member::s_su_shortthrow_activ},
    {"s_jeton_to_win",                 &member::s_jeton_to_win},
    {"s_tip_def_index",                &member::s_tip_def_index,                index_up_to<2>},
    {"s_table_form",                   &member::s_table_form,                   zero_or_one},
    {"s_pr_color",                     &member::s_pr_color},
    {"s_pr_landscape",                 &member::s_pr_landscape},
    {"s_hand_change_sign_index",       &member::s_hand_change_sign_index,       index_up_to<5>},
    {"s_scr_res_factor",               &member::s_scr_res_factor,               scale_step},
    {"s_year_statistic",               &member::s_year_statistic},
    {"s_use_history_text_files",       &member::s_use_history_text_files},
    {"s_use_history_throws_startup",   &member::s_use_history_throws_startup},
    {"s_load_history_stat_type_index", &member::s_load_history_stat_type_index, index_up_to<3>},
    {"s_history_days_count",           &member::s_history_days_count},
    {"s_history_year_index",           &member::s_history_year_index},
    {"s_history_fix_date",             &member::s_history_fix_date},
    {"s_add_lofil_throw_to_year_stat", &member::s_add_lofil_throw_to_year_stat},
    {"s_single_color_timebar",         &member::s_single_color_timebar},
    {"s_editor_font",                  &member::s_editor_font},
    {"s_editor_font_size",             &member::s_editor_font_size},
    {"s_user_sys_file_1",              &member::s_user_sys_file_1},
    {"s_user_sys_file_2",              &member::s_user_sys_file_2},
    {"s_user_sys_file_3",              &member::s_user_sys_file_3},
    {"s_user_sys_file_4",              &member::s_user_sys_file_4},
    {"s_user_out_file_1",              &member::s_user_out_file_1},
    {"s_user_out_file_2",              &member::s_user_out_file_2},
    {"s_user_out_file_3",              &member::s_user_out_file_3},
    {"s_user_out_file_4",              &member::s_user_out_file_4},
    {"s_zero_handling",                &member::s_zero_handling},
    {"s_auto_update_check",            &member::s_auto_update_check},
    {"s_classic_dolly",                &member::s_classic_dolly},
    {"s_activation_coldhot_display",   &member::s_activation_coldhot_display},
};
// clang-format on

} // namespace

/// Null for a text that is no key.
static const setting_row* row_of(const QString& key)
{
    for (const setting_row& row : setting_rows) {
        if (key == QLatin1String(row.key)) return &row;
    }
    return nullptr;
}

// How a value is understood; empty when it can't be.

static std::optional<int> understand(const QVariant& value, int /*kind*/)
{
    bool is_number = false;
    const int number = value.toString().toInt(&is_number);
    return is_number ? std::optional(number) : std::nullopt;
}

static std::optional<bool> understand(const QVariant& value, bool /*kind*/)
{
    const QString word = value.toString().trimmed().toLower();
    if (word == QLatin1String("true") || word == QLatin1String("1")) return true;
    if (word == QLatin1String("false") || word == QLatin1String("0")) return false;
    return std::nullopt;
}

/// A text with commas that was written by hand without quotes arrives as a list.
static std::optional<QString> understand(const QVariant& value, const QString& /*kind*/)
{
    return value.toStringList().join(QLatin1Char(','));
}

static std::optional<QDate> understand(const QVariant& value, const QDate& /*kind*/)
{
    const QDate date = value.toDate();
    return date.isValid() ? std::optional(date) : std::nullopt;
}

static QString kind_name(int /*kind*/)
{
    return QStringLiteral("a whole number");
}

static QString kind_name(bool /*kind*/)
{
    return QStringLiteral("true, false, 1 or 0");
}

static QString kind_name(const QString& /*kind*/)
{
    return QStringLiteral("a text");
}

static QString kind_name(const QDate& /*kind*/)
{
    return QStringLiteral("a date such as 2000-01-31");
}

/// Puts a value into its place; false if it can't be understood.
static bool fill(setting_values& values, const setting_row& row, const QVariant& value)
{
    if (!value.isValid()) return false;
    const auto fill_place = [&](auto place) {
        const auto understood = understand(value, values.*place);
        if (!understood) return false;
        values.*place = *understood;
        if constexpr (std::is_same_v<decltype(place), int setting_values::*>) {
            if (row.counts_as) values.*place = row.counts_as(values.*place);
        }
        return true;
    };
    return std::visit(fill_place, row.place);
}

static QVariant value_for_file(const setting_values& values, const setting_row& row)
{
    if (const auto* place = std::get_if<QDate setting_values::*>(&row.place)) {
        return (values.**place).toString(Qt::ISODate);
    }
    return std::visit([&](auto place) { return QVariant(values.*place); }, row.place);
}

int scale_factor_for_screen(int width, int height)
{
    if (width >= 1485 && height > 860) return 0;
    if (width >= 1337 && height > 779) return 1;
    if (width >= 1337 && height < 699) return 3;
    if (width >= 1337) return 2;
    if (width >= 1188 && height < 699) return 3;
    if (width >= 1188) return 2;
    return 3;
}

setting::setting(QObject* parent)
    : QObject(parent)
{
}

setting& setting::instance()
{
    static setting shared;
    return shared;
}

bool setting::read_settings(const QString& file, const QSize& screen)
{
    QSettings stored(file, QSettings::IniFormat);
    stored.setIniCodec("UTF-8");
    stored.beginGroup(QStringLiteral("option"));
    setting_values values;
    for (const setting_row& row : setting_rows) {
        const QString key = QLatin1String(row.key);
        if (stored.contains(key)) fill(values, row, stored.value(key));
    }
    stored.endGroup();
    if (values.s_scr_res_factor == -1 && screen.isValid()) {
        values.s_scr_res_factor = scale_factor_for_screen(screen.width(), screen.height());
    }
    take_over(values);
    emit ini_parameter_changend();
    return stored.status() == QSettings::NoError;
}

bool setting::write_settings(const QString& file) const
{
    QSettings stored(file, QSettings::IniFormat);
    stored.setIniCodec("UTF-8");
    stored.beginGroup(QStringLiteral("option"));
    for (const setting_row& row : setting_rows) {
        stored.setValue(QLatin1String(row.key), value_for_file(current, row));
    }
    stored.endGroup();
    stored.sync();
    return stored.status() == QSettings::NoError;
}

QString setting::set_value(const QString& key, const QString& text)
{
    const setting_row* const row = row_of(key);
    if (!row) return QStringLiteral("unknown setting \"%1\"").arg(key);

    setting_values values = current;
    if (!fill(values, *row, text)) {
        const QString wanted =
            std::visit([&](auto place) { return kind_name(values.*place); }, row->place);
        return QStringLiteral("setting \"%1\" needs %2, not \"%3\"").arg(key, wanted, text);
    }
    take_over(values);
    return {};
}

QStringList setting::keys()
{
    QStringList names;
    for (const setting_row& row : setting_rows)
        names.append(QLatin1String(row.key));
    return names;
}

qint64 setting::start_capital() const
{
    const bool is_real_mode = current.s_setzart == 1;
    return is_real_mode ? qint64{current.s_start_jetons} * current.s_setzart_real_size
                        : current.s_start_jetons;
}

double setting::scale_reduction() const
{
    return current.s_scr_res_factor < 1 ? 0.0 : current.s_scr_res_factor / 10.0;
}

// The files of the players, by player.
static constexpr std::array sys_file_places = {
    &setting_values::s_user_sys_file_1,
    &setting_values::s_user_sys_file_2,
    &setting_values::s_user_sys_file_3,
    &setting_values::s_user_sys_file_4,
};
static constexpr std::array out_file_places = {
    &setting_values::s_user_out_file_1,
    &setting_values::s_user_out_file_2,
    &setting_values::s_user_out_file_3,
    &setting_values::s_user_out_file_4,
};

static bool is_player(general_player::player_names player)
{
    return player >= general_player::PLAYER_1 && player <= general_player::PLAYER_4;
}

QString setting::s_user_sys_file(general_player::player_names player) const
{
    return is_player(player) ? current.*sys_file_places[player] : QString();
}

void setting::set_s_user_sys_file(general_player::player_names player, const QString& path)
{
    if (is_player(player)) current.*sys_file_places[player] = path;
}

QString setting::s_user_out_file(general_player::player_names player) const
{
    return is_player(player) ? current.*out_file_places[player] : QString();
}

void setting::set_s_user_out_file(general_player::player_names player, const QString& path)
{
    if (is_player(player)) current.*out_file_places[player] = path;
}

void setting::set_s_history_fix_date(const QDate& value)
{
    current.s_history_fix_date = value.isValid() ? value : setting_values().s_history_fix_date;
}

void setting::set_number(int setting_values::*place, int value)
{
    setting_values values = current;
    for (const setting_row& row : setting_rows) {
        if (row.place == value_place(place)) fill(values, row, value);
    }
    take_over(values);
}

void setting::take_over(const setting_values& values)
{
    const bool is_new_form = values.s_table_form != current.s_table_form;
    current = values;
    if (is_new_form) emit table_form_changend();
}
