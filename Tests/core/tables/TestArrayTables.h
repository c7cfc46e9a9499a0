// Array tables, and short ways to fill and read them.

#pragma once

#include "TestEntries.h"
#include "tables/GXArrayTable.h"

#include <cstdint>
#include <initializer_list>
#include <memory>
#include <utility>
#include <vector>

namespace kx {

using Numbers = std::vector<std::int32_t>;

// The integer keys of a table's entries in order, -1 for a placeholder.
inline Numbers numbers(const GXArrayTable& table) {
    Numbers result;
    for (const auto& entry : *table.tableArray()) {
        result.push_back(entry != nullptr ? entry->keyInt() : -1);
    }
    return result;
}

inline void storeNumbers(GXArrayTable& table, std::initializer_list<int> keys) {
    for (const int key : keys) {
        table.setObjectForKeyInt(KeyedEntry::numbered(key), key);
    }
}

// A table that counts the calls of its own addObject().
class CountingTable final : public GXArrayTable {
public:
    int added = 0;

    std::int32_t addObject(std::shared_ptr<GXStateEntry> entry) override {
        ++added;
        return GXArrayTable::addObject(std::move(entry));
    }

protected:
    std::shared_ptr<GXArrayTable> newInstance() const override {
        return std::make_shared<CountingTable>();
    }
};

} // namespace kx
