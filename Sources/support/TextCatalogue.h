// Localized texts from a table in memory.

#pragma once

#include "support/LocalizedText.h"

#include <span>
#include <string>
#include <string_view>

namespace kx {

struct CatalogueEntry {
    std::string_view key; // English
    std::string_view text;
};

class TextCatalogue final : public LocalizedText {
public:
    // The entries are in the order of their keys, by bytes, each key once. They must outlive the
    // object.
    explicit TextCatalogue(std::span<const CatalogueEntry> entries)
        : _entries(entries) {}

    std::string textForKey(std::string_view key) const override;

private:
    std::span<const CatalogueEntry> _entries;
};

} // namespace kx
