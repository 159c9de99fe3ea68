#ifndef STATISTIC_TABLE_WINDOW_H
#define STATISTIC_TABLE_WINDOW_H

#include "game_types.h"
#include "page_export.h"

#include <QDialog>

class QDialogButtonBox;
class QPushButton;

class setting;

/**
 * What the windows with statistic tables have in common: a snapshot of the store, laid out once
 * in the scale of the table, with buttons that print and export it.
 *
 * A derived window builds its form, then its tables, and calls `open_at_full_view()` last.
 */
class statistic_table_window : public QDialog
{
    Q_OBJECT

public:
    /// No window is larger than this at full size; what does not fit is scrolled.
    static constexpr int largest_width = 1600;
    static constexpr int largest_height = 900;

protected:
    /// The font of the window follows the scale.
    /// @param scale_reduction  0.0 (full size) to 0.3
    /// @param settings  must outlive the window
    statistic_table_window(double scale_reduction, const setting& settings, QWidget* parent);

    double reduction() const { return window_reduction; }
    bool is_american_table() const { return form == table_form::american; }
    bool has_american_terms() const { return is_american_term; }

    /// A button "PB_print" in the box, still without text.
    QPushButton* add_print_button(QDialogButtonBox& box);

    /// Prints a picture of the page.
    void print_page(QWidget& page);

    /// Scales the gaps and gives the window the size in which it shows everything without scroll
    /// bars, as far as that is allowed and the screen reaches.
    void open_at_full_view();

private:
    void forget_size_hints();
    void scale_gaps();
    QSize room() const;

    const double window_reduction;
    const setting& print_setting;
    const table_form form;
    const bool is_american_term;
};

#endif // STATISTIC_TABLE_WINDOW_H
