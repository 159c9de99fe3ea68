#ifndef OPTIONS_H
#define OPTIONS_H

#include "game_types.h"

#include <QDialog>
#include <QSet>
#include <QStringList>

#include <functional>
#include <memory>
#include <vector>

class QAbstractButton;
class QComboBox;
class QDateEdit;
class QRadioButton;
class QSlider;
class QSpinBox;
class setting;

namespace Ui
{
class Options;
}

/**
 * The dialog "Einstellungen", in which the user changes the settings. It is filled once, when it
 * is built. Accepting copies the widgets to the settings and writes the file; when the file can't
 * be written the user is told and the values stay in force.
 *
 * A stored value that a widget can't show (7.5 seconds, 0 days, a capital above a million) stays
 * as it is until the user changes that widget: opening and accepting alone changes nothing.
 */
class Options : public QDialog
{
    Q_OBJECT

public:
    /// Gives the place where a super short game keeps the user's "Superkurzwurf aktivieren" while
    /// it has borrowed the setting itself; null while no such game is on.
    using short_throw_place = std::function<bool*()>;

    /// @param years  the years that have a permanence, the newest first; may be empty
    /// @param kept_short_throw  asked when the dialog is filled and again when it is accepted,
    ///                          since the game goes on meanwhile; none: the setting is used
    Options(setting& game_settings,
            const QStringList& years,
            short_throw_place kept_short_throw = {},
            QWidget* parent = nullptr);
    ~Options() override;

    /// Takes a language back that was only tried, and closes the dialog.
    void reject() override;

signals:
    /// The settings hold new values.
    void ini_value_changend();

    /// The language to show from now on: a choice that is tried, or the stored one on reject.
    void setting_language_changend(general_setting::setting_language language);

protected:
    void showEvent(QShowEvent* event) override;
    void changeEvent(QEvent* event) override;

private slots:
    void on_RB_bet_time_disable_toggled(bool checked);
    void on_RB_setzart_real_clicked(bool);
    void on_RB_setzart_piece_clicked(bool);
    void on_CB_load_history_file_clicked(bool checked);
    void on_buttonBox_accepted();
    void on_buttonBox_rejected();

private:
    void bind_general_options();
    void bind_player_options();
    void bind_output_options();
    void bind_statistic_options(const QStringList& years);
    void bind_bet_time();
    void keep_column_widths();
    void bind_short_throw();
    void bind_piece_size();

    // Each fills a widget from a setting and notes how to copy it back.
    void
    bind(QAbstractButton* box, bool (setting::*value)() const, void (setting::*set_value)(bool));
    void bind(QSpinBox* box, int (setting::*value)() const, void (setting::*set_value)(int));
    void bind(QSlider* slider, int (setting::*value)() const, void (setting::*set_value)(int));
    void bind(QComboBox* box, int (setting::*value)() const, void (setting::*set_value)(int));
    void bind(QDateEdit* field,
              QDate (setting::*value)() const,
              void (setting::*set_value)(const QDate&));
    template <typename value_type>
    void bind_choice(const QList<QRadioButton*>& buttons,
                     value_type (setting::*value)() const,
                     void (setting::*set_value)(value_type));

    void touch_when_chosen(QRadioButton* button, QWidget* shown_beside);
    void try_language_when_chosen(QRadioButton* button, general_setting::setting_language language);
    void fit_to_screen();
    bool write_file();

    std::unique_ptr<Ui::Options> ui;
    setting& settings;
    short_throw_place short_throw;
    std::vector<std::function<void()>> copies; // of the widgets to the settings
    QSet<const QWidget*> touched;              // changed by the user since they were filled
};

#endif // OPTIONS_H
