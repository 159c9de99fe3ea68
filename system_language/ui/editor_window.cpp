#include "editor_window.h"

#include "completion_words.h"
#include "cpp_highlighter.h"
#include "findings_list.h"
#include "highlighter_icon.h"
#include "setting.h"
#include "ui_editor_window.h"

#include <QComboBox>
#include <QEvent>
#include <QFileInfo>
#include <QFontComboBox>
#include <QFontDatabase>
#include <QInputDialog>
#include <QLabel>
#include <QStyle>
#include <QTextBlock>
#include <QTimer>

#include <algorithm>

namespace
{

constexpr int check_delay = 500;                 // ms behind the last key
constexpr int largest_text_checked = 300 * 1000; // characters, while one writes
constexpr int part_size = 96 * 1024;             // characters that are shown at once
constexpr int tab_width = 4;                     // characters
constexpr int combo_width = 100;
constexpr int findings_height = 150;

const QStringList& font_sizes()
{
    static const QStringList sizes = {"72",
                                      "48",
                                      "36",
                                      "28",
                                      "26",
                                      "24",
                                      "22",
                                      "20",
                                      "18",
                                      "16",
                                      "14",
                                      "12",
                                      "11",
                                      "10",
                                      "9",
                                      "8",
                                      "7",
                                      "6"};
    return sizes;
}

} // namespace

editor_window::editor_window(edit_mode opened_mode,
                             general_player::player_names of_player,
                             setting& user_settings,
                             const players_control& all_players,
                             const numberStorage& number_source,
                             QWidget* parent,
                             general_loadfile::loadfile_type follow_place)
    : QMainWindow(parent)
    , ui(std::make_unique<Ui::editor_window>())
    , settings(user_settings)
    , players(all_players)
    , numbers(number_source)
    , mode(opened_mode)
    , player(of_player)
    , patterns(int(user_settings.form()))
    , check_timer(new QTimer(this))
    , load_timer(new QTimer(this))
{
    build_window();
    open_by_mode(follow_place);
}

editor_window::editor_window(const system_status::sys_error_infos& error,
                             general_player::player_names of_player,
                             setting& user_settings,
                             const players_control& all_players,
                             const numberStorage& number_source,
                             QWidget* parent)
    : editor_window(
          edit_mode::system_file, of_player, user_settings, all_players, number_source, parent)
{
    error_on_show = error;
    show_error(error.error_text);
    if (!is_loading()) text_is_complete();
}

editor_window::~editor_window()
{
    // The editor speaks once more while its children go.
    disconnect(ui->editor, nullptr, this, nullptr);
    disconnect(ui->editor->document(), nullptr, this, nullptr);
}

// The window

void editor_window::build_window()
{
    check_timer->setObjectName(QStringLiteral("check_timer"));
    check_timer->setSingleShot(true);
    check_timer->setInterval(check_delay);
    connect(check_timer, &QTimer::timeout, this, &editor_window::check_while_writing);
    load_timer->setObjectName(QStringLiteral("load_timer"));
    connect(load_timer, &QTimer::timeout, this, &editor_window::append_next_part);

    // Made before the form, which connects the actions that it finds to the slots of their names.
    highlighter_action = new highlighter_icon(this);
    highlighter_action->setObjectName(QStringLiteral("actionSyntax_Highligther"));
    ui->setupUi(this);
    setWindowIcon(QIcon(QStringLiteral(":/general/grafik/icon/Roul10.ico")));
    ui->search_bar->set_editor(ui->editor);
    ui->search_bar->hide();
    ui->LB_error->hide();
    ui->MoveCursor->setVisible(false);
    ui->editor->setCenterOnScroll(false);
    ui->editor->setFocus();

    highlighter = new CppHighlighter(patterns, ui->editor->document());
    connect(highlighter_action,
            &highlighter_icon::enable_highlighter,
            this,
            &editor_window::activate_highlighter);
    connect(highlighter_action,
            &highlighter_icon::disable_highlighter,
            this,
            &editor_window::deactivate_highlighter);
    connect(
        ui->editor, &QPlainTextEdit::updateRequest, this, &editor_window::colour_blocks_on_show);

    connect(
        ui->editor->document(), &QTextDocument::contentsChange, this, &editor_window::note_change);

    findings_dock = new findings_list(this);
    addDockWidget(Qt::BottomDockWidgetArea, findings_dock);
    findings_dock->hide();
    connect(findings_dock, &findings_list::finding_chosen, this, &editor_window::go_to_finding);

    build_tool_bar();
    build_status_bar();
    connect_edit_actions();
    show_texts();
}

void editor_window::build_tool_bar()
{
    show_icons();
    ui->menuSystem->insertAction(ui->actionCheck, highlighter_action);
    ui->toolBar->addAction(highlighter_action);
    ui->toolBar->addSeparator();

    font_combo = new QFontComboBox(ui->toolBar);
    font_combo->setObjectName(QStringLiteral("COB_font"));
    font_combo->setFontFilters(QFontComboBox::MonospacedFonts);
    font_combo->setMinimumWidth(combo_width);
    const QString family = settings.s_editor_font();
    font_combo->setCurrentFont(
        family.isEmpty() ? QFontDatabase::systemFont(QFontDatabase::FixedFont) : QFont(family));
    size_combo = new QComboBox(ui->toolBar);
    size_combo->setObjectName(QStringLiteral("COB_size"));
    size_combo->addItems(font_sizes());
    size_combo->setMinimumWidth(combo_width);
    size_combo->setMaxVisibleItems(font_sizes().size());
    size_combo->setCurrentText(settings.s_editor_font_size());
    ui->toolBar->addWidget(font_combo);
    ui->toolBar->addWidget(size_combo);
    connect(font_combo, &QFontComboBox::currentFontChanged, this, &editor_window::setCurrentFont);
    connect(size_combo,
            QOverload<int>::of(&QComboBox::currentIndexChanged),
            this,
            &editor_window::setCurrentFont);
    setCurrentFont();
}

void editor_window::show_icons()
{
    const struct {
        QAction* action;
        QStyle::StandardPixmap picture;
    } icons[] = {
        {ui->actionNeu, QStyle::SP_FileIcon},
        {ui->action_ffnen, QStyle::SP_DialogOpenButton},
        {ui->actionSpeichern, QStyle::SP_DialogSaveButton},
        {ui->actionUndo, QStyle::SP_ArrowBack},
        {ui->actionRedo, QStyle::SP_ArrowForward},
        {ui->actionCheck, QStyle::SP_DialogApplyButton},
        {ui->MoveCursor, QStyle::SP_MessageBoxWarning},
    };
    for (const auto& icon : icons)
        icon.action->setIcon(style()->standardIcon(icon.picture));
}

void editor_window::build_status_bar()
{
    const auto added_label = [this](const char* name) {
        auto* label = new QLabel(this);
        label->setObjectName(QLatin1String(name));
        label->setMargin(3);
        return label;
    };
    change_label = added_label("LB_changed");
    findings_label = added_label("LB_findings");
    position_label = added_label("LB_position");
    form_label = added_label("LB_form");
    ui->statusbar->addWidget(change_label);
    ui->statusbar->addWidget(findings_label, 1);
    ui->statusbar->addPermanentWidget(position_label);
    ui->statusbar->addPermanentWidget(form_label);
    connect(
        ui->editor, &QPlainTextEdit::cursorPositionChanged, this, &editor_window::show_position);
}

void editor_window::connect_edit_actions()
{
    ZV_Editor* editor = ui->editor;
    find_bar* bar = ui->search_bar;
    connect(ui->actionUndo, &QAction::triggered, editor, &QPlainTextEdit::undo);
    connect(ui->actionRedo, &QAction::triggered, editor, &QPlainTextEdit::redo);
    connect(ui->actionCut, &QAction::triggered, editor, &QPlainTextEdit::cut);
    connect(ui->actionCopy, &QAction::triggered, editor, &QPlainTextEdit::copy);
    connect(ui->actionPaste, &QAction::triggered, editor, &QPlainTextEdit::paste);
    connect(ui->actionSelect_all, &QAction::triggered, editor, &QPlainTextEdit::selectAll);
    connect(ui->actionFind, &QAction::triggered, bar, &find_bar::open_for_search);
    connect(ui->actionReplace, &QAction::triggered, bar, &find_bar::open_for_replace);
    connect(ui->actionFind_next, &QAction::triggered, bar, &find_bar::find_next);
    connect(ui->actionFind_previous, &QAction::triggered, bar, &find_bar::find_previous);

    for (QAction* action : {ui->actionUndo, ui->actionRedo, ui->actionCut, ui->actionCopy})
        action->setEnabled(false);
    connect(editor, &QPlainTextEdit::undoAvailable, ui->actionUndo, &QAction::setEnabled);
    connect(editor, &QPlainTextEdit::redoAvailable, ui->actionRedo, &QAction::setEnabled);
    connect(editor, &QPlainTextEdit::copyAvailable, this, [this](bool is_selected) {
        ui->actionCopy->setEnabled(is_selected);
        ui->actionCut->setEnabled(is_selected && !ui->editor->isReadOnly());
    });
}

void editor_window::changeEvent(QEvent* event)
{
    if (event->type() == QEvent::LanguageChange) {
        ui->retranslateUi(this);
        show_texts();
    }
    QMainWindow::changeEvent(event);
}

void editor_window::show_texts()
{
    highlighter_action->refresh_text();
    font_combo->setAccessibleName(tr("Schriftart"));
    font_combo->setToolTip(font_combo->accessibleName());
    size_combo->setAccessibleName(tr("Schriftgröße"));
    size_combo->setToolTip(size_combo->accessibleName());
    if (!error_on_show.error_text.isEmpty()) show_error(error_on_show.error_text);
    show_title();
    show_state();
    show_position();
}

void editor_window::show_title()
{
    QString title = path.isEmpty() ? tr("Neue Datei") : QFileInfo(path).fileName();
    if (mode == edit_mode::protocol_file) title += tr(" (schreibgeschützt)");
    setWindowTitle(title);
}

// What the text allows, and the status bar.
void editor_window::show_state()
{
    const bool is_writable = mode != edit_mode::protocol_file;
    const bool is_ready = is_writable && !is_loading();
    ui->editor->setReadOnly(!is_ready);
    ui->actionNeu->setEnabled(is_ready);
    ui->action_ffnen->setEnabled(is_ready);
    ui->actionSpeichern->setEnabled(is_ready && text_changed);
    ui->actionSave_as->setEnabled(is_ready);
    ui->actionPaste->setEnabled(is_ready);
    ui->actionReplace->setEnabled(is_ready);
    ui->actionCheck->setEnabled(is_ready && is_system_text());
    highlighter_action->setEnabled(is_system_text());

    change_label->setVisible(text_changed || is_loading());
    change_label->setText(is_loading() ? tr("Wird geladen...") : tr("Geändert"));
    QString form_text =
        form.codec == "ISO-8859-1" ? QStringLiteral("Latin-1") : QString::fromLatin1(form.codec);
    if (form.line_end == QLatin1String("\r\n")) form_text += QStringLiteral(", CR LF");
    if (form.line_end == QLatin1String("\r")) form_text += QStringLiteral(", CR");
    form_label->setText(form_text);
    form_label->setToolTip(path);

    const auto errors =
        std::count_if(findings.cbegin(), findings.cend(), [](const system_finding& finding) {
            return finding.severity == system_finding::kind::error;
        });
    findings_label->setText(
        findings.isEmpty()
            ? QString()
            : tr("Fehler: %1, Warnungen: %2").arg(errors).arg(findings.size() - errors));
}

void editor_window::show_position()
{
    const QTextCursor cursor = ui->editor->textCursor();
    position_label->setText(
        tr("Zeile %1, Spalte %2").arg(cursor.blockNumber() + 1).arg(cursor.positionInBlock() + 1));
}

void editor_window::show_error(const QString& message)
{
    ui->LB_error->setText(tr("Fehler: ") + message);
    ui->LB_error->show();
}

void editor_window::forget_error()
{
    error_on_show = {};
    ui->LB_error->hide();
}

void editor_window::setCurrentFont()
{
    QFont font = font_combo->currentFont();
    font.setPointSize(size_combo->currentText().toInt());
    ui->editor->setFont(font);
    ui->editor->setTabStopDistance(tab_width *
                                   QFontMetricsF(font).horizontalAdvance(QLatin1Char(' ')));
}

// Colours

void editor_window::on_actionSyntax_Highligther_triggered(bool /*checked*/)
{
    highlighter_action->change_icon();
}

void editor_window::deactivate_highlighter()
{
    highlighter->setDocument(nullptr);
}

void editor_window::activate_highlighter()
{
    highlighter->setDocument(ui->editor->document());
}

void editor_window::colour_blocks_on_show()
{
    const block_range on_show = ui->editor->blocks_on_show();
    highlighter->set_blocks_on_show(on_show.first, on_show.last);
}

bool editor_window::is_system_text() const
{
    return mode != edit_mode::protocol_file &&
           QFileInfo(path).suffix().compare(QLatin1String("syf"), Qt::CaseInsensitive) == 0;
}

void editor_window::follow_suffix()
{
    if (is_system_text()) {
        highlighter_action->highlighter_activ();
        activate_highlighter();
        ui->editor->set_completion_words(completion_words(patterns, int(settings.form())));
    } else {
        highlighter_action->highlighter_not_activ();
        deactivate_highlighter();
        ui->editor->set_completion_words({});
    }
}

// The text

void editor_window::take_name(const QString& file)
{
    path = file;
    show_title();
    follow_suffix();
}

// A text that is not changed yet is no change: its signal is connected behind its last part.
void editor_window::show_text(const QString& text)
{
    disconnect(ui->editor, &QPlainTextEdit::textChanged, this, &editor_window::user_textChange);
    check_timer->stop();
    findings.clear();
    ui->editor->show_findings({});
    ui->editor->forget_error_mark();
    ui->editor->setCurrentCharFormat(QTextCharFormat()); // a mark may lie under the cursor
    ui->editor->document()->setUndoRedoEnabled(false);
    text_changed = false;
    may_be_given_up = false;
    coming_text = text;
    coming_position = 0;
    ui->editor->clear();
    append_next_part();
}

bool editor_window::is_loading() const
{
    return load_timer->isActive();
}

void editor_window::append_next_part()
{
    const int line_end = coming_text.indexOf(QLatin1Char('\n'), coming_position + part_size);
    const int end = line_end < 0 ? coming_text.size() : line_end + 1;
    const QString part = coming_text.mid(coming_position, end - coming_position);
    if (coming_position == 0) {
        ui->editor->setPlainText(part);
    } else {
        QTextCursor cursor(ui->editor->document());
        cursor.movePosition(QTextCursor::End);
        cursor.insertText(part);
    }
    coming_position = end;
    if (end < coming_text.size()) {
        if (is_loading()) return;
        load_timer->start(0);
        show_state();
        return;
    }
    load_timer->stop();
    coming_text.clear();
    text_is_complete();
}

void editor_window::text_is_complete()
{
    show_state();
    QTextDocument* document = ui->editor->document();
    document->setUndoRedoEnabled(true);
    document->setModified(false);
    if (error_on_show.error_line > 0) {
        is_changing_mark = true;
        ui->editor->highlightErrorLineAndPos(error_on_show);
        is_changing_mark = false;
    }
    ui->MoveCursor->setVisible(ui->editor->error_mark_line() > 0);
    ui->editor->highlightCurrentLine();
    letters_changed = false;
    seen_undo_steps = document->availableUndoSteps();
    connect(ui->editor,
            &QPlainTextEdit::textChanged,
            this,
            &editor_window::user_textChange,
            Qt::UniqueConnection);
    if (is_system_text()) check_timer->start();
}

// Colours change a document too. They take away as much as they add, and leave no step of undo.
void editor_window::note_change(int /*position*/, int removed, int added)
{
    const int undo_steps = ui->editor->document()->availableUndoSteps();
    if (removed != added || undo_steps != seen_undo_steps) letters_changed = true;
    seen_undo_steps = undo_steps;
}

void editor_window::user_textChange()
{
    if (is_changing_mark || !letters_changed || mode == edit_mode::protocol_file) return;
    letters_changed = false;
    may_be_given_up = false;
    take_error_mark_off();
    text_changed = ui->editor->document()->isModified();
    show_state();
    if (is_system_text()) check_timer->start();
}

// Undo brings a mark back that was taken off, and keeps it.
void editor_window::take_error_mark_off()
{
    ZV_Editor* editor = ui->editor;
    const bool is_in_line = editor->textCursor().blockNumber() + 1 == editor->error_mark_line();
    if (!is_in_line || editor->document()->isRedoAvailable()) return;
    is_changing_mark = true;
    editor->take_error_mark_off();
    is_changing_mark = false;
    letters_changed = false;
}

void editor_window::on_MoveCursor_triggered()
{
    ui->editor->go_to_error_mark();
    ui->editor->setFocus();
    emit changeCursor();
}

void editor_window::on_actionGo_to_line_triggered()
{
    bool is_chosen = false;
    const int line = QInputDialog::getInt(this,
                                          tr("Gehe zu Zeile"),
                                          tr("Zeile:"),
                                          ui->editor->textCursor().blockNumber() + 1,
                                          1,
                                          ui->editor->blockCount(),
                                          1,
                                          &is_chosen);
    if (is_chosen) ui->editor->go_to(line);
}

// Findings

void editor_window::set_check(check_function new_check)
{
    check = std::move(new_check);
}

void editor_window::check_while_writing()
{
    if (ui->editor->document()->characterCount() <= largest_text_checked) check_now();
}

void editor_window::check_now()
{
    if (!is_system_text() || is_loading()) return;
    findings = check(ui->editor->text(), patterns);
    std::stable_sort(findings.begin(),
                     findings.end(),
                     [](const system_finding& one, const system_finding& other) {
                         return one.line < other.line;
                     });
    ui->editor->show_findings(findings);
    findings_dock->show_findings(findings);
    show_state();
}

void editor_window::on_actionCheck_triggered()
{
    check_timer->stop();
    check_now();
    if (findings_dock->isVisible()) return;
    findings_dock->show();
    resizeDocks({findings_dock}, {findings_height}, Qt::Vertical);
}

void editor_window::go_to_finding(const system_finding& finding)
{
    ui->editor->go_to(finding.line, finding.column, finding.length);
    ui->editor->setFocus();
}
