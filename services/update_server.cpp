#include "update_server.h"

namespace
{

update_server& server_in_use()
{
    static update_server server;
    return server;
}

} // namespace

QUrl update_server::url(const QString& path) const
{
    QUrl address;
    address.setScheme(scheme);
    address.setHost(host);
    address.setPort(port);
    address.setPath(path);
    return address;
}

QNetworkRequest update_server::request(const QString& path) const
{
    QNetworkRequest asked(url(path));
    asked.setTransferTimeout(longest_silence);
    asked.setAttribute(QNetworkRequest::RedirectPolicyAttribute,
                       QNetworkRequest::NoLessSafeRedirectPolicy);
    asked.setRawHeader("Accept-Encoding", "identity");
    return asked;
}

const update_server& update_server::current()
{
    return server_in_use();
}

void update_server::set_current(const update_server& server)
{
    server_in_use() = server;
}
