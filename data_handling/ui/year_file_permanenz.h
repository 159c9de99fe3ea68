#ifndef YEAR_FILE_PERMANENZ_H
#define YEAR_FILE_PERMANENZ_H

#include <QDialog>

#include <memory>

class QFile;

namespace Ui
{
class year_file_permanenz;
}

/**
 * Shows the year file of the present year, and below it the block of the running game. Nothing
 * can be changed in it. Of a file of more than 16 MiB the end is shown.
 */
class year_file_permanenz : public QDialog
{
    Q_OBJECT

public:
    /// @param year       whose file is shown, from the working directory
    /// @param run_block  the running game as it would be saved now; empty if there is none
    year_file_permanenz(int year, const QString& run_block, QWidget* parent = nullptr);
    ~year_file_permanenz() override;

protected:
    void changeEvent(QEvent* event) override;

private:
    QString shown_text(QFile& file);
    void show_title();

    const std::unique_ptr<Ui::year_file_permanenz> ui;
    const QString file_name;
    bool is_found = false;
};

#endif // YEAR_FILE_PERMANENZ_H
