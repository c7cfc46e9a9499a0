#include "tables/GXArrayTable.h"

#include "support/SystemLog.h"
#include "support/TextFormat.h"
#include "tables/EntryConversion.h"

#include <algorithm>
#include <cstddef>
#include <utility>

namespace kx {

namespace {

constexpr std::int32_t mostPlaceholders = 99;

} // namespace

void GXArrayTable::setTableArray(std::shared_ptr<EntryArray> array) {
    _tableArray = array != nullptr ? std::move(array) : std::make_shared<EntryArray>();
}

std::int32_t GXArrayTable::count() const {
    return static_cast<std::int32_t>(_tableArray->size());
}

std::string GXArrayTable::description() const {
    PropertyList descriptions;
    for (const auto& entry : *_tableArray) {
        descriptions.emplace_back(entry != nullptr ? entry->description()
                                                   : std::string(placeholder));
    }
    return PropertyListValue(std::move(descriptions)).description();
}

bool GXArrayTable::isBelowCount(std::int32_t index) const {
    return index >= 0 && index < count();
}

std::shared_ptr<GXStateEntry> GXArrayTable::objectAtIndex(std::int32_t index) const {
    return isBelowCount(index) ? (*_tableArray)[static_cast<std::size_t>(index)] : nullptr;
}

std::int32_t GXArrayTable::addObject(std::shared_ptr<GXStateEntry> entry) {
    _tableArray->push_back(std::move(entry));
    return count() - 1;
}

// Appends placeholders until the count equals `index`, which must not be below it.
bool GXArrayTable::fillUpTo(std::int32_t index) {
    if (index < 0 || index - count() > mostPlaceholders) {
        return false;
    }
    _tableArray->resize(static_cast<std::size_t>(index));
    return true;
}

bool GXArrayTable::insertObjectAtIndex(std::shared_ptr<GXStateEntry> entry, std::int32_t index) {
    if (!isBelowCount(index) && !fillUpTo(index)) {
        return false;
    }
    _tableArray->insert(_tableArray->begin() + index, std::move(entry));
    return true;
}

bool GXArrayTable::replaceObjectAtIndexWithObject(std::int32_t index,
                                                  std::shared_ptr<GXStateEntry> entry) {
    if (isBelowCount(index)) {
        (*_tableArray)[static_cast<std::size_t>(index)] = std::move(entry);
        return true;
    }
    if (!fillUpTo(index)) {
        return false;
    }
    addObject(std::move(entry)); // a subclass may override it
    return true;
}

bool GXArrayTable::removeObjectAtIndex(std::int32_t index) {
    if (!isBelowCount(index)) {
        return false;
    }
    _tableArray->erase(_tableArray->begin() + index);
    return true;
}

void GXArrayTable::removeObject(const std::shared_ptr<GXStateEntry>& entry) {
    // Compares addresses, because the argument may be the array's own element, which changes while
    // the array erases.
    if (const auto* removed = entry.get()) {
        std::erase_if(*_tableArray,
                      [removed](const auto& element) { return element.get() == removed; });
    }
}

void GXArrayTable::removeAllObjects() {
    _tableArray->clear();
}

std::optional<std::int32_t>
GXArrayTable::indexOfObject(const std::shared_ptr<GXStateEntry>& entry) const {
    const auto found = std::find(_tableArray->begin(), _tableArray->end(), entry);
    if (entry == nullptr || found == _tableArray->end()) {
        return std::nullopt;
    }
    return static_cast<std::int32_t>(found - _tableArray->begin());
}

// Ends at the entry with the key, or where low and high leave no entry on the side to search next.
// Absent for an empty table.
std::optional<GXArrayTable::SearchEnd> GXArrayTable::search(const Comparison& compare) const {
    if (_tableArray->empty()) {
        return std::nullopt;
    }
    std::int32_t low = 0;
    std::int32_t high = count() - 1;
    for (;;) {
        const std::int32_t mid = low + (high - low) / 2;
        const auto& entry = (*_tableArray)[static_cast<std::size_t>(mid)];
        const int comparison = entry != nullptr ? compare(*entry) : -1;
        if (comparison == 0 || (comparison > 0 && mid == low) || (comparison < 0 && mid == high)) {
            return SearchEnd{mid, comparison};
        }
        if (comparison > 0) {
            high = mid - 1;
        } else {
            low = mid + 1;
        }
    }
}

std::shared_ptr<GXStateEntry> GXArrayTable::entryFound(const Comparison& compare) const {
    const auto end = search(compare);
    return end && end->comparison == 0 ? (*_tableArray)[static_cast<std::size_t>(end->index)]
                                       : nullptr;
}

std::int32_t GXArrayTable::store(std::shared_ptr<GXStateEntry> entry, const Comparison& compare) {
    const auto end = search(compare);
    if (!end) {
        _tableArray->push_back(std::move(entry));
        return 0;
    }
    const auto position = _tableArray->begin() + end->index;
    if (end->comparison == 0) {
        *position = std::move(entry);
    } else {
        _tableArray->insert(end->comparison > 0 ? position : position + 1, std::move(entry));
    }
    return end->index;
}

void GXArrayTable::removeFound(const Comparison& compare) {
    const auto end = search(compare);
    if (end && end->comparison == 0) {
        _tableArray->erase(_tableArray->begin() + end->index);
    }
}

std::shared_ptr<GXStateEntry>
GXArrayTable::objectForKey(const std::optional<std::string>& key) const {
    return entryFound([&key](const GXStateEntry& entry) { return entry.compareKey(key); });
}

std::shared_ptr<GXStateEntry> GXArrayTable::objectForKeyInt(std::int32_t key) const {
    return entryFound([key](const GXStateEntry& entry) { return entry.compareKeyInt(key); });
}

std::int32_t GXArrayTable::setObjectForKey(std::shared_ptr<GXStateEntry> entry,
                                           const std::optional<std::string>& key) {
    return store(std::move(entry),
                 [&key](const GXStateEntry& other) { return other.compareKey(key); });
}

std::int32_t GXArrayTable::setObjectForKeyInt(std::shared_ptr<GXStateEntry> entry,
                                              std::int32_t key) {
    return store(std::move(entry),
                 [key](const GXStateEntry& other) { return other.compareKeyInt(key); });
}

void GXArrayTable::removeObjectForKey(const std::optional<std::string>& key) {
    removeFound([&key](const GXStateEntry& entry) { return entry.compareKey(key); });
}

void GXArrayTable::removeObjectForKeyInt(std::int32_t key) {
    removeFound([key](const GXStateEntry& entry) { return entry.compareKeyInt(key); });
}

std::shared_ptr<GXStateEntry>
GXArrayTable::valueForKey(const std::optional<std::string>& key) const {
    return objectForKey(key);
}

DictionaryArray GXArrayTable::arrayOfDictionaries() const {
    DictionaryArray result;
    for (const auto& entry : *_tableArray) {
        if (entry != nullptr) {
            result.push_back(entry->nodeDictionary());
        }
    }
    return result;
}

bool GXArrayTable::loadArrayOfDictionariesForEntryClass(
    const std::optional<DictionaryArray>& dictionaries, const EntryClass& entryClass) {
    removeAllObjects();
    if (!dictionaries) {
        return false;
    }
    for (auto& entry : entriesOfDictionaries(*dictionaries, entryClass)) {
        addObject(std::move(entry));
    }
    return true;
}

EntryDictionary GXArrayTable::tableDictionary() const {
    EntryDictionary result;
    for (const auto& entry : *_tableArray) {
        addEntryUnderItsKey(result, entry);
    }
    return result;
}

void GXArrayTable::setTableDictionary(const EntryDictionary& dictionary) {
    removeAllObjects();
    for (const auto& [key, entry] : dictionary) {
        if (entry != nullptr) {
            setObjectForKey(entry, entry->key());
        }
    }
}

DictionaryOfDictionaries GXArrayTable::dictionaryOfDictionaries() const {
    return dictionariesOfEntries(tableDictionary());
}

bool GXArrayTable::loadDictionaryOfDictionariesForEntryClass(
    const std::optional<DictionaryOfDictionaries>& dictionaries, const EntryClass& entryClass) {
    return loadTable(*this, dictionaries, entryClass);
}

bool GXArrayTable::encodeWithCoder(PropertyListEncoder& coder) const {
    PropertyList list;
    for (const auto& entry : *_tableArray) {
        list.push_back(entry != nullptr ? codedEntry(*entry) : PropertyListValue(placeholder));
    }
    return coder.encodeObject(std::move(list));
}

bool GXArrayTable::initWithCoder(PropertyListDecoder& coder, const EntryClass& entryClass) {
    const auto object = coder.decodeObject();
    if (!object || object->list() == nullptr) {
        return false;
    }
    auto array = std::make_shared<EntryArray>();
    for (const auto& value : *object->list()) {
        auto entry = decodedEntry(value, entryClass);
        if (entry == nullptr && value != PropertyListValue(placeholder)) {
            return false;
        }
        array->push_back(std::move(entry));
    }
    setTableArray(std::move(array));
    return true;
}

std::shared_ptr<GXArrayTable> GXArrayTable::copy() const {
    auto result = newInstance();
    result->setTableArray(_tableArray);
    return result;
}

std::shared_ptr<GXArrayTable> GXArrayTable::newInstance() const {
    return std::make_shared<GXArrayTable>();
}

int GXArrayTable::numberOfRowsInTableView() {
    return count();
}

std::optional<PropertyListValue>
GXArrayTable::tableViewObjectValueForTableColumnRow(const TableColumn& column, int row) {
    try {
        return cellValue(objectAtIndex(row), column.identifier);
    } catch (const PlatformException&) {
        logToSystem(filledText("KVC Exception, no value for key %@", {column.identifier}));
        return column.identifier;
    }
}

void GXArrayTable::tableViewSetObjectValueForTableColumnRow(const PropertyListValue& value,
                                                            const TableColumn& column, int row) {
    if (const auto entry = objectAtIndex(row)) {
        entry->setValueForKey(value, column.identifier);
    }
}

} // namespace kx
