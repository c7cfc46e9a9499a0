#include "support/TextCatalogue.h"

#include <algorithm>

namespace kx {

std::string TextCatalogue::textForKey(std::string_view key) const {
    const auto found = std::ranges::lower_bound(_entries, key, {}, &CatalogueEntry::key);
    return std::string(found != _entries.end() && found->key == key ? found->text : key);
}

} // namespace kx
