#include "find_bar.h"

#include <QCheckBox>
#include <QGridLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QTextCursor>

template <typename widget>
static widget* named(widget* child, const char* name)
{
    child->setObjectName(QLatin1String(name));
    return child;
}

find_bar::find_bar(QWidget* parent)
    : QWidget(parent)
    , search_label(named(new QLabel(this), "LB_search"))
    , search_edit(named(new QLineEdit(this), "LE_search"))
    , replace_label(named(new QLabel(this), "LB_replace"))
    , replace_edit(named(new QLineEdit(this), "LE_replace"))
    , next_button(named(new QPushButton(this), "PB_find_next"))
    , previous_button(named(new QPushButton(this), "PB_find_previous"))
    , replace_button(named(new QPushButton(this), "PB_replace"))
    , replace_all_button(named(new QPushButton(this), "PB_replace_all"))
    , close_button(named(new QPushButton(this), "PB_close_search"))
    , case_box(named(new QCheckBox(this), "CB_case"))
    , result_label(named(new QLabel(this), "LB_search_result"))
{
    build_layout();
    show_texts();
    connect(search_edit, &QLineEdit::returnPressed, this, &find_bar::find_next);
    connect(search_edit, &QLineEdit::textEdited, result_label, &QLabel::clear);
    connect(replace_edit, &QLineEdit::returnPressed, this, &find_bar::replace);
    connect(next_button, &QPushButton::clicked, this, &find_bar::find_next);
    connect(previous_button, &QPushButton::clicked, this, &find_bar::find_previous);
    connect(replace_button, &QPushButton::clicked, this, &find_bar::replace);
    connect(replace_all_button, &QPushButton::clicked, this, &find_bar::replace_all);
    connect(close_button, &QPushButton::clicked, this, [this] {
        hide();
        if (editor) editor->setFocus();
    });
}

void find_bar::build_layout()
{
    auto* layout = new QGridLayout(this);
    layout->setContentsMargins(8, 4, 8, 4);
    layout->addWidget(search_label, 0, 0);
    layout->addWidget(search_edit, 0, 1);
    layout->addWidget(previous_button, 0, 2);
    layout->addWidget(next_button, 0, 3);
    layout->addWidget(case_box, 0, 4);
    layout->addWidget(result_label, 0, 5);
    layout->addWidget(close_button, 0, 6);
    layout->addWidget(replace_label, 1, 0);
    layout->addWidget(replace_edit, 1, 1);
    layout->addWidget(replace_button, 1, 2);
    layout->addWidget(replace_all_button, 1, 3);
    search_label->setBuddy(search_edit);
    replace_label->setBuddy(replace_edit);
    layout->setColumnStretch(1, 3);
    layout->setColumnStretch(5, 1);
    for (QPushButton* button :
         {next_button, previous_button, replace_button, replace_all_button, close_button})
        button->setAutoDefault(false);
    const std::initializer_list<QWidget*> from_left_to_right = {search_edit,
                                                                previous_button,
                                                                next_button,
                                                                case_box,
                                                                close_button,
                                                                replace_edit,
                                                                replace_button,
                                                                replace_all_button};
    for (auto after = from_left_to_right.begin() + 1; after != from_left_to_right.end(); ++after)
        setTabOrder(*(after - 1), *after);
}

void find_bar::show_texts()
{
    search_label->setText(tr("Suchen:"));
    replace_label->setText(tr("Ersetzen durch:"));
    next_button->setText(tr("Weitersuchen"));
    previous_button->setText(tr("Rückwärts"));
    replace_button->setText(tr("Ersetzen"));
    replace_all_button->setText(tr("Alle ersetzen"));
    close_button->setText(tr("Schließen"));
    close_button->setAccessibleName(tr("Suche schließen"));
    case_box->setText(tr("Groß-/Kleinschreibung"));
    result_label->clear();
}

void find_bar::changeEvent(QEvent* event)
{
    if (event->type() == QEvent::LanguageChange) show_texts();
    QWidget::changeEvent(event);
}

void find_bar::keyPressEvent(QKeyEvent* event)
{
    if (event->key() == Qt::Key_Escape) {
        close_button->click();
        return;
    }
    QWidget::keyPressEvent(event);
}

void find_bar::open_for_search()
{
    open(false);
}

void find_bar::open_for_replace()
{
    open(!editor->isReadOnly());
}

void find_bar::open(bool with_replacement)
{
    const QString selected = editor->textCursor().selectedText();
    const bool is_one_line = !selected.contains(QChar(QChar::ParagraphSeparator));
    if (!selected.isEmpty() && is_one_line) search_edit->setText(selected);
    for (QWidget* child : std::initializer_list<QWidget*>{
             replace_label, replace_edit, replace_button, replace_all_button})
        child->setVisible(with_replacement);
    result_label->clear();
    show();
    search_edit->setFocus();
    search_edit->selectAll();
}

QTextDocument::FindFlags find_bar::case_flag() const
{
    return case_box->isChecked() ? QTextDocument::FindCaseSensitively : QTextDocument::FindFlags();
}

void find_bar::find_next()
{
    find({});
}

void find_bar::find_previous()
{
    find(QTextDocument::FindBackward);
}

bool find_bar::find(QTextDocument::FindFlags direction)
{
    result_label->clear();
    const QString text = search_edit->text();
    if (text.isEmpty()) {
        if (!isVisible()) open_for_search();
        return false;
    }
    const QTextDocument::FindFlags how = direction | case_flag();
    QTextCursor place = editor->document()->find(text, editor->textCursor(), how);
    if (place.isNull()) {
        QTextCursor other_end(editor->document());
        if (direction & QTextDocument::FindBackward) other_end.movePosition(QTextCursor::End);
        place = editor->document()->find(text, other_end, how);
        if (place.isNull()) {
            if (!isVisible()) open_for_search();
            result_label->setText(tr("Nicht gefunden"));
            return false;
        }
        result_label->setText(tr("Suche am anderen Ende fortgesetzt"));
    }
    editor->setTextCursor(place);
    editor->ensureCursorVisible();
    return true;
}

void find_bar::replace()
{
    const QString text = search_edit->text();
    if (text.isEmpty() || editor->isReadOnly()) return;
    QTextCursor cursor = editor->textCursor();
    const Qt::CaseSensitivity cases =
        case_box->isChecked() ? Qt::CaseSensitive : Qt::CaseInsensitive;
    if (cursor.selectedText().compare(text, cases) == 0) {
        cursor.insertText(replace_edit->text());
        editor->setTextCursor(cursor);
    }
    find_next();
}

void find_bar::replace_all()
{
    const QString text = search_edit->text();
    if (text.isEmpty() || editor->isReadOnly()) return;
    int count = 0;
    QTextCursor edit(editor->document());
    edit.beginEditBlock();
    QTextCursor place = editor->document()->find(text, 0, case_flag());
    while (!place.isNull()) {
        place.insertText(replace_edit->text());
        ++count;
        place = editor->document()->find(text, place, case_flag());
    }
    edit.endEditBlock();
    result_label->setText(tr("Ersetzt: %1").arg(count));
}
