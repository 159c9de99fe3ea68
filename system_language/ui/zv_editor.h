#ifndef ZV_EDITOR_H
#define ZV_EDITOR_H

#include "sys_result_info.h"
#include "system_check.h"

#include <QPlainTextEdit>
#include <QStringList>
#include <QVector>

class LineNumberArea;
class QCompleter;
class QHelpEvent;
class QStringListModel;

/// The blocks of a text that lie on the screen, by their numbers, both included.
struct block_range {
    int first = 0;
    int last = 0;
};

/**
 * The text field of the editor: line numbers, the line of the cursor in colour, marks of errors,
 * and words that are offered while one writes. It stays black on white, whatever the desktop: the
 * colours of the language are made for that.
 */
class ZV_Editor : public QPlainTextEdit
{
    Q_OBJECT

public:
    explicit ZV_Editor(QWidget* parent = nullptr);

    /// The whole text, character by character; lines are divided by "\n".
    QString text() const;

    /// Unit: pixels.
    int line_number_area_width() const;

    block_range blocks_on_show() const;

    /// The line that was marked, from 1, also after lines were added above; 0 without one.
    int error_mark_line() const;

    /// Puts the cursor into that line and shows it. Without one: no effect.
    void go_to_error_mark();

    /// Takes the mark off that line; a step that can be undone.
    void take_error_mark_off();

    /// Forgets which line was marked; the text keeps its looks.
    void forget_error_mark();

    /// Puts the cursor to a place, selects from there on and shows it. A place beyond the text or
    /// the line is drawn to its end.
    /// @param line  from 1
    /// @param column  from 1
    void go_to(int line, int column = 1, int length = 0);

    /// Marks the lines of these findings beside their numbers; replaces the ones before.
    void show_findings(const QVector<system_finding>& findings);

    /// The words that are offered; without any nothing is.
    void set_completion_words(const QStringList& words);

    // for the line number area
    void paint_line_numbers(QPaintEvent* event);
    QString finding_text_at(int y) const;

public slots:
    /// Goes to the line of an error and marks it: the whole line, or the first place of
    /// `mark_text` from there on; where that text is not found, the line. A line beyond the text
    /// changes nothing. The mark is no step that can be undone.
    void highlightErrorLineAndPos(system_status::sys_error_infos i_error_info);

    /// Colours the line of the cursor, unless the text is read-only.
    void highlightCurrentLine();

protected:
    void changeEvent(QEvent* event) override;
    bool canInsertFromMimeData(const QMimeData* source) const override;
    void keyPressEvent(QKeyEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private slots:
    void updateLineNumberAreaWidth(int newBlockCount);
    void updateLineNumberArea(QRect rect, int dy);
    void insert_completion(const QString& word);

private:
    struct line_finding {
        bool is_error;
        QString text;
    };

    void paint_finding(QPainter& painter, const QRectF& line, bool is_error) const;
    void merge_mark(QTextCursor place, const QTextCharFormat& format);
    bool completion_takes(const QKeyEvent& event) const;
    void offer_words(int least_length, bool first_is_chosen);
    QString begun_word() const;
    bool is_in_comment() const;

    LineNumberArea* line_number_area;
    QMap<int, line_finding> finding_lines; // by block number
    QTextCursor error_mark;                // in the line of the mark; null without one
    QStringListModel* word_list;
    QCompleter* completer;
};

/// The strip at the left of the editor with the numbers of the lines. The editor paints it.
class LineNumberArea : public QWidget
{
    Q_OBJECT

public:
    explicit LineNumberArea(ZV_Editor* parent);

    QSize sizeHint() const override;

protected:
    bool event(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    ZV_Editor* editor;
};

#endif // ZV_EDITOR_H
