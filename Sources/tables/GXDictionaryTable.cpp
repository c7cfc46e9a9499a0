#include "tables/GXDictionaryTable.h"

#include "support/SystemLog.h"
#include "tables/EntryConversion.h"

#include <utility>

namespace kx {

void GXDictionaryTable::setTableDictionary(std::shared_ptr<EntryDictionary> dictionary) {
    _tableDictionary =
        dictionary != nullptr ? std::move(dictionary) : std::make_shared<EntryDictionary>();
    sortedKeys.reset();
}

std::int32_t GXDictionaryTable::count() const {
    return static_cast<std::int32_t>(_tableDictionary->size());
}

std::string GXDictionaryTable::description() const {
    std::string result = "Table = ";
    for (const auto& [key, entry] : *_tableDictionary) {
        result += entry->description() + ";";
    }
    return result;
}

std::shared_ptr<GXStateEntry>
GXDictionaryTable::objectForKey(const std::optional<std::string>& key) const {
    const auto found = key ? _tableDictionary->find(*key) : _tableDictionary->end();
    return found != _tableDictionary->end() ? found->second : nullptr;
}

std::shared_ptr<GXStateEntry>
GXDictionaryTable::valueForKey(const std::optional<std::string>& key) const {
    return objectForKey(key);
}

void GXDictionaryTable::setObjectForKey(std::shared_ptr<GXStateEntry> entry,
                                        const std::optional<std::string>& key) {
    if (entry == nullptr || !key) {
        return;
    }
    const bool isNewKey = _tableDictionary->insert_or_assign(*key, std::move(entry)).second;
    if (isNewKey) {
        sortedKeys.reset();
    }
}

void GXDictionaryTable::addObject(std::shared_ptr<GXStateEntry> entry) {
    const auto key = entry != nullptr ? entry->key() : std::nullopt;
    if (key) {
        _tableDictionary->insert_or_assign(*key, std::move(entry));
        sortedKeys.reset();
    }
}

void GXDictionaryTable::removeObject(const std::shared_ptr<GXStateEntry>& entry) {
    removeObjectForKey(entry != nullptr ? entry->key() : std::nullopt);
}

void GXDictionaryTable::removeObjectForKey(const std::optional<std::string>& key) {
    if (key) {
        _tableDictionary->erase(*key);
    }
    sortedKeys.reset();
}

void GXDictionaryTable::removeAllObjects() {
    _tableDictionary->clear();
    sortedKeys.reset();
}

std::shared_ptr<GXStateEntry> GXDictionaryTable::objectAtIndex(std::int32_t /*index*/) const {
    logToSystem("GXDictionaryTable: override for subclass");
    return nullptr;
}

void GXDictionaryTable::updateTable(TableView* /*tableView*/) {}

DictionaryOfDictionaries GXDictionaryTable::dictionaryOfDictionaries() const {
    EntryDictionary entries;
    for (const auto& [key, entry] : *_tableDictionary) {
        addEntryUnderItsKey(entries, entry);
    }
    return dictionariesOfEntries(entries);
}

bool GXDictionaryTable::loadDictionaryOfDictionariesForEntryClass(
    const std::optional<DictionaryOfDictionaries>& dictionaries, const EntryClass& entryClass) {
    return loadTable(*this, dictionaries, entryClass);
}

bool GXDictionaryTable::encodeWithCoder(PropertyListEncoder& coder) const {
    PropertyDictionary fieldsByKey;
    for (const auto& [key, entry] : *_tableDictionary) {
        fieldsByKey.emplace(key, codedEntry(*entry));
    }
    return coder.encodeObject(std::move(fieldsByKey));
}

bool GXDictionaryTable::initWithCoder(PropertyListDecoder& coder, const EntryClass& entryClass) {
    const auto object = coder.decodeObject();
    if (!object || object->dictionary() == nullptr) {
        return false;
    }
    auto dictionary = std::make_shared<EntryDictionary>();
    for (const auto& [key, value] : *object->dictionary()) {
        auto entry = decodedEntry(value, entryClass);
        if (entry == nullptr) {
            return false;
        }
        dictionary->emplace(key, std::move(entry));
    }
    setTableDictionary(std::move(dictionary));
    return true;
}

std::shared_ptr<GXDictionaryTable> GXDictionaryTable::copy() const {
    auto result = newInstance();
    result->setTableDictionary(_tableDictionary);
    return result;
}

std::shared_ptr<GXDictionaryTable> GXDictionaryTable::newInstance() const {
    return std::make_shared<GXDictionaryTable>();
}

int GXDictionaryTable::numberOfRowsInTableView() {
    return count();
}

std::optional<PropertyListValue>
GXDictionaryTable::tableViewObjectValueForTableColumnRow(const TableColumn& column, int row) {
    return cellValue(objectAtIndex(row), column.identifier);
}

} // namespace kx
