#include "every_window.h"

#include <QAbstractSlider>
#include <QAbstractSpinBox>
#include <QAccessible>
#include <QComboBox>
#include <QGroupBox>
#include <QLineEdit>
#include <QListWidget>
#include <QPlainTextEdit>
#include <QProgressBar>
#include <QScrollBar>
#include <QTabBar>
#include <QTabWidget>
#include <QTableWidget>
#include <QTextEdit>
#include <QTreeWidget>

#include <algorithm>

/// The program for users who hear it or have no mouse: every control has a name, the table tells
/// what it shows, and the Tab key goes through a window as one reads it.
class tst_accessibility : public QObject
{
    Q_OBJECT

private slots:
    void init() { user.forget(); }
    void cleanup();

    void every_control_has_a_name_data() { rows_of_all_windows(); }
    void every_control_has_a_name();
    void names_can_be_told_apart_data() { rows_of_all_windows(); }
    void names_can_be_told_apart();
    void the_tab_key_follows_the_eye_data() { rows_of_all_windows(); }
    void the_tab_key_follows_the_eye();
    void the_table_tells_what_it_shows();
    void jetons_tell_where_they_lie();
    void the_status_of_a_player_is_told();
    void the_table_speaks_english();

private:
    static void rows_of_all_windows();

    box_user user;
};

namespace
{

QString described(const QWidget& widget)
{
    return widget.objectName() + " (" + widget.metaObject()->className() + ')';
}

template <typename... kinds>
bool is_one_of(const QWidget* widget)
{
    return (... || (qobject_cast<const kinds*>(widget) != nullptr));
}

/// A control that stands for all its parts.
bool is_whole(const QWidget* widget)
{
    return is_one_of<QComboBox,
                     QAbstractSpinBox,
                     QAbstractItemView,
                     QLineEdit,
                     QTextEdit,
                     QPlainTextEdit,
                     QScrollBar,
                     QTabBar>(widget);
}

bool is_part(const QWidget* widget)
{
    for (const QWidget* owner = widget->parentWidget(); owner; owner = owner->parentWidget()) {
        if (is_whole(owner)) return true;
        if (owner->isWindow()) return false;
    }
    return false;
}

QVector<QWidget*> visible_children(const QWidget& window)
{
    QVector<QWidget*> found;
    const auto children = window.findChildren<QWidget*>();
    for (QWidget* child : children)
        if (child->isVisible() && child->window() == &window) found.append(child);
    return found;
}

/// Everything that a user works with or reads figures from.
QVector<QWidget*> controls_of(const QWidget& window)
{
    QVector<QWidget*> controls;
    const auto children = visible_children(window);
    for (QWidget* child : children) {
        const bool is_control =
            is_one_of<QAbstractButton,
                      QLineEdit,
                      QComboBox,
                      QAbstractSpinBox,
                      QAbstractItemView,
                      QTextEdit,
                      QPlainTextEdit,
                      QTabWidget,
                      QProgressBar>(child) ||
            (is_one_of<QAbstractSlider>(child) && !is_one_of<QScrollBar>(child)) ||
            child->inherits("QwtPlot") || child->inherits("wheelWidget") ||
            (child->focusPolicy() & Qt::TabFocus) != 0;
        const bool belongs_to_tabs =
            is_one_of<QTabBar>(child) || is_one_of<QTabBar>(child->parentWidget());
        if (is_control && !is_part(child) && !belongs_to_tabs) controls.append(child);
    }
    return controls;
}

/// A label that names a control; the title of a group around it is no name of its own.
QString label_of(const QWidget& control)
{
    const auto labels = control.window()->findChildren<QLabel*>();
    for (const QLabel* label : labels)
        if (label->buddy() == &control) return label->text();
    return {};
}

QString name_of(QWidget& control)
{
    if (!control.accessibleName().isEmpty()) return control.accessibleName();
    if (const auto* button = qobject_cast<QAbstractButton*>(&control)) {
        if (!button->text().isEmpty()) return button->text();
    }
    return label_of(control);
}

/// What a reader of the screen gets from Qt. A combo box tells its current entry as its name on
/// some platforms; there its label or its description speaks for it.
QString heard_name(QWidget& control)
{
    const QAccessibleInterface* const heard = QAccessible::queryAccessibleInterface(&control);
    if (!heard) return {};
    if (!qobject_cast<QComboBox*>(&control)) return heard->text(QAccessible::Name);
    const QString label = label_of(control);
    return label.isEmpty() ? heard->text(QAccessible::Description) : label;
}

QString group_of(const QWidget& control)
{
    for (const QWidget* owner = control.parentWidget(); owner; owner = owner->parentWidget())
        if (const auto* group = qobject_cast<const QGroupBox*>(owner)) return group->objectName();
    return {};
}

// ---- the order in which one reads

QRect place_of(const QWidget& widget)
{
    return {widget.mapTo(widget.window(), QPoint()), widget.size()};
}

/// Parts a list where all of one side ends before the other begins; they may overlap by a little.
template <typename first_of, typename last_of>
QVector<QVector<QWidget*>> parted(QVector<QWidget*> widgets, first_of first, last_of last)
{
    constexpr int tolerance = 4; // pixels
    std::stable_sort(widgets.begin(), widgets.end(), [&](QWidget* one, QWidget* other) {
        return first(place_of(*one)) < first(place_of(*other));
    });
    QVector<QVector<QWidget*>> parts;
    int end = 0;
    for (QWidget* widget : qAsConst(widgets)) {
        const QRect place = place_of(*widget);
        if (parts.isEmpty() || first(place) >= end - tolerance) parts.append(QVector<QWidget*>());
        parts.last().append(widget);
        end = std::max(end, last(place));
    }
    return parts;
}

QVector<QVector<QWidget*>> columns_of(const QVector<QWidget*>& widgets)
{
    return parted(
        widgets,
        [](const QRect& place) { return place.left(); },
        [](const QRect& place) { return place.right(); });
}

QVector<QWidget*> read_rows(const QVector<QWidget*>& widgets);

/// From left to right; what stands in a column of its own is read from top to bottom.
QVector<QWidget*> read_columns(const QVector<QWidget*>& widgets)
{
    const auto columns = columns_of(widgets);
    if (columns.size() == 1) return columns.first();
    QVector<QWidget*> read;
    for (const auto& column : columns)
        read += read_rows(column);
    return read;
}

QVector<QWidget*> read_rows(const QVector<QWidget*>& widgets)
{
    if (widgets.size() < 2) return widgets;
    // Groups that stand in columns are read column by column, whatever their heights are.
    if (std::all_of(widgets.begin(), widgets.end(), is_one_of<QGroupBox>)) {
        const auto columns = columns_of(widgets);
        if (columns.size() > 1) return read_columns(widgets);
    }
    const auto rows = parted(
        widgets,
        [](const QRect& place) { return place.top(); },
        [](const QRect& place) { return place.bottom(); });
    QVector<QWidget*> read;
    for (const auto& row : rows)
        read += read_columns(row);
    return read;
}

/// A radio button beside the chosen one is reached by the arrow keys.
bool takes_tab(const QWidget& widget)
{
    const auto* button = qobject_cast<const QAbstractButton*>(&widget);
    const bool is_in_choice = button && button->isCheckable() && button->autoExclusive();
    return is_in_choice || (widget.focusPolicy() & Qt::TabFocus) != 0;
}

bool is_stop(const QWidget& widget)
{
    const auto* tabs = qobject_cast<const QTabWidget*>(&widget);
    return takes_tab(widget) && !widget.focusProxy() && !tabs && !is_part(&widget);
}

bool has_stop(const QWidget& widget)
{
    if (is_stop(widget)) return true;
    const auto children = widget.findChildren<QWidget*>();
    return std::any_of(children.begin(), children.end(), [&](const QWidget* child) {
        return child->isVisible() && child->window() == widget.window() && is_stop(*child);
    });
}

/// The stops of a widget in the order of their places, group by group.
QVector<QWidget*> stops_as_seen(QWidget& owner)
{
    QVector<QWidget*> stops;
    if (is_stop(owner) && !owner.isWindow()) stops.append(&owner);
    QVector<QWidget*> groups;
    const auto children = owner.findChildren<QWidget*>(QString(), Qt::FindDirectChildrenOnly);
    for (QWidget* child : children)
        if (child->isVisible() && !child->isWindow() && has_stop(*child)) groups.append(child);
    const auto read = read_rows(groups);
    for (QWidget* group : read)
        stops += stops_as_seen(*group);
    return stops;
}

/// The stops as the Tab key comes to them, from one of them on.
QVector<QWidget*> stops_from(QWidget* first)
{
    QVector<QWidget*> stops;
    QWidget* widget = first;
    do {
        if (widget->isVisible() && widget->window() == first->window() && !widget->isWindow() &&
            is_stop(*widget))
            stops.append(widget);
        widget = widget->nextInFocusChain();
    } while (widget != first);
    return stops;
}

QString names_of(const QVector<QWidget*>& widgets)
{
    QStringList names;
    for (const QWidget* widget : widgets) {
        const auto* button = qobject_cast<const QAbstractButton*>(widget);
        const bool is_nameless = widget->objectName().isEmpty();
        names.append(is_nameless && button ? button->text() : widget->objectName());
    }
    return names.join(QLatin1Char(' '));
}

} // namespace

void tst_accessibility::cleanup()
{
    QCOMPARE(user.unexpected(), 0);
    QCOMPARE(user.answers_left(), 0);
    QCOMPARE(user.dialogs_left(), 0);
}

void tst_accessibility::rows_of_all_windows()
{
    QTest::addColumn<QString>("name");
    const QStringList names = every_window::names();
    for (const QString& name : names)
        QTest::newRow(qPrintable(name)) << name;
}

void tst_accessibility::every_control_has_a_name()
{
    QFETCH(QString, name);
    const desktop_bench bench;
    QStringList nameless;
    int controls = 0;
    every_window(bench, user).open(name, [&](QWidget& window) {
        const auto all = controls_of(window);
        for (QWidget* control : all) {
            ++controls;
            if (name_of(*control).isEmpty() || heard_name(*control).isEmpty())
                nameless.append(described(*control));
        }
    });
    QVERIFY(controls > 0);
    QVERIFY2(nameless.isEmpty(), qPrintable(nameless.join(", ")));
}

void tst_accessibility::names_can_be_told_apart()
{
    QFETCH(QString, name);
    const desktop_bench bench;
    QStringList same;
    every_window(bench, user).open(name, [&](QWidget& window) {
        QMap<QString, QWidget*> earlier;
        const auto all = controls_of(window);
        for (QWidget* control : all) {
            if (control->inherits("QwtPlotCanvas")) continue; // of a plot with the same name
            const QString full_name = group_of(*control) + '/' + name_of(*control);
            if (earlier.contains(full_name))
                same.append(full_name + ": " + described(*control) + ", " +
                            described(*earlier.value(full_name)));
            earlier.insert(full_name, control);
        }
    });
    QVERIFY2(same.isEmpty(), qPrintable(same.join("\n")));
}

void tst_accessibility::the_tab_key_follows_the_eye()
{
    QFETCH(QString, name);
    const desktop_bench bench;
    QString seen;
    QString reached;
    every_window(bench, user).open(name, [&](QWidget& window) {
        QVector<QWidget*> stops = stops_as_seen(window);
        if (stops.isEmpty()) return;
        // The pockets stand on a circle and are read clockwise from the top.
        if (window.inherits("wheel_number_selection")) {
            const auto pockets = window.findChildren<QWidget*>(QRegularExpression("^PB_\\d+$"));
            stops = pockets.toVector() + stops.mid(stops.size() - 2);
        }
        seen = names_of(stops);
        reached = names_of(stops_from(stops.first()));
    });
    QCOMPARE(reached, seen);
    const bool is_played_by_keys =
        name.startsWith("table in") || name == "table" || name == "systemgame_monitor_1";
    QCOMPARE(seen.isEmpty(), is_played_by_keys);
}

void tst_accessibility::the_table_tells_what_it_shows()
{
    const desktop_bench bench({QStringLiteral("s_activation_coldhot_display=10")});
    auto* const wheel = bench.child<QWidget>("GV_Wheel");
    auto* const last = bench.child<QLabel>("LB_last_numbers_png");
    auto* const bar = bench.child<QProgressBar>("time_bar");
    QCOMPARE(wheel->accessibleName(), QStringLiteral("Kessel"));
    QCOMPARE(wheel->accessibleDescription(), QString());
    QCOMPARE(bar->accessibleName(), QStringLiteral("Setzzeit"));
    QCOMPARE(bar->accessibleDescription(), QStringLiteral("Manuell - Starten Sie Ihr Spiel!"));
    QCOMPARE(bench.child<QLabel>("LA_Table")->accessibleName(), QStringLiteral("Spieltisch"));

    bench.trigger("actionStart");
    QCOMPARE(bar->accessibleDescription(), QStringLiteral("Manuell"));
    bench.play(17);
    bench.play(0);
    QCOMPARE(wheel->accessibleDescription(), QStringLiteral("Kugel auf 0"));
    QCOMPARE(last->accessibleName(), QStringLiteral("Letzte Zahlen"));
    QCOMPARE(last->accessibleDescription(), QStringLiteral("0, 17")); // the newest first

    for (const int number : {5, 5, 5, 5, 17, 17, 1, 2, 17})
        bench.play(number);
    bench.wait_for_statistic();
    // 17 and 5 came four times, 17 last; then 2, fresher than 1
    QCOMPARE(bench.child<QWidget>("hot_number_widget")->accessibleDescription(),
             QStringLiteral("17, 5, 2"));

    user.answer(QMessageBox::Yes);
    bench.trigger("actionStop");
    QCOMPARE(last->accessibleDescription(), QString());
    QCOMPARE(bench.child<QWidget>("hot_number_widget")->accessibleDescription(), QString());
}

void tst_accessibility::jetons_tell_where_they_lie()
{
    const desktop_bench bench;
    bench.trigger("actionStart");
    bench.click(jetons::PL17);
    auto* const jeton = bench.child<QWidget>("jeton_1_PL17");
    QCOMPARE(jeton->accessibleName(), QStringLiteral("Spieler 1, PL 17: 1 Stück"));
    bench.click(jetons::PL17);
    QCOMPARE(jeton->accessibleName(), QStringLiteral("Spieler 1, PL 17: 2 Stück"));
    bench.click(jetons::PL17, Qt::RightButton);
    QCOMPARE(jeton->accessibleName(), QStringLiteral("Spieler 1, PL 17: 1 Stück"));
}

void tst_accessibility::the_status_of_a_player_is_told()
{
    const desktop_bench bench;
    auto* const first = bench.child<QPushButton>("PB_status_1");
    QCOMPARE(first->accessibleName(), QStringLiteral("Spieler 1, Aktiv"));
    QCOMPARE(bench.child<QPushButton>("PB_status_2")->accessibleName(),
             QStringLiteral("Spieler 2"));
    bench.trigger("actionStart");
    bench.trigger("actionWiederholen");
    QCOMPARE(first->accessibleName(), QStringLiteral("Spieler 1, Aktiv, Wiederholen"));
    QCOMPARE(bench.child<QLabel>("LB_credit_2")->accessibleDescription(),
             QStringLiteral("Spieler 2, Kapital"));
    QCOMPARE(bench.child<QLabel>("LB_win_loss")->accessibleDescription(),
             QStringLiteral("Gewinn/Verlust"));
}

void tst_accessibility::the_table_speaks_english()
{
    const desktop_bench bench;
    bench.trigger("actionStart");
    bench.click(jetons::PL17);
    bench.play(3);
    bench.click(jetons::PL17);
    emit bench.window->setting_language_changend(general_setting::LANG_ENGLISH);
    bench.settle();
    QCOMPARE(bench.child<QWidget>("GV_Wheel")->accessibleName(), QStringLiteral("Wheel"));
    QCOMPARE(bench.child<QWidget>("GV_Wheel")->accessibleDescription(),
             QStringLiteral("Ball on 3"));
    QCOMPARE(bench.child<QWidget>("time_bar")->accessibleName(), QStringLiteral("Betting time"));
    QCOMPARE(bench.child<QWidget>("LB_last_numbers_png")->accessibleName(),
             QStringLiteral("Last numbers"));
    QCOMPARE(bench.child<QWidget>("LA_Table")->accessibleName(), QStringLiteral("Table"));
    QCOMPARE(bench.child<QWidget>("jeton_1_PL17")->accessibleName(),
             QStringLiteral("Player 1, PL 17: Pieces: 1"));
    QCOMPARE(bench.child<QWidget>("PB_status_1")->accessibleName(),
             QStringLiteral("Player 1, Active"));
}

int main(int argc, char** argv)
{
    return run_window_test<tst_accessibility>(argc, argv);
}

#include "tst_accessibility.moc"
