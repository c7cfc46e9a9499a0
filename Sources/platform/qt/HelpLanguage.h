// Where the help pages of a language are: the English ones in a folder, those of another language
// in the folder inside it that has the language's name, as in "de". A page that a language does not
// have is read in English.

#pragma once

#include <QDir>
#include <QString>

namespace kx {

// The absolute path of the file `name` of `folder` in `language`; that of the English file, be it
// there or not, where the language has none.
QString fileInLanguage(const QDir& folder, const QString& name, const QString& language);

} // namespace kx
