#ifndef MANUAL_CHM_H
#define MANUAL_CHM_H

#include "manual_html.h"

/// The manual as the source of one compiled help file (.chm). All texts are in Windows-1252: the
/// viewers read contents, index and search words in the code page of the language.
namespace manual
{

/// Text in Windows-1252; what the code page lacks becomes a reference such as "&#8594;".
QByteArray in_code_page(const QString& text);

/// A page without the contents column, which the viewer has itself.
QByteArray chm_page(const set_page& read, language spoken);

/// The project file: what is compiled, in which language, and what opens first.
/// @param files  pages, pictures and style, as they lie beside the project
QByteArray
chm_project(const QString& target, const QStringList& files, const page& first, language spoken);

/// The tree of pages (.hhc).
QByteArray chm_contents(const QVector<set_page>& pages);

/// The words of the index (.hhk): titles and headings, sorted.
QByteArray chm_index(const QVector<set_page>& pages);

} // namespace manual

#endif // MANUAL_CHM_H
