#ifndef RECENT_FILES_H
#define RECENT_FILES_H

#include <QObject>
#include <QStringList>

class QMenu;

/**
 * The files that were last used, newest first, kept in an ini file over the end of the program.
 */
class recent_files : public QObject
{
    Q_OBJECT

public:
    enum class kind { systems, load_files, protocols };

    /// Files that are kept of each kind.
    static constexpr int limit = 8;

    /// @param ini_file  read and written at each use; one that can't be written keeps nothing
    explicit recent_files(QString ini_file, QObject* parent = nullptr);

    /// Puts a file to the front. An empty path is passed over.
    void add(kind of, const QString& path);

    /// The files that still exist. Absolute paths.
    QStringList files(kind of) const;

    /// Has the menu show the files of a kind whenever it opens; without one it is disabled. The
    /// menu must outlive the object.
    void fill(QMenu& menu, kind of);

signals:
    void chosen(recent_files::kind of, const QString& path);

private:
    void show_entries(QMenu& menu, kind of);

    QString store;
};

#endif // RECENT_FILES_H
