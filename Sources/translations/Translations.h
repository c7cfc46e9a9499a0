// The languages of the program. It carries their texts in itself; Resources/translations has them,
// and the build makes a table of them.

#pragma once

#include "support/TextCatalogue.h"

#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace kx {

struct Translation {
    std::string_view language; // as in "de"
    std::span<const CatalogueEntry> entries;
};

// All translations, in the alphabetical order of their languages.
std::span<const Translation> translations();

// The first of these languages that the program has; without one, English, which needs no entries.
// The program is written in English, so a user who prefers English to another language gets
// English. The languages are names such as "de-AT", "de_AT" or "de_AT.UTF-8".
Translation firstTranslation(const std::vector<std::string>& languages);

// The languages that the user prefers, the first one before the others: those of LANGUAGE, and
// without it the one of LC_ALL, LC_MESSAGES or LANG ("Locale Environment Variables" in the manual
// of GNU gettext). Other than for GNU gettext, LANGUAGE counts in the locale "C" too, as it does
// for Qt.
std::vector<std::string> languagesOfUser();

} // namespace kx
