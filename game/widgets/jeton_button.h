#ifndef JETON_BUTTON_H
#define JETON_BUTTON_H

#include "players_control.h"

#include <QPushButton>
#include <QTimer>

/**
 * The jetons of one player on one place, as they lie on the screen: a picture in the player's
 * colour with the count of pieces on it. A view only: a press asks for a change and never makes
 * one. Named "jeton_", the player from 1, "_" and the place, such as "jeton_1_PL07".
 */
class jeton_button : public QPushButton
{
    Q_OBJECT

public:
    using jeton_info = ::jeton_info;

    static constexpr int full_size = 31; ///< side of the square, unscaled

    jeton_button(const jeton_info& info, QWidget* parent);

    const jeton_info& info() const { return shown; }

    /// Shows another worth and count; the player and the place stay.
    void set_stack(int value, int count);

    /// Moves the jeton to its place on a table and gives it its size.
    /// @param reduction  0.0 (full size) to 0.3
    void place_on(table_form form, double reduction);

    /// Ends the repeating of a held mouse button.
    void stop_repeat();

signals:
    /// One more piece is wanted, at the press of the left button and every 200 ms while it is
    /// held; the count of the info is 1.
    void request_increaseJeton(jeton_button::jeton_info info);

    /// One piece less is wanted, by the right button in the same way.
    void request_decreaseJeton(jeton_button::jeton_info info);

protected:
    bool event(QEvent* event) override;
    void changeEvent(QEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void hideEvent(QHideEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    void tell_long_count();
    void tell_name(); ///< to a reader of the screen
    jeton_info one_piece() const;
    void ask_for_more() { emit request_increaseJeton(one_piece()); }
    void ask_for_less() { emit request_decreaseJeton(one_piece()); }

    jeton_info shown;
    QTimer increase_timer{this};
    QTimer decrease_timer{this};
    QFont count_font;
    int fitted_digits = 0; // for which count and size the font was chosen; 0: none yet
    int fitted_side = 0;
};

#endif // JETON_BUTTON_H
