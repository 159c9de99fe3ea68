#include "editor_window.h"
#include "file_dialog.h"
#include "message_box.h"
#include "numberstorage.h"
#include "players_control.h"
#include "setting.h"
#include "ui_editor_window.h"

#include <QApplication>
#include <QCloseEvent>
#include <QComboBox>
#include <QDir>
#include <QDragEnterEvent>
#include <QFileInfo>
#include <QFontComboBox>
#include <QMimeData>

using general_loadfile::MAIN_LOADFILE;

static const QString box_title = QStringLiteral("Zarvello");

// The blanks widen the list of the file dialog.
static constexpr int blanks_to_open = 60;
static constexpr int blanks_to_save = 62;

/// The first file among dragged things, empty without one.
static QString file_among(const QMimeData* dragged)
{
    for (const QUrl& url : dragged->urls()) {
        const QString file = url.toLocalFile();
        if (QFileInfo(file).isFile()) return file;
    }
    return {};
}

static bool is_same_file(const QString& one, const QString& other)
{
    return !one.isEmpty() && !other.isEmpty() && QFileInfo(one) == QFileInfo(other);
}

// Reading

void editor_window::open_by_mode(general_loadfile::loadfile_type follow_place)
{
    switch (mode) {
    case edit_mode::system_file:
        load_file(settings.s_user_sys_file(player));
        break;
    case edit_mode::protocol_file:
        load_file(settings.s_user_out_file(player));
        break;
    case edit_mode::main_load_file:
        load_file(numbers.load_files().value(MAIN_LOADFILE));
        break;
    case edit_mode::follow_load_file:
        load_file(numbers.load_files().value(follow_place));
        break;
    case edit_mode::new_file:
        take_name(ask_for_file(dialog_kind::save, tr("Neue Datei")));
        show_text({});
        break;
    case edit_mode::open_file:
        load_file(ask_for_file(dialog_kind::open, tr("Datei öffnen")));
        break;
    }
}

QString editor_window::ask_for_file(dialog_kind kind, const QString& title)
{
    const QStringList entries = {tr("Systemspieldateien (*.syf)"),
                                 tr("Systemprotokolldateien (*.out)"),
                                 tr("Ladedateien (*.inp)"),
                                 tr("Sammelladedateien (*.snp)"),
                                 tr("Text Dateien (*.txt)"),
                                 tr("Alle Dateien (*.*)")};
    const int blanks = kind == dialog_kind::open ? blanks_to_open : blanks_to_save;
    const QString filter = entries.join(QLatin1String(";;") + QString(blanks, QLatin1Char(' ')));
    const file_dialog::request request = {title, QDir::currentPath(), filter};
    QWidget* over = isVisible() ? this : QApplication::activeWindow();
    return kind == dialog_kind::open ? file_dialog::open_file(over, request)
                                     : file_dialog::save_file(over, request);
}

void editor_window::load_file(const QString& file)
{
    const text_in_file content = read_text_file(file);
    form = content.form;
    take_name(file);
    show_text(content.text);
}

void editor_window::open_file(const QString& file)
{
    forget_error();
    load_file(file);
}

void editor_window::on_actionNeu_triggered()
{
    if (!save_if_changed()) return;
    path.clear();
    form = {};
    forget_error();
    show_title();
    show_text({});
}

void editor_window::on_action_ffnen_triggered()
{
    if (!save_if_changed()) return;
    const QString file = ask_for_file(dialog_kind::open, tr("Datei öffnen"));
    if (!file.isEmpty()) open_file(file);
}

bool editor_window::can_open_files() const
{
    return mode != edit_mode::protocol_file && !is_loading();
}

void editor_window::dragEnterEvent(QDragEnterEvent* event)
{
    if (can_open_files() && !file_among(event->mimeData()).isEmpty()) event->acceptProposedAction();
}

void editor_window::dropEvent(QDropEvent* event)
{
    const QString file = file_among(event->mimeData());
    if (file.isEmpty() || !can_open_files()) return;
    event->acceptProposedAction();
    if (save_if_changed()) open_file(file);
}

// Saving

void editor_window::on_actionSpeichern_triggered()
{
    save();
}

void editor_window::on_actionSave_as_triggered()
{
    save_as();
}

bool editor_window::save_if_changed()
{
    return !text_changed || save();
}

bool editor_window::is_system_in_play() const
{
    return mode == edit_mode::system_file && player != general_player::NO_PLAYER &&
           players.table().account_of(player).is_system &&
           is_same_file(path, settings.s_user_sys_file(player));
}

bool editor_window::is_load_file_in_play() const
{
    return mode == edit_mode::main_load_file && numbers.in_load_mode() &&
           is_same_file(path, numbers.load_files().value(MAIN_LOADFILE));
}

bool editor_window::save()
{
    if (path.isEmpty()) return save_as();
    if (is_load_file_in_play()) {
        const bool is_wanted =
            message_box::ask(this,
                             box_title,
                             tr("Die aktive Hauptladedatei wurde geändert - Änderungen übernehmen "
                                "und Hauptladedatei neu laden?"));
        if (!is_wanted || !write(path)) return false;
        if (is_load_file_in_play()) emit restart_mainloadfile();
        return true;
    }
    if (is_system_in_play()) {
        const bool is_wanted =
            message_box::ask(this,
                             box_title,
                             tr("Die aktive Systemspieldatei wurde geändert - Änderungen "
                                "übernehmen und System neu starten?"));
        if (!is_wanted || !write(path)) return false;
        if (is_system_in_play()) emit restart_systemplay(player); // it may have ended meanwhile
        return true;
    }
    return write(path);
}

bool editor_window::save_as()
{
    const QString file = ask_for_file(dialog_kind::save, tr("Speichere unter..."));
    if (file.isEmpty() || !write(file)) return false;
    take_name(file);
    show_state();
    if (is_system_text()) check_now();
    return true;
}

bool editor_window::write(const QString& file)
{
    const QString fault = write_text_file(file, ui->editor->text(), form);
    if (!fault.isEmpty()) {
        message_box::tell(this,
                          box_title,
                          tr("Die Datei %1 konnte nicht gespeichert werden!\n%2")
                              .arg(QDir::toNativeSeparators(file), fault),
                          QMessageBox::Warning);
        return false;
    }
    text_changed = false;
    ui->editor->document()->setModified(false);
    forget_error();
    show_state();
    return true;
}

// Closing

bool editor_window::ask_to_save()
{
    if (!text_changed || may_be_given_up) return true;
    QMessageBox box(QMessageBox::Question,
                    box_title,
                    tr("Sollen die Änderungen gespeichert werden?"),
                    QMessageBox::Yes | QMessageBox::No | QMessageBox::Cancel,
                    this);
    box.setDefaultButton(QMessageBox::Yes);
    box.setEscapeButton(QMessageBox::Cancel);
    const QMessageBox::StandardButton answer = message_box::show(box);
    if (answer == QMessageBox::Yes) return save();
    may_be_given_up = answer == QMessageBox::No;
    return may_be_given_up;
}

void editor_window::on_actionClose_triggered()
{
    close();
}

void editor_window::closeEvent(QCloseEvent* event)
{
    settings.set_s_editor_font(font_combo->currentFont().family());
    settings.set_s_editor_font_size(size_combo->currentText());
    if (!ask_to_save()) {
        event->ignore();
        return;
    }
    event->accept();
    emit editor_window_close();
}
