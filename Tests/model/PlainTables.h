// Plain models of the table containers (see PlainText.h): lists and maps that are searched and
// counted anew each time.
//
// A placeholder and a hole are null entries. An entry that knows no keys sorts before every key and
// writes a line to the log whenever it is asked.

#pragma once

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <functional>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace kx::model {

using PlainLog = std::vector<std::string>;

struct PlainEntry {
    std::optional<std::string> name; // its text key
    std::optional<std::int32_t> number;
    bool knowsKeys = true;

    template<class Key>
    int compared(const Key& own, const Key& other, PlainLog& log) const {
        if (!knowsKeys) {
            log.emplace_back("GXStateEntry: override compareKey for subclass");
            return -1;
        }
        return own == other ? 0 : own < other ? -1 : 1;
    }

    std::string description() const {
        std::vector<std::string> fields;
        if (name.has_value()) {
            fields.push_back("name = " + *name);
        }
        if (number.has_value()) {
            fields.push_back("number = " + std::to_string(*number));
        }
        return "{" + (fields.empty() ? "" : fields[0]) +
               (fields.size() > 1 ? "; " + fields[1] : std::string()) + "}";
    }
};

using PlainEntryPointer = std::shared_ptr<PlainEntry>;

// The cell of an entry in a column; absent for a null entry.
inline std::optional<std::string> plainCell(const PlainEntryPointer& entry,
                                            const std::string& column) {
    if (entry == nullptr || (column == "name" && !entry->name.has_value()) ||
        (column == "number" && !entry->number.has_value())) {
        return std::nullopt;
    }
    return column == "name" ? *entry->name : std::to_string(*entry->number);
}

class PlainArrayTable {
public:
    using Entries = std::vector<PlainEntryPointer>;
    using Comparison = std::function<int(const PlainEntry&)>;
    struct End {
        long place;
        int comparison;
    };

    explicit PlainArrayTable(PlainLog& log)
        : _log(&log) {}

    std::shared_ptr<Entries> entries = std::make_shared<Entries>(); // a copy of the table shares it

    long count() const { return static_cast<long>(entries->size()); }
    bool isInside(long index) const { return index >= 0 && index < count(); }
    PlainEntryPointer at(long index) const {
        return isInside(index) ? (*entries)[place(index)] : nullptr;
    }

    long add(const PlainEntryPointer& entry) {
        entries->push_back(entry);
        return count() - 1;
    }

    bool insert(const PlainEntryPointer& entry, long index) {
        if (!isInside(index) && !fill(index)) {
            return false;
        }
        entries->insert(entries->begin() + index, entry);
        return true;
    }

    bool replace(long index, const PlainEntryPointer& entry) {
        if (isInside(index)) {
            (*entries)[place(index)] = entry;
            return true;
        }
        return fill(index) && add(entry) >= 0;
    }

    bool removeAt(long index) {
        if (!isInside(index)) {
            return false;
        }
        entries->erase(entries->begin() + index);
        return true;
    }

    void remove(const PlainEntryPointer& entry) {
        for (long i = count() - 1; i >= 0; --i) {
            if (entry != nullptr && at(i) == entry) {
                removeAt(i);
            }
        }
    }

    std::optional<long> indexOf(const PlainEntryPointer& entry) const {
        for (long i = 0; i < count(); ++i) {
            if (entry != nullptr && at(i) == entry) {
                return i;
            }
        }
        return std::nullopt;
    }

    Comparison byNumber(std::int32_t key) const {
        return [this, key](const PlainEntry& entry) {
            return entry.compared(entry.number.value_or(0), key, *_log);
        };
    }

    Comparison byName(const std::optional<std::string>& key) const {
        return
            [this, key](const PlainEntry& entry) { return entry.compared(entry.name, key, *_log); };
    }

    PlainEntryPointer find(const Comparison& compare) const {
        const auto end = search(compare);
        return end.has_value() && end->comparison == 0 ? at(end->place) : nullptr;
    }

    long store(const PlainEntryPointer& entry, const Comparison& compare) {
        const auto end = search(compare);
        if (!end.has_value()) {
            return add(entry);
        }
        if (end->comparison == 0) {
            replace(end->place, entry);
        } else {
            entries->insert(entries->begin() + end->place + (end->comparison > 0 ? 0 : 1), entry);
        }
        return end->place; // one too small for an entry behind the last one that was looked at
    }

    void removeFound(const Comparison& compare) {
        const auto end = search(compare);
        if (end.has_value() && end->comparison == 0) {
            removeAt(end->place);
        }
    }

private:
    static std::size_t place(long index) { return static_cast<std::size_t>(index); }

    bool fill(long index) {
        if (index < 0 || index - count() > 99) {
            return false;
        }
        while (count() < index) {
            entries->push_back(nullptr);
        }
        return true;
    }

    std::optional<End> search(const Comparison& compare) const {
        return count() == 0 ? std::nullopt : std::optional(searchIn(0, count() - 1, compare));
    }

    End searchIn(long low, long high, const Comparison& compare) const {
        const long mid = (low + high) / 2;
        const int comparison = at(mid) != nullptr ? compare(*at(mid)) : -1;
        if (comparison > 0 && mid != low) {
            return searchIn(low, mid - 1, compare);
        }
        if (comparison < 0 && mid != high) {
            return searchIn(mid + 1, high, compare);
        }
        return {mid, comparison};
    }

    PlainLog* _log;
};

class PlainDictionaryTable {
public:
    using Key = std::optional<std::string>;

    std::map<std::string, PlainEntryPointer> entries;
    bool hasSortedKeys = false; // whether a subclass's order of the keys is kept

    void set(const PlainEntryPointer& entry, const Key& key) {
        if (entry != nullptr && key.has_value()) {
            hasSortedKeys = hasSortedKeys && entries.contains(*key);
            entries[*key] = entry;
        }
    }

    void add(const PlainEntryPointer& entry) {
        if (entry->name.has_value()) {
            entries[*entry->name] = entry;
            hasSortedKeys = false;
        }
    }

    void remove(const Key& key) {
        entries.erase(key.value_or("(no key)"));
        hasSortedKeys = false;
    }

    PlainEntryPointer find(const Key& key) const {
        const auto found = entries.find(key.value_or("(no key)"));
        return found != entries.end() ? found->second : nullptr;
    }

    void clear() {
        entries.clear();
        hasSortedKeys = false;
    }

    std::string description() const {
        std::string text = "Table = ";
        for (const auto& each : entries) {
            text += each.second->description() + ";";
        }
        return text;
    }
};

class PlainIndexTable {
public:
    std::map<long, PlainEntryPointer> entries;
    long count = 0;

    void set(const PlainEntryPointer& entry, long row) {
        entries[row] = entry;
        count = std::max(count, row + 1);
    }

    PlainEntryPointer at(long row) const {
        return entries.contains(row) ? entries.at(row) : nullptr;
    }

    void remove(long row) {
        entries.erase(row);
        if (row + 1 == count) {
            count = 0;
            for (const auto& each : entries) {
                count = std::max(count, each.first + 1);
            }
        }
    }

    std::string description() const {
        std::string text = "Table = ";
        for (const auto& each : entries) {
            text += each.second->description() + ";";
        }
        return text;
    }
};

} // namespace kx::model
