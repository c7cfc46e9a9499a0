// Random operations on a dictionary table and on a plain model of it; contents, results and, where
// there are any, the lines of the system log are compared after each.

#include "TableModelFixture.h"
#include "tables/GXDictionaryTable.h"

namespace kx {

namespace {

// A table that shows whether the order of its keys is kept.
class SortingTable final : public GXDictionaryTable {
public:
    void sortKeys() { sortedKeys = std::vector<std::string>{"some order"}; }
    bool hasSortedKeys() const { return sortedKeys.has_value(); }

protected:
    std::shared_ptr<GXDictionaryTable> newInstance() const override {
        return std::make_shared<SortingTable>();
    }
};

class DictionaryTableModel : public TableModelFixture {};

} // namespace

TEST_F(DictionaryTableModel, DoesTheSameAsThePlainModelAfterEveryRandomStep) {
    auto table = std::make_shared<SortingTable>();
    model::PlainDictionaryTable plain;
    while (!HasFailure() && random.next()) {
        const Pair pair = anyPair();
        const std::optional<std::string> key =
            random.oneIn(12) ? std::nullopt : std::optional(anyName());
        const std::string words = described(pair.plain) + " under " + key.value_or("no key");
        switch (random.below(8)) {
        case 0:
        case 1:
            random.tell("set " + words);
            table->setObjectForKey(pair.entry, key);
            plain.set(pair.plain, key);
            break;
        case 2:
            random.tell("add " + words);
            table->addObject(pair.entry);
            plain.add(pair.plain);
            break;
        case 3:
            random.tell("remove " + words);
            table->removeObject(pair.entry);
            plain.remove(pair.plain->name);
            break;
        case 4:
            random.tell("remove the key of " + words);
            table->removeObjectForKey(key);
            plain.remove(key);
            break;
        case 5:
        case 6:
            random.tell("sort the keys");
            table->sortKeys();
            plain.hasSortedKeys = true;
            break;
        default:
            if (random.oneIn(10)) {
                random.tell("remove all");
                table->removeAllObjects();
                plain.clear();
            }
        }
        ASSERT_EQ(table->description(), plain.description());
        ASSERT_EQ(table->hasSortedKeys(), plain.hasSortedKeys);
        ASSERT_EQ(table->count(), static_cast<std::int32_t>(plain.entries.size()));
        ASSERT_EQ(described(table->objectForKey(key)), described(plain.find(key)));
    }
}

} // namespace kx
