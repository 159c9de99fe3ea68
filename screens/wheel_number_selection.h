#ifndef WHEEL_NUMBER_SELECTION_H
#define WHEEL_NUMBER_SELECTION_H

#include "dialog_layout_control.h"
#include "game_types.h"

#include <vector>

class numberStorage;
class pocket_button;
class QLabel;
class QPushButton;

/**
 * Asks for the number of the next coup: a button for each pocket around the wheel, "PB_0" to
 * "PB_36" and on the American table "PB_37". Closed without a choice it changes nothing.
 */
class wheel_number_selection : public dialog_layout_control
{
    Q_OBJECT

public:
    /// The number goes to the source; source and settings must outlive the dialog.
    wheel_number_selection(numberStorage& numbers,
                           const setting& settings,
                           QWidget* parent = nullptr);

    /// Tells whether a manual number waits already. If so, it is shown and can be taken back.
    void set_manual_is_set(bool is_set);

public slots:
    /// As the base says, and the pockets become those of the table in play.
    void modify_window_based_on_scale() override;

protected:
    void paintEvent(QPaintEvent* event) override;
    void showEvent(QShowEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    void show_texts();
    void build_pockets();
    void match_table_form();
    void arrange();
    void mark_manual_number();
    void choose(const QString& button_name);
    void clear_number();

    numberStorage& number_storage;
    const setting& game_setting;
    table_form built_form = table_form::french;
    bool manual_is_set = false;
    std::vector<pocket_button*> pockets; // clockwise, from zero
    QLabel* const LB_manual_number;
    QPushButton* const PB_clear_selection_number;
    QPushButton* const PB_cancel;
};

#endif // WHEEL_NUMBER_SELECTION_H
