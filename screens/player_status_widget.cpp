#include "player_status_widget.h"

#include "design_geometry.h"
#include "font_fit.h"
#include "pictures.h"
#include "players_control.h"

#include <QEvent>
#include <QLabel>
#include <QPainter>

namespace
{

constexpr int start_point_size = 20;
constexpr int figure_width = 100; // eight digits fit in
constexpr int field_radius = 6;

/// A row of figures below the name tabs.
struct row {
    int top;
    int height;
};
constexpr std::array<row, 3> rows = {{
    {design::panel_status_top, design::panel_status_height},
    {design::panel_seeded_top, design::panel_figure_height},
    {design::panel_credit_top, design::panel_figure_height},
}};

const QColor ivory(244, 236, 214);

} // namespace

player_status_widget::player_status_widget(players_control& accounts,
                                           const setting& settings,
                                           double scale_reduction,
                                           QWidget* parent)
    : QWidget(parent)
    , reduction(scale_reduction)
{
    setObjectName(QStringLiteral("WD_SpTable"));
    setStyleSheet(QStringLiteral(
        "status_button { border: none; background: transparent; color: rgb(0, 0, 0); }"));
    for (std::size_t i = 0; i < captions.size(); ++i) {
        captions[i] = new_label(QStringLiteral("LB_caption_%1").arg(i + 1));
        captions[i]->setAlignment(Qt::AlignLeft | Qt::AlignVCenter);
        captions[i]->setStyleSheet(QStringLiteral("color: rgb(244, 236, 214);"));
    }
    for (std::size_t i = 0; i < player_count; ++i)
        build_column(i, accounts, settings);
    place_all();
    set_texts();
}

QLabel* player_status_widget::new_label(const QString& name)
{
    auto* const label = new QLabel(this);
    label->setObjectName(name);
    label->setAttribute(Qt::WA_TransparentForMouseEvents);
    label->setAlignment(Qt::AlignCenter);
    return label;
}

void player_status_widget::build_column(std::size_t i,
                                        players_control& accounts,
                                        const setting& settings)
{
    const auto player = static_cast<player_names>(i);
    column& own = columns[i];
    own.name = new_label(QStringLiteral("LB_name_%1").arg(i + 1));
    own.status = new status_button(player, accounts, settings, this);
    own.seeded = new_label(QStringLiteral("LB_seeded_%1").arg(i + 1));
    own.credit = new_label(QStringLiteral("LB_credit_%1").arg(i + 1));
    for (QLabel* figure : {own.seeded, own.credit})
        figure->setStyleSheet(QStringLiteral("color: rgb(0, 0, 0);"));

    using sender = status_button;
    using receiver = player_status_widget;
    connect(own.status, &sender::count_finished, this, &receiver::count_finished);
    connect(own.status, &sender::addCredit_to_player, this, &receiver::addCredit_to_player);
    connect(own.status, &sender::checkStatusReplay, this, &receiver::checkStatusReplay);

    own.status->show_status(static_cast<status_button::status>(accounts.player_status(player)));
    own.is_active = accounts.player_status(player) == 0;
    style_name(own);
    own.seeded->setText(QString::number(accounts.table().seeded(player)));
    own.credit->setText(QString::number(accounts.table().credit(player)));
}

/// The field of a player in a row: exactly what is a click on the player's tab in the first row.
QRect player_status_widget::field(std::size_t i, int top, int height) const
{
    return {QPoint(scaled(design::panel_left[i], reduction), scaled(top, reduction)),
            QPoint(scaled(design::panel_right[i], reduction), scaled(top + height - 1, reduction))};
}

void player_status_widget::place_all()
{
    resize(design::scaled_rect(design::player_panel, reduction).size());
    for (std::size_t i = 0; i < player_count; ++i) {
        column& own = columns[i];
        own.name->setGeometry(field(i, design::panel_names_top, design::panel_names_height));
        own.status->setGeometry(field(i, rows[0].top, rows[0].height));
        own.seeded->setGeometry(field(i, rows[1].top, rows[1].height));
        own.credit->setGeometry(field(i, rows[2].top, rows[2].height));
    }
    for (std::size_t i = 0; i < captions.size(); ++i) {
        captions[i]->setGeometry(design::scaled_rect(
            {design::panel_caption_left, rows[i].top, design::panel_caption_width, rows[i].height},
            reduction));
    }
}

void player_status_widget::set_texts()
{
    captions[0]->setText(tr("Status"));
    captions[1]->setText(tr("Gesetzt"));
    captions[2]->setText(tr("Kapital"));
    for (std::size_t i = 0; i < player_count; ++i) {
        const QString name = tr("Spieler %1").arg(i + 1);
        columns[i].name->setText(name);
        columns[i].seeded->setAccessibleDescription(name + ", " + tr("Gesetzt"));
        columns[i].credit->setAccessibleDescription(name + ", " + tr("Kapital"));
    }
    fit_fonts();
}

/// One size for all names and status texts, and one for all figures.
void player_status_widget::fit_fonts()
{
    const QString eight_digits = QStringLiteral("88888888");
    const int room = scaled(figure_width, reduction);
    QFont start(QWidget::font().family(), start_point_size);
    start.setWeight(QFont::DemiBold);
    const QFont name_font = font_for_width(start, eight_digits, room);
    start.setWeight(QFont::Normal);
    figure_font = font_for_width(start, eight_digits, room);
    for (const column& own : columns) {
        own.status->setFont(name_font);
        own.name->setFont(font_for_width(name_font, own.name->text(), own.name->width() - 4));
        write_amount(own.seeded, own.seeded->text().toLongLong());
        write_amount(own.credit, own.credit->text().toLongLong());
    }
    QFont caption_font = figure_font;
    for (const QLabel* caption : captions)
        caption_font = font_for_width(caption_font, caption->text(), caption->width() - 2);
    for (QLabel* caption : captions)
        caption->setFont(caption_font);
}

void player_status_widget::write_amount(QLabel* label, qint64 amount) const
{
    const QString text = QString::number(amount);
    const QFont font =
        text.size() > 8 ? font_for_width(figure_font, text, label->width() - 2) : figure_font;
    give_font(*label, font);
    if (label->text() != text) label->setText(text);
}

void player_status_widget::style_name(const column& player) const
{
    if (!player.is_active) {
        player.name->setStyleSheet(QStringLiteral("color: rgb(244, 236, 214);"));
        return;
    }
    player.name->setStyleSheet(
        QStringLiteral("color: rgb(48, 28, 8);"
                       "background-color: qlineargradient(x1: 0, y1: 0, x2: 0, y2: 1,"
                       "stop: 0 rgb(250, 226, 158), stop: 1 rgb(214, 170, 80));"
                       "border-radius: %1px;")
            .arg(scaled(field_radius, reduction)));
}

void player_status_widget::show_player_status(player_names player, int status)
{
    column& own = of(player);
    own.status->show_status(static_cast<status_button::status>(status));
    const bool is_active = status == 0;
    if (own.is_active == is_active) return;
    own.is_active = is_active;
    style_name(own);
}

void player_status_widget::show_score(player_names player, qlonglong score)
{
    of(player).status->display_score(score);
}

void player_status_widget::show_credit(player_names player, qint64 amount)
{
    write_amount(of(player).credit, amount);
}

void player_status_widget::show_seeded(player_names player, qint64 amount)
{
    write_amount(of(player).seeded, amount);
}

void player_status_widget::refresh_replay_display()
{
    for (const column& own : columns)
        own.status->refresh_replay_display();
}

void player_status_widget::stop_count()
{
    for (const column& own : columns)
        own.status->stop_count();
}

void player_status_widget::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    const QPixmap background =
        scaled_picture(QStringLiteral(":/table/grafik/playertable/player_panel.png"),
                       reduction,
                       devicePixelRatioF());
    if (background.isNull()) {
        paint_plain_background(painter);
    } else {
        painter.drawPixmap(0, 0, background);
    }
}

void player_status_widget::paint_plain_background(QPainter& painter) const
{
    const int radius = scaled(field_radius, reduction);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(QColor(44, 28, 20));
    painter.drawRoundedRect(rect(), 2 * radius, 2 * radius);
    painter.setBrush(ivory);
    for (std::size_t i = 0; i < player_count; ++i) {
        for (const row& each : rows)
            painter.drawRoundedRect(field(i, each.top, each.height), radius, radius);
    }
}

void player_status_widget::changeEvent(QEvent* event)
{
    QWidget::changeEvent(event);
    if (event->type() == QEvent::LanguageChange) set_texts();
}
