#ifndef FIND_BAR_H
#define FIND_BAR_H

#include <QTextDocument>
#include <QWidget>

class QCheckBox;
class QLabel;
class QLineEdit;
class QPlainTextEdit;
class QPushButton;

/// The bar below a text in which one searches and replaces. A search that reaches the end of the
/// text goes on at its other end.
class find_bar : public QWidget
{
    Q_OBJECT

public:
    explicit find_bar(QWidget* parent = nullptr);

    /// The text that is searched; it must outlive the bar.
    void set_editor(QPlainTextEdit* new_editor) { editor = new_editor; }

public slots:
    /// Shows the bar; what is selected in one line becomes what is searched.
    void open_for_search();

    /// The same with the row for replacing, unless the text is read-only.
    void open_for_replace();

    void find_next();
    void find_previous();

    /// Replaces the selection if it is what is searched, and goes to the next place.
    void replace();

    /// Replaces all places of the text, in one step of undo.
    void replace_all();

protected:
    void changeEvent(QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    void build_layout();
    void show_texts();
    void open(bool with_replacement);
    bool find(QTextDocument::FindFlags direction);
    QTextDocument::FindFlags case_flag() const;

    QPlainTextEdit* editor = nullptr;
    QLabel* search_label;
    QLineEdit* search_edit;
    QLabel* replace_label;
    QLineEdit* replace_edit;
    QPushButton* next_button;
    QPushButton* previous_button;
    QPushButton* replace_button;
    QPushButton* replace_all_button;
    QPushButton* close_button;
    QCheckBox* case_box;
    QLabel* result_label;
};

#endif // FIND_BAR_H
