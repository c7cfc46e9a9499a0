#include "tables/GXIndexTable.h"

#include "support/SystemLog.h"
#include "tables/EntryConversion.h"

#include <algorithm>
#include <charconv>
#include <string_view>
#include <system_error>
#include <utility>

namespace kx {

namespace {

// One more than a row number, in the unsigned arithmetic of row numbers.
std::int32_t rowAfter(std::int32_t row) {
    return static_cast<std::int32_t>(static_cast<std::uint32_t>(row) + 1U);
}

std::optional<std::int32_t> rowOfText(std::string_view text) {
    std::int32_t row = 0;
    const auto read = std::from_chars(text.data(), text.data() + text.size(), row);
    // The comparison allows one text for each row, so no two keys name the same row.
    if (read.ec != std::errc() || text != std::to_string(row)) {
        return std::nullopt;
    }
    return row;
}

} // namespace

void GXIndexTable::setTableDictionary(std::shared_ptr<EntryRows> dictionary) {
    mTableDictionary =
        dictionary != nullptr ? std::move(dictionary) : std::make_shared<EntryRows>();
}

std::string GXIndexTable::description() const {
    std::string result = "Table = ";
    for (const auto& [row, entry] : *mTableDictionary) {
        result += entry->description() + ";";
    }
    return result;
}

void GXIndexTable::setObjectAtIndex(std::shared_ptr<GXStateEntry> entry, std::int32_t index) {
    if (entry == nullptr) {
        return;
    }
    mTableDictionary->insert_or_assign(index, std::move(entry));
    if (static_cast<std::uint32_t>(index) >= static_cast<std::uint32_t>(mCount)) {
        mCount = rowAfter(index);
    }
}

std::shared_ptr<GXStateEntry> GXIndexTable::objectAtIndex(std::int32_t index) const {
    const auto found = mTableDictionary->find(index);
    return found != mTableDictionary->end() ? found->second : nullptr;
}

void GXIndexTable::removeObjectAtIndex(std::int32_t index) {
    mTableDictionary->erase(index);
    if (rowAfter(index) == mCount) {
        mCount = mTableDictionary->empty() ? 0 : rowAfter(mTableDictionary->rbegin()->first);
    }
}

void GXIndexTable::removeAllObjects() {
    mTableDictionary->clear();
    mCount = 0;
}

void GXIndexTable::updateTable() {
    logToSystem("GXIndexTable updateTable: override for subclass");
}

bool GXIndexTable::encodeWithCoder(PropertyListEncoder& coder) const {
    PropertyDictionary fieldsByRow;
    for (const auto& [row, entry] : *mTableDictionary) {
        fieldsByRow.emplace(std::to_string(row), codedEntry(*entry));
    }
    return coder.encodeObject(std::move(fieldsByRow));
}

bool GXIndexTable::initWithCoder(PropertyListDecoder& coder, const EntryClass& entryClass) {
    const auto object = coder.decodeObject();
    if (!object || object->dictionary() == nullptr) {
        return false;
    }
    auto rows = std::make_shared<EntryRows>();
    for (const auto& [text, value] : *object->dictionary()) {
        const auto row = rowOfText(text);
        auto entry = decodedEntry(value, entryClass);
        if (!row || entry == nullptr) {
            return false;
        }
        rows->emplace(*row, std::move(entry));
    }
    setTableDictionary(std::move(rows));
    mCount = 0;
    return true;
}

std::shared_ptr<GXIndexTable> GXIndexTable::copy() const {
    auto result = newInstance();
    result->setTableDictionary(mTableDictionary);
    return result;
}

std::shared_ptr<GXIndexTable> GXIndexTable::newInstance() const {
    return std::make_shared<GXIndexTable>();
}

int GXIndexTable::numberOfRowsInTableView() {
    return std::max(mCount, 0);
}

std::optional<PropertyListValue>
GXIndexTable::tableViewObjectValueForTableColumnRow(const TableColumn& column, int row) {
    return cellValue(objectAtIndex(row), column.identifier);
}

} // namespace kx
