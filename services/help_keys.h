#ifndef HELP_KEYS_H
#define HELP_KEYS_H

#include "help_table.h"

#include <QObject>
#include <QString>

/**
 * F1 everywhere: finds the page of the manual for the place where the user works. It goes from
 * the widget with the focus up through its parents and takes the first that the table knows: by
 * its property "help_keys" (a list of keys, the fitting one first), its object name, or the name
 * of its class or of a class that this one derives from.
 */
class help_keys : public QObject
{
    Q_OBJECT

public:
    /// Listens to the whole application while it lives.
    explicit help_keys(const help_table& table = help_table::of_the_program(),
                       QObject* parent = nullptr);
    ~help_keys() override;

    /// The page for a place, empty if neither it nor a parent has one.
    QString page_for(const QObject* place) const;

signals:
    /// F1 was pressed. An empty page stands for the contents.
    void help_wanted(const QString& page);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    QString page_of_one(const QObject& place) const;

    help_table pages;
};

#endif // HELP_KEYS_H
