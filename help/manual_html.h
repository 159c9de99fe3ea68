#ifndef MANUAL_HTML_H
#define MANUAL_HTML_H

#include "manual_source.h"

/// The manual as pages for a browser.
namespace manual
{

/// A page whose Markdown has become HTML.
struct set_page {
    page source;
    QString body;              ///< each heading with an id of its own
    QVector<heading> headings; ///< of level 2, plain text, the anchor is the id
};

/// Finishes the body that the Markdown program made: an anchor before a heading becomes its id,
/// other headings get "s1", "s2" and so on.
set_page finish_page(const page& source, const QString& body);

/// A whole page for the browser: the contents at the left, the text, links to its neighbours.
/// @param frame  the text of help/page.html, with its places "@title@" and so on
QString
browser_page(const QString& frame, const QVector<set_page>& pages, int index, language spoken);

/// A page that leads on to a place of another page: a desktop loses "#anchor" on the way.
QString leading_page(const QString& target);

/// The name of that page: "counters.html#co" is reached by "at-counters-co.html".
QString name_of_leading_page(const QString& target);

} // namespace manual

#endif // MANUAL_HTML_H
