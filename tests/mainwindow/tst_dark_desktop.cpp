#include "every_window.h"
#include "legible_colour.h"

#include <QAbstractItemView>
#include <QComboBox>
#include <QGroupBox>
#include <QLineEdit>
#include <QMenuBar>
#include <QSpinBox>
#include <QStyleFactory>
#include <QStyleOption>
#include <QTextBlock>
#include <QTextDocument>

/// On a dark desktop every text can still be read: what has a colour of its own has a ground of
/// its own, or a colour that suits both.
class tst_dark_desktop : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init() { user.forget(); }
    void cleanup();

    void every_text_can_be_read_data();
    void every_text_can_be_read();
    void notes_of_a_history_load();
    void the_warning_of_the_load_menu();
    void the_marked_line_of_an_error();
    void findings_of_the_editor();
    void the_menu_bar_shows_its_menus_data();
    void the_menu_bar_shows_its_menus();

private:
    box_user user;
};

namespace
{

constexpr double for_small_text = 4.5;
constexpr double for_large_text = 3.0;

/// A text where it stands in a window.
struct shown_text {
    QString what;
    QRect place;
    QFont font;
};

QPalette dark_palette()
{
    const QColor window(53, 53, 53);
    const QColor grey(127, 127, 127);
    QPalette colours(window, window);
    for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText}) {
        colours.setColor(role, Qt::white);
        colours.setColor(QPalette::Disabled, role, grey);
    }
    colours.setColor(QPalette::Base, QColor(35, 35, 35));
    colours.setColor(QPalette::AlternateBase, window);
    colours.setColor(QPalette::PlaceholderText, QColor(160, 160, 160));
    colours.setColor(QPalette::Highlight, QColor(42, 130, 218));
    colours.setColor(QPalette::HighlightedText, Qt::black);
    return colours;
}

/// Large in the sense of the guide lines for contrast: 18 points, or 14 bold ones.
bool is_large(const QFont& font)
{
    const double pixels = QFontInfo(font).pixelSize();
    return font.bold() ? pixels >= 18.5 : pixels >= 24;
}

QRect within_window(const QWidget& widget, const QRect& place)
{
    return {widget.mapTo(widget.window(), place.topLeft()), place.size()};
}

void add_view(const QAbstractItemView& view, QVector<shown_text>& texts)
{
    const QAbstractItemModel& cells = *view.model();
    for (int row = 0; row < qMin(cells.rowCount(), 40); ++row) {
        for (int column = 0; column < qMin(cells.columnCount(), 10); ++column) {
            const QModelIndex cell = cells.index(row, column);
            const QRect place = view.visualRect(cell) & view.viewport()->rect();
            const bool is_whole = place == view.visualRect(cell) && !place.isEmpty();
            const QString text = cell.data().toString();
            if (!is_whole || text.isEmpty()) continue;
            const QVariant own = cell.data(Qt::FontRole);
            texts.append({view.objectName() + ": " + text,
                          within_window(*view.viewport(), place.adjusted(1, 1, -1, -1)),
                          own.isValid() ? own.value<QFont>() : view.font()});
        }
    }
}

QRect text_place(const QAbstractButton& button)
{
    QStyleOptionButton option;
    option.initFrom(&button);
    QStyle::SubElement part = QStyle::SE_PushButtonContents;
    if (button.inherits("QCheckBox")) part = QStyle::SE_CheckBoxContents;
    if (button.inherits("QRadioButton")) part = QStyle::SE_RadioButtonContents;
    return button.style()->subElementRect(part, &option, &button).adjusted(2, 2, -2, -2);
}

/// Without what shines through beside the text.
QRect text_place(const QLabel& label)
{
    const int wrap = label.wordWrap() ? Qt::TextWordWrap : 0;
    return label.style()->itemTextRect(label.fontMetrics(),
                                       label.contentsRect(),
                                       int(label.alignment()) | wrap,
                                       true,
                                       label.text());
}

QVector<shown_text> texts_of(const QWidget& window)
{
    QVector<shown_text> texts;
    const auto children = window.findChildren<QWidget*>();
    for (const QWidget* child : children) {
        if (!child->isVisible() || !child->isEnabled() || child->window() != &window) continue;
        if (child->visibleRegion().boundingRect() != child->rect()) continue; // scrolled away
        const auto add = [&](const QString& text, const QRect& place) {
            if (text.trimmed().isEmpty()) return;
            texts.append(
                {child->objectName() + ": " + text, within_window(*child, place), child->font()});
        };
        if (const auto* label = qobject_cast<const QLabel*>(child)) {
            add(label->text(), text_place(*label));
        } else if (child->inherits("jeton_button") || child->inherits("status_button")) {
            continue; // they are the same on every desktop
        } else if (const auto* button = qobject_cast<const QAbstractButton*>(child)) {
            add(button->text(), text_place(*button));
        } else if (const auto* line = qobject_cast<const QLineEdit*>(child)) {
            add(line->text(), line->contentsRect().adjusted(3, 3, -3, -3));
        } else if (const auto* view = qobject_cast<const QAbstractItemView*>(child)) {
            // The colours of the numbers are those of the wheel.
            if (view->objectName() != "permanence_table") add_view(*view, texts);
        }
    }
    return texts;
}

/// How well a text stands out: the ground is the colour that most pixels have, and the strokes
/// are what differs from it most.
double contrast_in(const QImage& picture, const QRect& place)
{
    QHash<QRgb, int> counts;
    const QRect inside = place & picture.rect();
    for (int y = inside.top(); y <= inside.bottom(); ++y)
        for (int x = inside.left(); x <= inside.right(); ++x)
            ++counts[picture.pixel(x, y)];
    QRgb ground = 0;
    for (auto colour = counts.cbegin(); colour != counts.cend(); ++colour)
        if (colour.value() > counts.value(ground)) ground = colour.key();
    double best = 1;
    for (auto colour = counts.cbegin(); colour != counts.cend(); ++colour)
        best = qMax(best, contrast_of(QColor(colour.key()), QColor(ground)));
    return best;
}

QStringList hard_to_read(QWidget& window)
{
    const QImage picture = window.grab().toImage();
    QStringList found;
    const auto texts = texts_of(window);
    for (const shown_text& text : texts) {
        const double contrast = contrast_in(picture, text.place);
        const double least = is_large(text.font) ? for_large_text : for_small_text;
        if (contrast < least) found.append(text.what + " " + QString::number(contrast));
    }
    if (texts.isEmpty()) found.append("no text at all");
    return found;
}

} // namespace

void tst_dark_desktop::initTestCase()
{
    // What shall be found is found.
    QCOMPARE(contrast_of(Qt::black, Qt::white), 21.0);
    QApplication::setStyle(QStyleFactory::create("Fusion"));
    QApplication::setPalette(dark_palette());
    QLabel black("Text");
    QPalette colours = black.palette();
    colours.setColor(QPalette::WindowText, Qt::black);
    black.setPalette(colours);
    QVERIFY(contrast_in(black.grab().toImage(), black.rect()) < 2);
    QVERIFY(contrast_in(QLabel("Text").grab().toImage(), QRect(0, 0, 100, 30)) > 8);
}

void tst_dark_desktop::cleanup()
{
    QCOMPARE(user.unexpected(), 0);
    QCOMPARE(user.answers_left(), 0);
    QCOMPARE(user.dialogs_left(), 0);
}

void tst_dark_desktop::every_text_can_be_read_data()
{
    QTest::addColumn<QString>("name");
    const QStringList names = every_window::names();
    for (const QString& name : names)
        QTest::newRow(qPrintable(name)) << name;
}

void tst_dark_desktop::every_text_can_be_read()
{
    QFETCH(QString, name);
    const desktop_bench bench;
    QStringList found;
    every_window(bench, user).open(name, [&](QWidget& window) { found = hard_to_read(window); });
    QVERIFY2(found.isEmpty(), qPrintable(found.join("\n")));
}

void tst_dark_desktop::notes_of_a_history_load()
{
    const desktop_bench bench;
    QStringList found;
    int lines = 0;
    every_window(bench, user).open("history_dialog", [&](QWidget& window) {
        QMetaObject::invokeMethod(&window, "info_from_load_file_illegal_number", Q_ARG(int, 99));
        found = hard_to_read(window);
        lines = child_of<QAbstractItemView>(window, "LW_load_protocol")->model()->rowCount();
    });
    QVERIFY(lines > 1);
    QVERIFY2(found.isEmpty(), qPrintable(found.join("\n")));
}

void tst_dark_desktop::the_warning_of_the_load_menu()
{
    const desktop_bench bench;
    double contrast = 0;
    every_window(bench, user).open("load_files_option", [&](QWidget& window) {
        auto* const warning = child_of<QLabel>(window, "LB_00_warning");
        warning->setText("WARNUNG");
        bench.settle();
        contrast = contrast_in(window.grab().toImage(), within_window(*warning, warning->rect()));
    });
    QVERIFY2(contrast >= for_small_text, qPrintable(QString::number(contrast)));
}

void tst_dark_desktop::the_marked_line_of_an_error()
{
    const desktop_bench bench;
    QVector<QColor> colours;
    every_window(bench, user).open("error of a system", [&](QWidget& window) {
        QTextDocument text;
        text.setHtml(dynamic_cast<QMessageBox&>(window).text());
        for (QTextBlock block = text.begin(); block.isValid(); block = block.next()) {
            for (auto place = block.begin(); !place.atEnd(); ++place) {
                const QBrush brush = place.fragment().charFormat().foreground();
                if (brush.style() != Qt::NoBrush) colours.append(brush.color());
            }
        }
    });
    QVERIFY(!colours.isEmpty());
    for (const QColor& colour : qAsConst(colours))
        QVERIFY2(contrast_of(colour, QColor(53, 53, 53)) >= for_small_text,
                 qPrintable(colour.name()));
}

void tst_dark_desktop::findings_of_the_editor()
{
    const desktop_bench bench;
    QStringList texts;
    every_window(bench, user).open("editor_window", [&](QWidget& window) {
        const auto all = texts_of(window);
        for (const shown_text& text : all)
            if (text.what.startsWith("TW_findings")) texts.append(text.what);
    });
    QVERIFY2(texts.contains("TW_findings: Fehler"), qPrintable(texts.join(' ')));
}

/// With a large font of the desktop too.
void tst_dark_desktop::the_menu_bar_shows_its_menus_data()
{
    QTest::addColumn<int>("points");
    for (const int points : {8, 12, 16, 24})
        QTest::addRow("%d points", points) << points;
}

void tst_dark_desktop::the_menu_bar_shows_its_menus()
{
    QFETCH(int, points);
    const QFont usual = QApplication::font();
    QFont large = usual;
    large.setPointSize(points);
    QApplication::setFont(large);
    {
        const desktop_bench bench;
        const auto* const bar = bench.child<QMenuBar>("menubar");
        const QImage picture = bench.window->grab().toImage();
        const auto menus = bar->actions();
        QCOMPARE(menus.size(), 6);
        for (QAction* menu : menus) {
            const QRect place = bar->actionGeometry(menu);
            QVERIFY2(!place.isEmpty() && bar->rect().contains(place), qPrintable(menu->text()));
            QVERIFY2(contrast_in(picture, within_window(*bar, place)) >= for_small_text,
                     qPrintable(menu->text()));
        }
    }
    QApplication::setFont(usual);
}

int main(int argc, char** argv)
{
    return run_window_test<tst_dark_desktop>(argc, argv);
}

#include "tst_dark_desktop.moc"
