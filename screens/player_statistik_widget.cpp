#include "player_statistik_widget.h"

#include "design_geometry.h"
#include "font_fit.h"
#include "pictures.h"

#include <QEvent>
#include <QLabel>
#include <QPainter>

namespace
{

enum row_index : std::size_t { coups, plus_coups, minus_coups, seeded, win };

// The panel in its own pixels.
constexpr QRect title_place(12, 8, 234, 28);
constexpr QRect sheet(10, 42, 238, 120); ///< on which the rows stand
constexpr int row_left = 18;
constexpr int row_top = 45;
constexpr int row_height = 23;
constexpr int caption_width = 124;
constexpr int figure_width = 98;
constexpr int corner_radius = 6;

} // namespace

player_statistik_widget::player_statistik_widget(double scale_reduction, QWidget* parent)
    : QWidget(parent)
    , reduction(scale_reduction)
{
    setObjectName(QStringLiteral("WD_player_statistik"));
    title = new_label(QStringLiteral("LB_player"), Qt::AlignCenter);
    title->setStyleSheet(QStringLiteral("color: rgb(236, 200, 112);"));
    const std::array<const char*, row_count> names = {
        "cup_counter", "plus_coups", "minus_coups", "seeded", "win_loss"};
    for (std::size_t i = 0; i < row_count; ++i) {
        const QString name = QString::fromLatin1(names[i]);
        const auto left = Qt::AlignLeft | Qt::AlignVCenter;
        const auto right = Qt::AlignRight | Qt::AlignVCenter;
        rows[i].caption = new_label(QStringLiteral("LB_caption_") + name, left);
        rows[i].figure = new_label(QStringLiteral("LB_") + name, right);
        rows[i].figure->setText(QStringLiteral("0"));
        for (QLabel* label : {rows[i].caption, rows[i].figure})
            label->setStyleSheet(QStringLiteral("color: rgb(0, 0, 0);"));
    }
    place_all();
    set_texts();
}

QLabel* player_statistik_widget::new_label(const QString& name, Qt::Alignment alignment)
{
    auto* const label = new QLabel(this);
    label->setObjectName(name);
    label->setAlignment(alignment);
    return label;
}

void player_statistik_widget::place_all()
{
    resize(design::scaled_rect(design::statistic_panel, reduction).size());
    title->setGeometry(design::scaled_rect(title_place, reduction));
    for (std::size_t i = 0; i < row_count; ++i) {
        const int top = row_top + row_height * static_cast<int>(i);
        const QRect caption(row_left, top, caption_width, row_height);
        const QRect figure(row_left + caption_width, top, figure_width, row_height);
        rows[i].caption->setGeometry(design::scaled_rect(caption, reduction));
        rows[i].figure->setGeometry(design::scaled_rect(figure, reduction));
    }
}

void player_statistik_widget::set_texts()
{
    title->setText(tr("Spieler %1").arg(selected + 1));
    rows[coups].caption->setText(tr("Coups"));
    rows[plus_coups].caption->setText(tr("Plus-Coups"));
    rows[minus_coups].caption->setText(tr("Minus-Coups"));
    rows[seeded].caption->setText(tr("Letzter Einsatz"));
    rows[win].caption->setText(tr("Gewinn/Verlust"));
    for (const auto& each : rows)
        each.figure->setAccessibleDescription(each.caption->text());
    fit_fonts();
}

/// One size for all rows; a figure that is too long for it is written smaller.
void player_statistik_widget::fit_fonts()
{
    constexpr int largest_point_size = 13;
    QFont font(QWidget::font().family(), largest_point_size);
    for (const row& each : rows)
        font = font_for_room(font, each.caption->text(), each.caption->size());
    for (const row& each : rows)
        each.caption->setFont(font);
    figure_font = font;
    figure_font.setWeight(QFont::DemiBold);
    for (std::size_t i = 0; i < row_count; ++i)
        write_figure(i, rows[i].figure->text());
    const QFont title_font(QWidget::font().family(), largest_point_size + 2, QFont::DemiBold);
    title->setFont(font_for_room(title_font, title->text(), title->size()));
}

void player_statistik_widget::write_figure(std::size_t index, const QString& text)
{
    QLabel* const figure = rows[index].figure;
    const QFont font = font_for_width(figure_font, text, figure->width());
    give_font(*figure, font);
    if (figure->text() != text) figure->setText(text);
}

void player_statistik_widget::show_status(general_player::player_names player,
                                          const player_status& figures)
{
    if (player != selected) {
        selected = player;
        set_texts();
    }
    write_figure(plus_coups, QString::number(figures.plus_coups));
    write_figure(minus_coups, QString::number(figures.minus_coups));
    write_figure(seeded, QString::number(figures.last_seeded));
    write_win(figures.has_credit ? figures.last_credit - figures.start_credit : 0);
}

void player_statistik_widget::write_win(qint64 amount)
{
    const QString sign = amount > 0 ? QStringLiteral("+") : QString();
    QString colour = QStringLiteral("color: rgb(0, 0, 0);");
    if (amount > 0) colour = QStringLiteral("color: rgb(0, 110, 0);");
    if (amount < 0) colour = QStringLiteral("color: rgb(190, 0, 0);");
    QLabel* const figure = rows[win].figure;
    if (figure->styleSheet() != colour) figure->setStyleSheet(colour);
    write_figure(win, sign + QString::number(amount));
}

void player_statistik_widget::update_cup_counter(int cup_counter)
{
    write_figure(coups, QString::number(cup_counter));
}

void player_statistik_widget::paintEvent(QPaintEvent*)
{
    const int radius = scaled(corner_radius, reduction);
    QPainter painter(this);
    const QPixmap background =
        scaled_picture(QStringLiteral(":/table/grafik/playertable/statistic_panel.png"),
                       reduction,
                       devicePixelRatioF());
    if (!background.isNull()) {
        painter.drawPixmap(0, 0, background);
        return;
    }
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(QColor(44, 28, 20));
    painter.drawRoundedRect(rect(), 2 * radius, 2 * radius);
    painter.setBrush(QColor(244, 236, 214));
    painter.drawRoundedRect(design::scaled_rect(sheet, reduction), radius, radius);
}

void player_statistik_widget::changeEvent(QEvent* event)
{
    QWidget::changeEvent(event);
    if (event->type() == QEvent::LanguageChange) set_texts();
}
