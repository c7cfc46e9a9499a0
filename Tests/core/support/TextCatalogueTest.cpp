#include "support/TextCatalogue.h"

#include "contracts/LocalizedTextContract.h"

#include <map>
#include <string>
#include <utility>
#include <vector>

namespace kx {

namespace {

class TextCatalogueTrait {
public:
    const LocalizedText& source() {
        _entries.clear();
        for (const auto& [key, text] : _translations) {
            _entries.push_back({key, text});
        }
        _source = TextCatalogue(_entries);
        return _source;
    }
    void setTranslation(std::string key, std::string translation) {
        _translations[std::move(key)] = std::move(translation);
    }

private:
    std::map<std::string, std::string> _translations{{"Apply", "Anwenden"}, {"Version", "Fassung"}};
    std::vector<CatalogueEntry> _entries;
    TextCatalogue _source{{}};
};

} // namespace

INSTANTIATE_TYPED_TEST_SUITE_P(Table, LocalizedTextContract, TextCatalogueTrait);

TEST(TextCatalogue, WithoutEntriesEveryKeyStandsForItself) {
    EXPECT_EQ(TextCatalogue({}).textForKey("Apply"), "Apply");
}

} // namespace kx
