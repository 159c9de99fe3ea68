#include "zv_editor.h"

#include <QAbstractItemView>
#include <QCompleter>
#include <QHelpEvent>
#include <QMimeData>
#include <QPainter>
#include <QScrollBar>
#include <QStringListModel>
#include <QTextBlock>
#include <QToolTip>

#include <algorithm>

namespace
{

constexpr int mark_width = 22;   // room for the mark of a finding, at the left of the number
constexpr int number_margin = 5; // between the number and the text
constexpr int offered_word_length = 2;
constexpr int offered_rows = 10;
constexpr int list_frame = 40; // room for the scroll bar and the edges of the list

int digits_of(int number)
{
    int digits = 1;
    while (number >= 10) {
        number /= 10;
        ++digits;
    }
    return digits;
}

QTextCharFormat token_mark()
{
    QTextCharFormat format;
    format.setUnderlineColor(Qt::darkRed);
    format.setUnderlineStyle(QTextCharFormat::WaveUnderline);
    return format;
}

QTextCharFormat line_mark()
{
    QTextCharFormat format;
    format.setForeground(Qt::darkRed);
    format.setUnderlineColor(Qt::darkRed);
    format.setUnderlineStyle(QTextCharFormat::SingleUnderline);
    return format;
}

bool is_underlined(const QTextBlock& block)
{
    for (auto place = block.begin(); !place.atEnd(); ++place) {
        const QTextCharFormat format = place.fragment().charFormat();
        if (format.underlineStyle() != QTextCharFormat::NoUnderline) return true;
    }
    return false;
}

} // namespace

ZV_Editor::ZV_Editor(QWidget* parent)
    : QPlainTextEdit(parent)
    , line_number_area(new LineNumberArea(this))
    , word_list(new QStringListModel(this))
    , completer(new QCompleter(word_list, this))
{
    QPalette paper = palette();
    paper.setColor(QPalette::Base, Qt::white);
    paper.setColor(QPalette::Text, Qt::black);
    setPalette(paper);
    setLineWrapMode(QPlainTextEdit::NoWrap);

    completer->setWidget(this);
    completer->setCaseSensitivity(Qt::CaseInsensitive);
    completer->setMaxVisibleItems(offered_rows);
    connect(completer,
            QOverload<const QString&>::of(&QCompleter::activated),
            this,
            &ZV_Editor::insert_completion);

    connect(this, &QPlainTextEdit::blockCountChanged, this, &ZV_Editor::updateLineNumberAreaWidth);
    connect(this, &QPlainTextEdit::updateRequest, this, &ZV_Editor::updateLineNumberArea);
    connect(this, &QPlainTextEdit::cursorPositionChanged, this, &ZV_Editor::highlightCurrentLine);
    updateLineNumberAreaWidth(blockCount());
    highlightCurrentLine();
}

// toPlainText() would turn each hard blank into a plain one.
QString ZV_Editor::text() const
{
    return document()->toRawText().replace(QChar(QChar::ParagraphSeparator), QLatin1Char('\n'));
}

// Line numbers

int ZV_Editor::line_number_area_width() const
{
    const int digit = fontMetrics().horizontalAdvance(QLatin1Char('9'));
    return mark_width + digits_of(std::max(1, blockCount())) * digit + number_margin;
}

block_range ZV_Editor::blocks_on_show() const
{
    block_range range;
    QTextBlock block = firstVisibleBlock();
    range.first = block.blockNumber();
    range.last = range.first;
    double top = blockBoundingGeometry(block).translated(contentOffset()).top();
    while (block.isValid() && top <= viewport()->height()) {
        range.last = block.blockNumber();
        top += blockBoundingRect(block).height();
        block = block.next();
    }
    return range;
}

void ZV_Editor::updateLineNumberAreaWidth(int /*newBlockCount*/)
{
    setViewportMargins(line_number_area_width(), 0, 0, 0);
}

void ZV_Editor::updateLineNumberArea(QRect rect, int dy)
{
    if (dy != 0) {
        line_number_area->scroll(0, dy);
    } else {
        line_number_area->update(0, rect.y(), line_number_area->width(), rect.height());
    }
    if (rect.contains(viewport()->rect())) updateLineNumberAreaWidth(0);
}

void ZV_Editor::resizeEvent(QResizeEvent* event)
{
    const bool cursor_was_seen = cursorRect().bottom() <= event->oldSize().height();
    QPlainTextEdit::resizeEvent(event);
    if (cursor_was_seen) ensureCursorVisible();
    const QRect contents = contentsRect();
    line_number_area->setGeometry(
        contents.left(), contents.top(), line_number_area_width(), contents.height());
}

void ZV_Editor::changeEvent(QEvent* event)
{
    QPlainTextEdit::changeEvent(event);
    if (event->type() == QEvent::FontChange && line_number_area) {
        updateLineNumberAreaWidth(0);
        line_number_area->update();
    }
}

void ZV_Editor::paint_line_numbers(QPaintEvent* event)
{
    QPainter painter(line_number_area);
    painter.fillRect(event->rect(), Qt::lightGray);
    painter.setFont(font());
    painter.setPen(Qt::black);
    painter.setRenderHint(QPainter::Antialiasing);
    const int width = line_number_area->width();
    QTextBlock block = firstVisibleBlock();
    QRectF line = blockBoundingGeometry(block).translated(contentOffset());
    while (block.isValid() && line.top() <= event->rect().bottom()) {
        const QRectF row(0, line.top(), width, line.height());
        if (row.bottom() >= event->rect().top()) {
            const auto finding = finding_lines.constFind(block.blockNumber());
            if (finding != finding_lines.constEnd()) {
                paint_finding(painter, row, finding->is_error);
            }
            painter.drawText(QRectF(0, row.top(), width - number_margin, fontMetrics().height()),
                             Qt::AlignRight,
                             QString::number(block.blockNumber() + 1));
        }
        block = block.next();
        line = QRectF(0, line.bottom(), width, blockBoundingRect(block).height());
    }
}

// An error is a red disc, a warning an amber triangle: they differ without their colours.
void ZV_Editor::paint_finding(QPainter& painter, const QRectF& line, bool is_error) const
{
    const double side = std::min(12.0, line.height() - 2);
    const QRectF place(QPointF(3, line.center().y() - side / 2), QSizeF(side, side));
    painter.save();
    if (is_error) {
        painter.setPen(QPen(QColor(110, 0, 0), 1));
        painter.setBrush(QColor(208, 24, 24));
        painter.drawEllipse(place);
    } else {
        painter.setPen(QPen(QColor(120, 70, 0), 1, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
        painter.setBrush(QColor(250, 178, 24));
        painter.drawPolygon(QPolygonF(
            {QPointF(place.center().x(), place.top()), place.bottomRight(), place.bottomLeft()}));
    }
    painter.restore();
}

QString ZV_Editor::finding_text_at(int y) const
{
    const QTextBlock block = cursorForPosition(QPoint(0, y)).block();
    const auto finding = finding_lines.constFind(block.blockNumber());
    return finding == finding_lines.constEnd() ? QString() : finding->text;
}

void ZV_Editor::show_findings(const QVector<system_finding>& findings)
{
    finding_lines.clear();
    for (const system_finding& finding : findings) {
        const bool is_error = finding.severity == system_finding::kind::error;
        line_finding& line = finding_lines[finding.line - 1];
        line.is_error = line.text.isEmpty() ? is_error : line.is_error || is_error;
        if (!line.text.isEmpty()) line.text += QLatin1Char('\n');
        line.text += finding.text;
    }
    line_number_area->update();
}

// Places

void ZV_Editor::highlightCurrentLine()
{
    QList<QTextEdit::ExtraSelection> selections;
    if (!isReadOnly()) {
        QTextEdit::ExtraSelection line;
        line.format.setBackground(QColor(Qt::yellow).lighter(160));
        line.format.setProperty(QTextFormat::FullWidthSelection, true);
        line.cursor = textCursor();
        line.cursor.clearSelection();
        selections.append(line);
    }
    setExtraSelections(selections);
}

void ZV_Editor::go_to(int line, int column, int length)
{
    const QTextBlock block =
        document()->findBlockByNumber(std::clamp(line, 1, document()->blockCount()) - 1);
    const int line_length = block.length() - 1; // without its end
    const int begin = std::clamp(column - 1, 0, line_length);
    const int end = std::clamp(begin + length, begin, line_length);
    QTextCursor cursor(block);
    cursor.setPosition(block.position() + begin);
    cursor.setPosition(block.position() + end, QTextCursor::KeepAnchor);
    setTextCursor(cursor);
    centerCursor();
}

// Marks of errors

// NOLINTNEXTLINE(performance-unnecessary-value-param): the slot takes what the signal carries
void ZV_Editor::highlightErrorLineAndPos(system_status::sys_error_infos i_error_info)
{
    const int line = i_error_info.error_line;
    if (line < 1 || line > document()->blockCount()) return;
    QTextCursor cursor(document()->findBlockByNumber(line - 1));
    setTextCursor(cursor);
    centerCursor();
    highlightCurrentLine();

    QTextCursor place;
    if (i_error_info.mark_mode == system_status::mark_token) {
        place = document()->find(i_error_info.mark_text, cursor);
    }
    if (!place.isNull()) {
        merge_mark(place, token_mark());
        error_mark = QTextCursor(place.block());
        return;
    }
    error_mark = cursor;
    cursor.movePosition(QTextCursor::EndOfBlock, QTextCursor::KeepAnchor);
    merge_mark(cursor, line_mark());
}

// The history of changes goes with it: undo would take the mark off first. Marks are made in a
// text that has just been read.
void ZV_Editor::merge_mark(QTextCursor place, const QTextCharFormat& format)
{
    const bool was_modified = document()->isModified();
    const bool could_undo = document()->isUndoRedoEnabled();
    if (!was_modified) document()->setUndoRedoEnabled(false);
    place.mergeCharFormat(format);
    document()->setUndoRedoEnabled(could_undo);
    document()->setModified(was_modified);
}

int ZV_Editor::error_mark_line() const
{
    return error_mark.isNull() ? 0 : error_mark.blockNumber() + 1;
}

void ZV_Editor::go_to_error_mark()
{
    if (!error_mark.isNull()) go_to(error_mark_line());
}

void ZV_Editor::take_error_mark_off()
{
    if (error_mark.isNull() || !is_underlined(error_mark.block())) return;
    QTextCursor line(error_mark.block());
    line.movePosition(QTextCursor::EndOfBlock, QTextCursor::KeepAnchor);
    line.setCharFormat(QTextCharFormat());
    setCurrentCharFormat(QTextCharFormat());
}

void ZV_Editor::forget_error_mark()
{
    error_mark = QTextCursor();
}

// Files are for the window, which opens them.
bool ZV_Editor::canInsertFromMimeData(const QMimeData* source) const
{
    return !source->hasUrls() && QPlainTextEdit::canInsertFromMimeData(source);
}

// Words that are offered

void ZV_Editor::set_completion_words(const QStringList& new_words)
{
    word_list->setStringList(new_words);
}

QString ZV_Editor::begun_word() const
{
    const QTextCursor cursor = textCursor();
    const QString line = cursor.block().text().left(cursor.positionInBlock());
    int begin = line.size();
    while (begin > 0 && line.at(begin - 1).isLetterOrNumber())
        --begin;
    return line.mid(begin);
}

bool ZV_Editor::is_in_comment() const
{
    const QTextCursor cursor = textCursor();
    const QString line = cursor.block().text().left(cursor.positionInBlock());
    if (line.contains(QLatin1String("//"))) return true;
    const int opened = line.lastIndexOf(QLatin1String("/*"));
    const int closed = line.lastIndexOf(QLatin1String("*/"));
    const bool goes_on = cursor.block().previous().userState() == 1;
    return opened >= 0 || closed >= 0 ? opened > closed : goes_on;
}

void ZV_Editor::keyPressEvent(QKeyEvent* event)
{
    if (completion_takes(*event)) {
        event->ignore(); // for the list, which acts on what the editor leaves
        return;
    }
    const bool is_asked_for =
        event->key() == Qt::Key_Space && event->modifiers() == Qt::ControlModifier;
    if (is_asked_for) {
        offer_words(0, true);
        return;
    }
    QPlainTextEdit::keyPressEvent(event);
    const QString typed = event->text();
    const bool is_word = !typed.isEmpty() && typed.at(0).isLetterOrNumber();
    const bool is_shorter = event->key() == Qt::Key_Backspace && completer->popup()->isVisible();
    if (is_word || is_shorter) {
        offer_words(offered_word_length, false);
    } else if (!typed.isEmpty()) {
        completer->popup()->hide();
    }
}

bool ZV_Editor::completion_takes(const QKeyEvent& event) const
{
    if (!completer->popup()->isVisible()) return false;
    switch (event.key()) {
    case Qt::Key_Escape:
        return true;
    case Qt::Key_Enter:
    case Qt::Key_Return:
    case Qt::Key_Tab:
        return completer->popup()->currentIndex().isValid();
    default:
        return false;
    }
}

// As long as nobody asked for the list no word is chosen in it, so that Enter ends the line.
void ZV_Editor::offer_words(int least_length, bool first_is_chosen)
{
    const QString begun = begun_word();
    completer->setCompletionPrefix(begun);
    const bool is_prose = !first_is_chosen && is_in_comment();
    const bool is_whole = completer->completionCount() == 1 &&
                          completer->currentCompletion().compare(begun, Qt::CaseInsensitive) == 0;
    if (isReadOnly() || begun.size() < least_length || completer->completionCount() == 0 ||
        is_whole || is_prose) {
        completer->popup()->hide();
        return;
    }
    completer->popup()->setFont(font());
    QRect place = cursorRect();
    place.translate(line_number_area->width(), 0); // counted from the viewport
    place.setWidth(completer->popup()->sizeHintForColumn(0) + list_frame);
    completer->complete(place);
    completer->popup()->setCurrentIndex(first_is_chosen ? completer->completionModel()->index(0, 0)
                                                        : QModelIndex());
}

void ZV_Editor::insert_completion(const QString& word)
{
    QTextCursor cursor = textCursor();
    cursor.movePosition(
        QTextCursor::PreviousCharacter, QTextCursor::KeepAnchor, begun_word().size());
    cursor.insertText(word);
    setTextCursor(cursor);
}

// The strip

LineNumberArea::LineNumberArea(ZV_Editor* parent)
    : QWidget(parent)
    , editor(parent)
{
}

QSize LineNumberArea::sizeHint() const
{
    return {editor->line_number_area_width(), 0};
}

void LineNumberArea::paintEvent(QPaintEvent* event)
{
    editor->paint_line_numbers(event);
}

bool LineNumberArea::event(QEvent* event)
{
    if (event->type() != QEvent::ToolTip) return QWidget::event(event);
    const auto* help = static_cast<QHelpEvent*>(event);
    QToolTip::showText(help->globalPos(), editor->finding_text_at(help->y()), this);
    return true;
}
