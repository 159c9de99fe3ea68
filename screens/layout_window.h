#ifndef LAYOUT_WINDOW_H
#define LAYOUT_WINDOW_H

#include "game_types.h"
#include "jetons.h"

#include <QObject>
#include <QPixmap>
#include <QRect>

class QLabel;
class QMainWindow;
class QTimer;
class StatusProgressBar;
class setting;

namespace Ui
{
class MainWindow;
}

/**
 * Places and scales everything on the table's window, and draws the marks on the table: the
 * selection under the mouse, the hit of the last number, the dolly.
 *
 * Menu bar and status bar keep their height at every scale; all else follows the one rule.
 */
class layout_Window : public QObject
{
    Q_OBJECT

public:
    /// All of them must outlive the object.
    layout_Window(QMainWindow& window,
                  Ui::MainWindow& form,
                  StatusProgressBar& time_bar,
                  const setting& settings,
                  QObject* parent = nullptr);

    /// Builds the window anew for a scale reduction and for the table form of the settings.
    /// Range: 0.0 to 0.3.
    void rebuild(double new_reduction);

    /// Takes all marks off the table.
    void hide_marks();

public slots:
    /// Lights the fields of a chance for two seconds.
    void draw_selection_based_on_jeton_type(jetons::jeton_names jeton);

    /// Lights the fields of a sector or a finale for two seconds.
    void draw_selection_for_special_jetons(jetons::ext_jeton_names ext_jeton);

    /// Marks the field of a number and lets the mark blink five times.
    /// Range: 0 to 37; anything else shows no mark.
    void draw_dolly_based_on_jeton_type(int plein_number);

    /// The next step of the blinking mark: 500 ms on, 250 ms off.
    void hit_max_blink_timeout();

    /// Hides the selection.
    void display_timer_timeout();

signals:
    /// The wheel is to be built anew at a place of the central widget.
    void recreate_wheel(QRect place, double reduction);
    /// The same for the panels of the players and for the figures of the selected player.
    void recreate_player_status_table(QRect place, double reduction);
    void recreate_player_statistik_table(QRect place, double reduction);
    /// The size of the whole window, menu bar and status bar included. Unit: pixels.
    void set_main_window_size(int width, int height);

private:
    void style_bars();
    void place_labels();
    void place_last_numbers();
    void place_buttons();
    void show_table_picture();
    void show_selection(const QString& path, const QPoint& place);
    void show_picture(QLabel& label, const QString& path, const QRect& place);
    QString hit_picture(int plein_number) const;
    QRect scaled_rect(const QRect& rect) const;
    QPoint scaled_point(int x, int y) const;

    QMainWindow& main_window;
    Ui::MainWindow& ui;
    StatusProgressBar& bar;
    const setting& game_setting;
    double reduction = 0.0;
    table_form shown_form = table_form::french; // of the table picture
    QPixmap selection_pixmap;
    QString selection_path;
    QPixmap hit_pixmap;
    QPixmap dolly_pixmap;
    QTimer* display_timer;
    QTimer* hit_blink_timer;
    int hit_blink_count = 0;
};

#endif // LAYOUT_WINDOW_H
