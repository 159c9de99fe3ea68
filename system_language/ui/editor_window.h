#ifndef EDITOR_WINDOW_H
#define EDITOR_WINDOW_H

#include "game_types.h"
#include "load_file_types.h"
#include "sys_result_info.h"
#include "system_check.h"
#include "system_pattern.h"
#include "text_file.h"

#include <QMainWindow>

#include <functional>
#include <memory>

class CppHighlighter;
class findings_list;
class highlighter_icon;
class numberStorage;
class players_control;
class setting;
class QComboBox;
class QFontComboBox;
class QLabel;
class QTimer;

namespace Ui
{
class editor_window;
}

/// What an editor window opens with.
enum class edit_mode {
    system_file = 0,      ///< the system file of the player
    protocol_file = 1,    ///< the protocol of the player, to be read only
    main_load_file = 2,   ///< the main load file
    follow_load_file = 3, ///< a follow load file
    new_file = 4,         ///< nothing; the user names a file first
    open_file = 5         ///< a file that the user chooses
};

/**
 * The editor for system files, protocols and load files, a window of its own. Several can be open.
 *
 * A text keeps the encoding and the line ends of its file. A long text comes in parts, between
 * which the window stays awake; it can be written in when all of it is there. Text that was
 * changed is never given up without asking.
 *
 * System files (".syf") are coloured, checked while one writes, and the words of the language are
 * offered.
 */
class editor_window : public QMainWindow
{
    Q_OBJECT
    Q_PROPERTY(QStringList help_keys READ help_keys)

public:
    /// Finds what is wrong with a system text.
    using check_function =
        std::function<QVector<system_finding>(const QString& text, const system_pattern& patterns)>;

    /// Opens the text of a mode; modes 4 and 5 ask for a file, and give an empty text without a
    /// name if the user names none. All references must outlive the window.
    /// @param player  whose files are meant by modes 0 and 1
    /// @param follow_place  which follow load file is meant by mode 3
    editor_window(
        edit_mode mode,
        general_player::player_names player,
        setting& settings,
        const players_control& players,
        const numberStorage& numbers,
        QWidget* parent = nullptr,
        general_loadfile::loadfile_type follow_place = general_loadfile::FOLLOW_LOADFILE_1);

    /// Opens the system file of the player with the place of an error marked and its message shown.
    editor_window(const system_status::sys_error_infos& error,
                  general_player::player_names player,
                  setting& settings,
                  const players_control& players,
                  const numberStorage& numbers,
                  QWidget* parent = nullptr);
    ~editor_window() override;

    /// Asks whether a changed text is to be saved, and saves it. True if the text may go: it was
    /// not changed, is saved, or the user gives it up. False if the user cancels or the text could
    /// not be saved. A text that was given up is not asked about again until it changes.
    bool ask_to_save();

    /// Shows another file in the manner of the window, a protocol to be read only. The text that
    /// is shown goes without a question.
    void open_file(const QString& file);

    /// The path of the file in the window, empty for a text without a name.
    const QString& file_path() const { return path; }

    /// True while parts of a long text are still to come.
    bool is_loading() const;

    /// What F1 is asked for at the cursor, the fitting key first: "statement:CO" for the word
    /// "CO01", then the words before it in its statement. Empty for a text that is no system.
    QStringList help_keys() const;

    /// Takes another check than `check_system_text`.
    void set_check(check_function new_check);

public slots:
    void deactivate_highlighter();
    void activate_highlighter();

signals:
    /// The system file that a player plays by was saved, and the system is to start again.
    void restart_systemplay(general_player::player_names player);

    /// The main load file in play was saved and is to be read again.
    void restart_mainloadfile();

    /// The cursor was moved to the place of the error.
    void changeCursor();

    /// The window was closed; nothing is lost if it is deleted now.
    void editor_window_close();

protected:
    void changeEvent(QEvent* event) override;
    void closeEvent(QCloseEvent* event) override;
    void dragEnterEvent(QDragEnterEvent* event) override;
    void dropEvent(QDropEvent* event) override;

private slots:
    void on_actionSyntax_Highligther_triggered(bool checked);
    void setCurrentFont();
    void user_textChange();
    void on_actionClose_triggered();
    void on_actionSpeichern_triggered();
    void on_actionSave_as_triggered();
    void on_actionNeu_triggered();
    void on_action_ffnen_triggered();
    void on_actionGo_to_line_triggered();
    void on_actionCheck_triggered();
    void on_MoveCursor_triggered();

private:
    enum class dialog_kind { open, save };

    // the window
    void build_window();
    void build_tool_bar();
    void build_status_bar();
    void connect_edit_actions();
    void show_icons();
    void show_texts();
    void show_title();
    void show_state();
    void show_position();
    void show_error(const QString& message);
    void forget_error();
    void colour_blocks_on_show();

    // the text
    void open_by_mode(general_loadfile::loadfile_type follow_place);
    void load_file(const QString& file);
    void show_text(const QString& text);
    void append_next_part();
    void text_is_complete();
    void take_error_mark_off();
    void note_change(int position, int removed, int added);
    void take_name(const QString& file);
    void follow_suffix();
    bool is_system_text() const;
    void check_while_writing();
    void check_now();
    void go_to_finding(const system_finding& finding);

    // files
    QString ask_for_file(dialog_kind kind, const QString& title);
    bool save();
    bool save_as();
    bool save_if_changed();
    bool write(const QString& file);
    bool is_system_in_play() const;
    bool is_load_file_in_play() const;
    bool can_open_files() const;

    std::unique_ptr<Ui::editor_window> ui;
    setting& settings;
    const players_control& players;
    const numberStorage& numbers;
    edit_mode mode;
    general_player::player_names player;
    system_pattern patterns;
    check_function check = check_system_text;

    QString path;
    text_form form;
    bool text_changed = false;
    bool may_be_given_up = false; // the user said so
    bool is_changing_mark = false;
    bool letters_changed = false; // since the last change was taken note of
    int seen_undo_steps = 0;
    QString coming_text; // of a file whose parts are still to come
    int coming_position = 0;
    system_status::sys_error_infos error_on_show;
    QVector<system_finding> findings;

    QFontComboBox* font_combo = nullptr;
    QComboBox* size_combo = nullptr;
    highlighter_icon* highlighter_action = nullptr;
    CppHighlighter* highlighter = nullptr;
    findings_list* findings_dock = nullptr;
    QLabel* change_label = nullptr;
    QLabel* findings_label = nullptr;
    QLabel* position_label = nullptr;
    QLabel* form_label = nullptr;
    QTimer* check_timer = nullptr;
    QTimer* load_timer = nullptr;
};

#endif // EDITOR_WINDOW_H
