#ifndef ACTUAL_PERMANENCE_H
#define ACTUAL_PERMANENCE_H

#include <QDialog>

#include <memory>

class number_table;
class numberStorage;

namespace Ui
{
class actual_permanence;
}

/**
 * The window with the numbers of the game so far, as they are when it opens.
 */
class actual_permanence : public QDialog
{
    Q_OBJECT

public:
    /// @param reduction  scale of the cells. Range: 0.0 (full size) to 0.3
    actual_permanence(const numberStorage& numbers,
                      const number_table& colours,
                      double reduction,
                      QWidget* parent = nullptr);
    ~actual_permanence() override;

signals:
    /// The user has seen enough; the game may go on.
    void later_display_continue();

protected:
    void changeEvent(QEvent* event) override;
    void showEvent(QShowEvent* event) override;

private slots:
    void on_buttonBox_accepted();

private:
    const std::unique_ptr<Ui::actual_permanence> ui;
};

#endif // ACTUAL_PERMANENCE_H
