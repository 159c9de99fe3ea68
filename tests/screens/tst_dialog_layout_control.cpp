#include "dialog_layout_control.h"
#include "setting.h"
#include "window_bench.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDateEdit>
#include <QDialogButtonBox>
#include <QGridLayout>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QSlider>
#include <QSpinBox>
#include <QTableWidget>
#include <QTextEdit>

#include <memory>

static const QSize full_size(601, 533);
static const QString group_style = QStringLiteral("QGroupBox { font-weight: bold; }");

namespace
{

/// A dialog with one child of each kind, all limited to 40 by 20 up to 90 by 50.
class probe_dialog : public dialog_layout_control
{
public:
    explicit probe_dialog(const setting& settings, bool remembers = true)
        : dialog_layout_control(settings)
    {
        QFont font = this->font();
        font.setPointSize(10);
        setFont(font);
        resize(full_size);
        auto* lines = new QVBoxLayout(this);
        lines->setContentsMargins(20, 10, 15, 25);
        lines->setSpacing(10);
        grid = new QGridLayout;
        grid->setHorizontalSpacing(30);
        grid->setVerticalSpacing(5);
        lines->addLayout(grid);
        add(new QSlider, "slider");
        add(new QDateEdit, "date");
        add(new QLabel("Text"), "label");
        add(new QComboBox, "combo");
        add(new QTableWidget, "table");
        add(new QPushButton("Text"), "push");
        add(new QSpinBox, "spin");
        add(new QLineEdit, "line");
        add(new QCheckBox("Text"), "check");
        add(new QRadioButton("Text"), "radio");
        add(new QTextEdit, "text");
        add(new QLabel("Text"), "");
        auto* group = new QGroupBox("Text");
        group->setStyleSheet(group_style);
        add(group, "group");
        box = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel);
        box->setObjectName("buttonBox");
        box->setMaximumHeight(40);
        lines->addWidget(box);
        if (remembers) remember_full_size();
    }

    QLayout* lines() const { return layout(); }
    QGridLayout* grid = nullptr;
    QDialogButtonBox* box = nullptr;

private:
    void add(QWidget* child, const char* name)
    {
        child->setObjectName(name);
        child->setMinimumSize(40, 20);
        child->setMaximumSize(90, 50);
        grid->addWidget(child, grid->count() / 4, grid->count() % 4);
    }
};

} // namespace

class tst_dialog_layout_control : public QObject
{
    Q_OBJECT

private slots:
    void the_size_follows_the_rule_data();
    void the_size_follows_the_rule();
    void the_font_is_one_point_above_the_rule_data();
    void the_font_is_one_point_above_the_rule();
    void limits_of_the_listed_classes_shrink_data();
    void limits_of_the_listed_classes_shrink();
    void indicators_shrink_by_a_style_sheet_data();
    void indicators_shrink_by_a_style_sheet();
    void the_buttons_of_the_box_shrink_data();
    void the_buttons_of_the_box_shrink();
    void the_gaps_shrink();
    void full_size_brings_everything_back();
    void a_design_in_bold_keeps_its_style();
    void texts_that_need_more_room_get_it();
    void a_dialog_built_while_the_table_is_small_is_small_at_once();
    void a_dialog_without_a_full_size_stays_as_it_is();
};

static void scale(setting& settings, dialog_layout_control& dialog, int step)
{
    settings.set_s_scr_res_factor(step);
    dialog.modify_window_based_on_scale();
}

void tst_dialog_layout_control::the_size_follows_the_rule_data()
{
    QTest::addColumn<int>("step");
    QTest::addColumn<QSize>("size");
    QTest::addColumn<double>("reduction");
    QTest::newRow("full") << 0 << full_size << 0.0;
    QTest::newRow("0.1") << 1 << QSize(540, 479) << 0.1; // 540.9, 479.7
    QTest::newRow("0.2") << 2 << QSize(480, 426) << 0.2; // 480.8, 426.4
    QTest::newRow("0.3") << 3 << QSize(420, 373) << 0.3; // 420.7, 373.1
}

void tst_dialog_layout_control::the_size_follows_the_rule()
{
    QFETCH(int, step);
    QFETCH(QSize, size);
    QFETCH(double, reduction);
    setting settings;
    probe_dialog dialog(settings);
    scale(settings, dialog, step);
    QCOMPARE(dialog.size(), size);
    QCOMPARE(dialog.minimumSize(), size);
    QCOMPARE(dialog.maximumSize(), size);
    QCOMPARE(dialog.reduction(), reduction);
    dialog.show();
    QCoreApplication::processEvents();
    QCOMPARE(dialog.size(), size);
}

void tst_dialog_layout_control::the_font_is_one_point_above_the_rule_data()
{
    QTest::addColumn<int>("step");
    QTest::addColumn<int>("points");
    QTest::newRow("full") << 0 << 10;
    QTest::newRow("0.1") << 1 << 10; // 9 + 1
    QTest::newRow("0.2") << 2 << 9;
    QTest::newRow("0.3") << 3 << 8;
}

void tst_dialog_layout_control::the_font_is_one_point_above_the_rule()
{
    QFETCH(int, step);
    QFETCH(int, points);
    setting settings;
    probe_dialog dialog(settings);
    dialog.show();
    scale(settings, dialog, step);
    QCOMPARE(dialog.font().pointSize(), points);
    const auto children = dialog.findChildren<QWidget*>();
    for (const QWidget* child : children) {
        if (child->objectName().isEmpty() || child->inherits("QGroupBox")) continue;
        if (child->window() != &dialog || child->parent()->inherits("QTableWidget")) continue;
        QVERIFY2(child->font().pointSize() == points, qPrintable(child->objectName()));
    }
    QCOMPARE(child_of<QLineEdit>(dialog, "qt_spinbox_lineedit")->font().pointSize(), points);
}

void tst_dialog_layout_control::limits_of_the_listed_classes_shrink_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<bool>("shrinks");
    for (const char* name :
         {"slider", "date", "label", "combo", "table", "push", "spin", "line", "check", "radio"}) {
        QTest::newRow(name) << QString(name) << true;
    }
    QTest::newRow("a class that is not listed") << "text" << false;
    QTest::newRow("group") << "group" << false;
    QTest::newRow("a child without a name") << "" << false;
}

void tst_dialog_layout_control::limits_of_the_listed_classes_shrink()
{
    QFETCH(QString, name);
    QFETCH(bool, shrinks);
    setting settings;
    const probe_dialog dialog(settings);
    const QList<QWidget*> named = dialog.findChildren<QWidget*>(name);
    const QWidget* child = nullptr;
    for (const QWidget* candidate : named) {
        const bool is_ours = candidate->parent() == &dialog;
        if (is_ours && candidate->objectName() == name && candidate->minimumWidth() == 40) {
            child = candidate;
        }
    }
    QVERIFY(child);
    scale(settings, const_cast<probe_dialog&>(dialog), 3);
    QCOMPARE(child->minimumSize(), shrinks ? QSize(28, 14) : QSize(40, 20));
    QCOMPARE(child->maximumSize(), shrinks ? QSize(63, 35) : QSize(90, 50));
}

void tst_dialog_layout_control::indicators_shrink_by_a_style_sheet_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<int>("step");
    QTest::addColumn<QString>("style_sheet");
    const QString radio = "QRadioButton::indicator { width: %1px; height: %1px;}";
    const QString check = "QCheckBox::indicator { width: %1px; height: %1px;}";
    QTest::newRow("radio, full") << "radio" << 0 << "";
    QTest::newRow("radio, 0.1") << "radio" << 1 << radio.arg(13); // 13.5
    QTest::newRow("radio, 0.2") << "radio" << 2 << radio.arg(12);
    QTest::newRow("radio, 0.3") << "radio" << 3 << radio.arg(10); // 10.5
    QTest::newRow("check, full") << "check" << 0 << "";
    QTest::newRow("check, 0.1") << "check" << 1 << check.arg(13);
    QTest::newRow("check, 0.2") << "check" << 2 << check.arg(12);
    QTest::newRow("check, 0.3") << "check" << 3 << check.arg(10);
    QTest::newRow("line, 0.3") << "line" << 3 << "";
}

void tst_dialog_layout_control::indicators_shrink_by_a_style_sheet()
{
    QFETCH(QString, name);
    QFETCH(int, step);
    QFETCH(QString, style_sheet);
    setting settings;
    probe_dialog dialog(settings);
    scale(settings, dialog, step);
    scale(settings, dialog, step);
    QCOMPARE(child_of<QWidget>(dialog, name)->styleSheet(), style_sheet);
}

void tst_dialog_layout_control::the_buttons_of_the_box_shrink_data()
{
    QTest::addColumn<int>("step");
    QTest::addColumn<int>("height");
    QTest::newRow("full") << 0 << 40;
    QTest::newRow("0.1") << 1 << 36;
    QTest::newRow("0.2") << 2 << 32;
    QTest::newRow("0.3") << 3 << 28;
}

void tst_dialog_layout_control::the_buttons_of_the_box_shrink()
{
    QFETCH(int, step);
    QFETCH(int, height);
    setting settings;
    probe_dialog dialog(settings);
    scale(settings, dialog, step == 3 ? 1 : 3);
    scale(settings, dialog, step);
    QCOMPARE(dialog.box->maximumHeight(), height);
    QCOMPARE(dialog.box->buttons().size(), 2);
    const auto buttons = dialog.box->buttons();
    for (const QAbstractButton* button : buttons)
        QCOMPARE(button->maximumHeight(), height);
}

void tst_dialog_layout_control::the_gaps_shrink()
{
    setting settings;
    probe_dialog dialog(settings);
    scale(settings, dialog, 3);
    QCOMPARE(dialog.lines()->contentsMargins(), QMargins(14, 7, 10, 17)); // 10.5, 17.5
    QCOMPARE(dialog.lines()->spacing(), 7);
    QCOMPARE(dialog.grid->horizontalSpacing(), 21);
    QCOMPARE(dialog.grid->verticalSpacing(), 3); // 3.5
    scale(settings, dialog, 0);
    QCOMPARE(dialog.lines()->contentsMargins(), QMargins(20, 10, 15, 25));
    QCOMPARE(dialog.lines()->spacing(), 10);
    QCOMPARE(dialog.grid->horizontalSpacing(), 30);
    QCOMPARE(dialog.grid->verticalSpacing(), 5);
}

void tst_dialog_layout_control::full_size_brings_everything_back()
{
    setting settings;
    probe_dialog dialog(settings);
    for (const int step : {3, 1, 2, 0})
        scale(settings, dialog, step);
    QCOMPARE(dialog.size(), full_size);
    QCOMPARE(dialog.font().pointSize(), 10);
    for (const char* name : {"slider", "label", "push", "line", "check", "radio", "text"}) {
        const auto* child = child_of<QWidget>(dialog, name);
        QCOMPARE(child->font().pointSize(), 10);
        QCOMPARE(child->minimumSize(), QSize(40, 20));
        QCOMPARE(child->maximumSize(), QSize(90, 50));
        QCOMPARE(child->styleSheet(), QString());
    }
}

void tst_dialog_layout_control::a_design_in_bold_keeps_its_style()
{
    setting settings;
    probe_dialog dialog(settings);
    for (const int step : {2, 0}) {
        scale(settings, dialog, step);
        QCOMPARE(child_of<QGroupBox>(dialog, "group")->styleSheet(), group_style);
    }
}

void tst_dialog_layout_control::texts_that_need_more_room_get_it()
{
    setting settings;
    probe_dialog dialog(settings);
    scale(settings, dialog, 3);
    QCOMPARE(dialog.width(), 420);
    auto* wide = new QLabel(QString(200, 'W'));
    dialog.layout()->addWidget(wide);
    dialog.modify_window_based_on_scale();
    const int needed = wide->fontMetrics().horizontalAdvance(wide->text());
    QVERIFY(needed > 420);
    QVERIFY(dialog.width() > needed);
}

void tst_dialog_layout_control::a_dialog_built_while_the_table_is_small_is_small_at_once()
{
    setting settings;
    settings.set_s_scr_res_factor(2);
    probe_dialog dialog(settings);
    QCOMPARE(dialog.size(), QSize(480, 426));
    scale(settings, dialog, 0);
    QCOMPARE(dialog.size(), full_size);
}

void tst_dialog_layout_control::a_dialog_without_a_full_size_stays_as_it_is()
{
    setting settings;
    probe_dialog dialog(settings, false);
    scale(settings, dialog, 3);
    QCOMPARE(dialog.size(), full_size);
    QCOMPARE(dialog.font().pointSize(), 10);
    QCOMPARE(dialog.reduction(), 0.0);
}

int main(int argc, char** argv)
{
    return run_window_test<tst_dialog_layout_control>(argc, argv);
}

#include "tst_dialog_layout_control.moc"
