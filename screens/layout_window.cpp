#include "layout_window.h"

#include "design_geometry.h"
#include "font_fit.h"
#include "pictures.h"
#include "setting.h"
#include "statusprogressbar.h"
#include "ui_mainwindow.h"

#include <QFile>
#include <QFontMetrics>
#include <QTimer>

namespace
{

constexpr int selection_time = 2000; // ms
constexpr int mark_shown_time = 500;
constexpr int mark_hidden_time = 250;
constexpr int mark_blinks = 5;

// Sectors and finals are shown by one overlay over all numbers.
constexpr int overlay_x = 90;
constexpr int overlay_y = 301;

// Font sizes in pixels of the full-size design.
constexpr int button_font = 12;
constexpr int number_font = 19;
constexpr int text_font = 15;

constexpr int menu_rim = 1; // above and below an entry of the menu bar

const char* const button_style = R"(
QPushButton {
    color: rgb(246, 238, 214);
    background: qlineargradient(x1:0, y1:0, x2:0, y2:1,
        stop:0 rgb(122, 38, 34), stop:0.5 rgb(96, 24, 22), stop:1 rgb(72, 14, 14));
    border: 1px solid rgb(201, 168, 92);
    border-radius: 6px;
}
QPushButton:hover { background: rgb(136, 46, 40); }
QPushButton:pressed, QPushButton:checked {
    background: rgb(48, 10, 10);
    border: 2px solid rgb(240, 208, 120);
}
QPushButton:disabled {
    color: rgb(176, 188, 170);
    background: rgb(24, 74, 46);
    border: 1px solid rgb(88, 128, 96);
}
)";

const char* const bar_style = R"(
QMenuBar, QStatusBar { color: rgb(246, 238, 214); background: rgb(38, 20, 12); }
QMenuBar::item { padding: %1px 11px; background: transparent; }
QMenuBar::item:selected, QMenuBar::item:pressed { background: rgb(96, 24, 22); }
)";

const char* const line_style = R"(
QLabel {
    color: rgb(246, 238, 214);
    background: rgba(0, 0, 0, 70);
    border: 1px solid rgba(201, 168, 92, 150);
    border-radius: 5px;
}
)";

QString selection_file(const QString& name)
{
    return QStringLiteral(":/selection/grafik/selection/%1.png").arg(name);
}

QString table_file(const QString& name)
{
    return QStringLiteral(":/table/grafik/%1.png").arg(name);
}

QFont pixel_font(QFont font, int pixels, QFont::Weight weight)
{
    font.setPixelSize(pixels);
    font.setWeight(weight);
    return font;
}

} // namespace

layout_Window::layout_Window(QMainWindow& window,
                             Ui::MainWindow& form,
                             StatusProgressBar& time_bar,
                             const setting& settings,
                             QObject* parent)
    : QObject(parent)
    , main_window(window)
    , ui(form)
    , bar(time_bar)
    , game_setting(settings)
    , display_timer(new QTimer(this))
    , hit_blink_timer(new QTimer(this))
{
    display_timer->setObjectName(QStringLiteral("display_timer"));
    display_timer->setSingleShot(true);
    display_timer->setInterval(selection_time);
    connect(display_timer, &QTimer::timeout, this, &layout_Window::display_timer_timeout);
    hit_blink_timer->setObjectName(QStringLiteral("hit_blink_timer"));
    hit_blink_timer->setSingleShot(true);
    connect(hit_blink_timer, &QTimer::timeout, this, &layout_Window::hit_max_blink_timeout);

    // The marks lie over the table, which must get the clicks.
    for (QLabel* mark : {ui.LB_sel_label, ui.LB_hit_label}) {
        mark->setAttribute(Qt::WA_TransparentForMouseEvents);
        mark->hide();
    }
    for (QPushButton* button :
         {ui.PB_clear_jetons, ui.PB_last_bet, ui.PB_replay, ui.PB_super_short_play}) {
        button->setStyleSheet(QString::fromLatin1(button_style));
    }
    for (QLabel* line : {ui.LB_actual_load_file, ui.LB_selected_number}) {
        line->setStyleSheet(QString::fromLatin1(line_style));
        line->hide();
    }
    for (QLabel* note : {ui.LB_to_less_coup1, ui.LB_to_less_coup2}) // on the paper of the charts
        note->setStyleSheet(QStringLiteral("color: rgb(0, 0, 0);"));
    QPalette cloth = ui.centralwidget->palette();
    cloth.setBrush(QPalette::Window, QBrush(scaled_picture(table_file("table/cloth"), 0.0)));
    ui.centralwidget->setPalette(cloth);
    ui.centralwidget->setAutoFillBackground(true);
    style_bars();
    ui.menubar->setFixedHeight(design::menu_bar_height);
    ui.statusbar->setFixedHeight(design::status_bar_height);
}

/// The height of the menu bar is fixed: an entry that is higher would not be shown at all.
void layout_Window::style_bars()
{
    const QSize room(design::window_width, design::menu_bar_height - 2 * menu_rim);
    const QFont font = font_for_room(ui.menubar->font(), QString(), room);
    const int padding = (design::menu_bar_height - QFontMetrics(font).height()) / 2 - menu_rim;
    const QString style = QString::fromLatin1(bar_style).arg(padding);
    ui.menubar->setStyleSheet(style);
    ui.menubar->setFont(font);
    ui.statusbar->setStyleSheet(style);
}

QRect layout_Window::scaled_rect(const QRect& rect) const
{
    return design::scaled_rect(rect, reduction);
}

QPoint layout_Window::scaled_point(int x, int y) const
{
    return {scaled(x, reduction), scaled(y, reduction)};
}

void layout_Window::rebuild(double new_reduction)
{
    reduction = new_reduction;
    shown_form = game_setting.form();
    hide_marks();
    place_labels();
    place_last_numbers();
    place_buttons();
    show_table_picture();
    emit recreate_wheel(scaled_rect(design::wheel), reduction);
    emit recreate_player_status_table(scaled_rect(design::player_panel), reduction);
    emit recreate_player_statistik_table(scaled_rect(design::statistic_panel), reduction);
    show_picture(*ui.LB_hot_cold_png, table_file("playertable/hot_cold_stat3"), design::hot_cold);
    emit set_main_window_size(scaled(design::window_width, reduction),
                              scaled(design::window_height, reduction) + design::menu_bar_height +
                                  design::status_bar_height);
}

void layout_Window::place_labels()
{
    const QFont text =
        pixel_font(ui.centralwidget->font(), scaled(text_font, reduction), QFont::Normal);
    const QRect less_1 = scaled_rect(design::hot_chart);
    const QRect less_2 = scaled_rect(design::cold_chart);
    ui.LB_to_less_coup1->setGeometry(less_1);
    ui.LB_to_less_coup2->setGeometry(less_2);
    ui.LB_actual_load_file->setGeometry(scaled_rect(design::load_file));
    ui.LB_selected_number->setGeometry(scaled_rect(design::selected_number));
    for (QLabel* label : {ui.LB_to_less_coup1,
                          ui.LB_to_less_coup2,
                          ui.LB_actual_load_file,
                          ui.LB_selected_number}) {
        label->setFont(text);
    }

    QRect bar_place = scaled_rect(design::time_bar);
    bar_place.translate(0, design::menu_bar_height);
    bar.setGeometry(bar_place);
}

void layout_Window::place_last_numbers()
{
    show_picture(
        *ui.LB_last_numbers_png, table_file("playertable/last_numbers"), design::last_numbers);
    const QFont font =
        pixel_font(ui.centralwidget->font(), scaled(number_font, reduction), QFont::Bold);
    for (int i = 0; i < design::last_number_count; ++i) {
        const QRect black(design::last_numbers.x() + design::last_number_left,
                          design::last_numbers.y() + design::last_number_top +
                              i * design::last_number_height,
                          design::last_number_width,
                          design::last_number_height);
        const QRect red = black.translated(design::last_number_width + design::last_number_gap, 0);
        const auto place = [&](const QString& name, const QRect& rect) {
            auto* label = ui.centralwidget->findChild<QLabel*>(name.arg(i + 1));
            label->setGeometry(scaled_rect(rect));
            label->setFont(font);
        };
        place(QStringLiteral("LB_ND_DA_N_%1"), black);
        place(QStringLiteral("LB_ND_DA_R_%1"), red);
    }
}

void layout_Window::place_buttons()
{
    const QFont font =
        pixel_font(ui.centralwidget->font(), scaled(button_font, reduction), QFont::DemiBold);
    const auto place = [&](QPushButton* button, const QRect& rect) {
        button->setGeometry(scaled_rect(rect));
        button->setFont(font);
    };
    place(ui.PB_clear_jetons, design::clear_button);
    place(ui.PB_last_bet, design::last_bet_button);
    place(ui.PB_replay, design::replay_button);
    place(ui.PB_super_short_play, design::short_button);
}

void layout_Window::show_table_picture()
{
    const bool american = shown_form == table_form::american;
    show_picture(*ui.LA_Table, table_file(american ? "table/f44a" : "table/f44"), design::table);
}

void layout_Window::show_picture(QLabel& label, const QString& path, const QRect& place)
{
    const QRect rect = scaled_rect(place);
    label.setPixmap(picture_of_size(path, rect.size(), main_window.devicePixelRatioF()));
    label.setGeometry(rect);
}

void layout_Window::hide_marks()
{
    display_timer->stop();
    hit_blink_timer->stop();
    selection_path.clear();
    ui.LB_sel_label->hide();
    ui.LB_hit_label->hide();
}

void layout_Window::draw_selection_based_on_jeton_type(jetons::jeton_names jeton)
{
    const chance_geometry& geometry = geometry_of(jeton, shown_form);
    show_selection(geometry.picture, {geometry.picture_x, geometry.picture_y});
}

void layout_Window::draw_selection_for_special_jetons(jetons::ext_jeton_names ext_jeton)
{
    const bool is_finale = ext_jeton <= jetons::FI09;
    const QString name = is_finale ? QStringLiteral("finale_%1").arg(ext_jeton)
                                   : QStringLiteral("annonce_%1").arg(jetons::name(ext_jeton));
    const bool american = shown_form == table_form::american;
    const QString american_path = selection_file(name + QStringLiteral("_a"));
    const bool has_american = american && QFile::exists(american_path);
    const QString path = has_american ? american_path : selection_file(name);
    show_selection(path, {overlay_x, overlay_y});
}

void layout_Window::show_selection(const QString& path, const QPoint& place)
{
    const QPoint corner = scaled_point(place.x(), place.y());
    const bool is_shown =
        path == selection_path && !ui.LB_sel_label->isHidden() && ui.LB_sel_label->pos() == corner;
    if (!is_shown) {
        if (path != selection_path) {
            selection_path = path;
            selection_pixmap = scaled_picture(path, reduction, main_window.devicePixelRatioF());
        }
        if (selection_pixmap.isNull()) {
            ui.LB_sel_label->hide();
            return;
        }
        ui.LB_sel_label->setPixmap(selection_pixmap);
        ui.LB_sel_label->resize(selection_pixmap.size() / selection_pixmap.devicePixelRatio());
        ui.LB_sel_label->move(corner);
        ui.LB_sel_label->show();
    }
    display_timer->start();
}

void layout_Window::display_timer_timeout()
{
    ui.LB_sel_label->hide();
}

QString layout_Window::hit_picture(int plein_number) const
{
    const bool american = shown_form == table_form::american;
    const bool is_zero = plein_number == 0 || plein_number == number_code::double_zero;
    if (!is_zero) return selection_file("hit_plein");
    return selection_file(american ? "hit_zero_a" : "hit_zero");
}

void layout_Window::draw_dolly_based_on_jeton_type(int plein_number)
{
    if (!number_code::is_number(plein_number)) return;
    const auto jeton = static_cast<jetons::jeton_names>(jetons::PL00 + plein_number);
    const chance_geometry& geometry = geometry_of(jeton, shown_form);
    const qreal ratio = main_window.devicePixelRatioF();
    QPixmap mark;
    if (game_setting.s_classic_dolly()) {
        dolly_pixmap = scaled_picture(selection_file("dolly_plein"), reduction, ratio);
        mark = dolly_pixmap;
    } else {
        hit_pixmap = scaled_picture(hit_picture(plein_number), reduction, ratio);
        mark = hit_pixmap;
    }
    ui.LB_hit_label->setPixmap(mark);
    ui.LB_hit_label->resize(mark.size() / mark.devicePixelRatio());
    ui.LB_hit_label->move(scaled_point(geometry.hit_x, geometry.hit_y));
    ui.LB_hit_label->show();
    hit_blink_count = mark_blinks;
    hit_blink_timer->start(mark_shown_time);
}

void layout_Window::hit_max_blink_timeout()
{
    if (ui.LB_hit_label->isHidden()) {
        ui.LB_hit_label->show();
        hit_blink_timer->start(mark_shown_time);
        return;
    }
    ui.LB_hit_label->hide();
    --hit_blink_count;
    if (hit_blink_count > 0) hit_blink_timer->start(mark_hidden_time);
}
