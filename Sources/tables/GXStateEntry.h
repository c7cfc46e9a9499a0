// An entry of a table: a record whose fields live by name in a dictionary.
//
// Subclasses add accessors for named fields, say which names valueForKey() and setValueForKey()
// know, and define the entry's key: a text (key(), compareKey()), an integer (keyInt(),
// compareKeyInt()) or both.
//
// Ownership: entries are held by std::shared_ptr; one entry may lie in several tables. The
// dictionary is shared too, because a copy of an entry keeps the dictionary of its source: a change
// through either is seen by both.
//
// Main thread only.

#pragma once

#include "support/PlatformException.h"
#include "support/PropertyListCoding.h"
#include "support/PropertyListValue.h"

#include <cstdint>
#include <functional>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace kx {

// A property that an entry does not have. The reason names it.
class UndefinedKeyFailure final : public PlatformException {
public:
    explicit UndefinedKeyFailure(std::string_view key);
};

class GXStateEntry {
public:
    GXStateEntry() = default; // has an empty dictionary
    virtual ~GXStateEntry() = default;
    GXStateEntry(const GXStateEntry&) = delete;
    GXStateEntry& operator=(const GXStateEntry&) = delete;

    // A new entry with a copy of `dictionary`. It is always of this class: a call through a
    // subclass still makes a plain GXStateEntry. For a subclass see entryOfClass().
    static std::shared_ptr<GXStateEntry> entryFromDictionary(const PropertyDictionary& dictionary);

    // The fields by name, never null. Setting null sets a new, empty dictionary.
    const std::shared_ptr<PropertyDictionary>& nodeDictionary() const { return _nodeDictionary; }
    void setNodeDictionary(std::shared_ptr<PropertyDictionary> dictionary);

    // The dictionary's description.
    std::string description() const;

    // The entry's own key. Abstract here: each writes a line to the system log and returns no key
    // and 0.
    virtual std::optional<std::string> key() const;
    virtual std::int32_t keyInt() const;

    // How the entry's own key compares with the argument: -1 when the entry sorts before it, 0 when
    // they are the same, 1 when the entry sorts after it. Abstract here: each writes a line to the
    // system log and returns -1.
    virtual int compareKey(const std::optional<std::string>& key) const;
    virtual int compareKeyInt(std::int32_t key) const;

    // Properties by name. A missing field reads as absent, and storing an absent value removes the
    // field. An unknown name throws UndefinedKeyFailure. This class knows no names; a subclass
    // passes the names on that it does not know itself.
    virtual std::optional<PropertyListValue> valueForKey(std::string_view key) const;
    virtual void setValueForKey(const std::optional<PropertyListValue>& value,
                                std::string_view key);

    // Writes the dictionary as one object. False, with nothing written, when its values are nested
    // too deep to be read again.
    bool encodeWithCoder(PropertyListEncoder& coder) const;

    // Takes over the dictionary that the next object of `coder` holds. False when there is no such
    // object or it is no dictionary; the entry then keeps its dictionary.
    bool initWithCoder(PropertyListDecoder& coder);

    // A new entry of the receiver's class that shares the receiver's dictionary.
    std::shared_ptr<GXStateEntry> copy() const;

    // The object that travels to another process in place of the entry: the entry itself, so it
    // travels by copy.
    GXStateEntry& replacementObjectForPortCoder() { return *this; }

protected:
    // A new, empty entry of the receiver's class, for copy(). Every subclass overrides it.
    virtual std::shared_ptr<GXStateEntry> newInstance() const;

private:
    std::shared_ptr<PropertyDictionary> _nodeDictionary = std::make_shared<PropertyDictionary>();
};

// The class of the entries that a table's load operations make. It is given as the function that
// makes an entry from a dictionary: GXStateEntry::entryFromDictionary, entryOfClass<Subclass>, or a
// function that chooses. The function may return null for a dictionary that it refuses.
using EntryClass = std::function<std::shared_ptr<GXStateEntry>(const PropertyDictionary&)>;

// A new entry of the given class with a copy of `dictionary`.
template<class Entry>
std::shared_ptr<GXStateEntry> entryOfClass(const PropertyDictionary& dictionary) {
    auto entry = std::make_shared<Entry>();
    entry->setNodeDictionary(std::make_shared<PropertyDictionary>(dictionary));
    return entry;
}

// Entries in order, and entries by key.
using EntryArray = std::vector<std::shared_ptr<GXStateEntry>>;
using EntryDictionary = std::map<std::string, std::shared_ptr<GXStateEntry>, std::less<>>;

// The dictionaries of entries, in order and by the entries' keys. They are the entries' own, not
// copies.
using DictionaryArray = std::vector<std::shared_ptr<PropertyDictionary>>;
using DictionaryOfDictionaries =
    std::map<std::string, std::shared_ptr<PropertyDictionary>, std::less<>>;

} // namespace kx
