#ifndef UPDATE_SERVER_H
#define UPDATE_SERVER_H

#include <QNetworkRequest>
#include <QString>
#include <QUrl>

/**
 * Where a newer Zarvello is looked for and fetched. The host stands here and nowhere else; while
 * it is empty nothing is asked.
 */
struct update_server {
    static constexpr char built_in_host[] = "";
    static constexpr char version_file[] = "/ZVupdate/ZVVersion.txt";
    static constexpr char setup_program[] = "/software/ZarvelloSetup.exe";

    QString scheme = QStringLiteral("https");
    QString host = QString::fromLatin1(built_in_host);
    int port = -1;              ///< -1: the usual one of the scheme
    int longest_silence = 8000; ///< ms without a byte, behind which an answer counts as lost

    /// Whether there is a server to ask.
    bool is_set() const { return !host.isEmpty(); }

    /// The address of a path that begins with "/".
    QUrl url(const QString& path) const;

    /// How a path is asked for: an answer that stalls becomes an error, nobody leads from a secure
    /// address to an open one, and the bytes come as they are, so that their count is known.
    QNetworkRequest request(const QString& path) const;

    /// The server in use. A test puts its own in its place, and a default one back.
    static const update_server& current();
    static void set_current(const update_server& server);
};

#endif // UPDATE_SERVER_H
