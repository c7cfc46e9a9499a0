// Random operations on an array table and on a plain model of it; contents, results and, where
// there are any, the lines of the system log are compared after each.

#include "TableModelFixture.h"
#include "tables/GXArrayTable.h"

#include <map>

namespace kx {

namespace {

class ArrayTableModel : public TableModelFixture {
protected:
    void performOne() {
        switch (random.below(13)) {
        case 0:
        case 1:
        case 2:
        case 3:
            return storeByKey();
        case 4:
        case 5:
            return storeByIndex();
        case 6:
        case 7:
            return removeOne();
        case 8:
        case 9:
            return lookUp();
        case 10:
            return readCell();
        case 11:
            return !random.oneIn(4) ? writeCell() : random.oneIn(2) ? convert() : convertByArray();
        default:
            return random.oneIn(4) ? startAnew() : useCopy();
        }
    }

    void storeByKey() {
        const Pair pair = anyPair();
        if (random.oneIn(3)) {
            const auto key = random.oneIn(10) ? anyName() : pair.plain->name;
            expectSame("store " + described(pair.plain) + " under " + key.value_or("no name"),
                       table->setObjectForKey(pair.entry, key),
                       plain.store(pair.plain, plain.byName(key)));
        } else {
            const auto key = random.oneIn(10) ? anyNumber() : pair.plain->number.value_or(0);
            expectSame("store " + described(pair.plain) + " under " + std::to_string(key),
                       table->setObjectForKeyInt(pair.entry, key),
                       plain.store(pair.plain, plain.byNumber(key)));
        }
    }

    void storeByIndex() {
        const Pair pair = anyPair();
        const std::int32_t index = anyIndex(table->count());
        const std::string words = described(pair.plain) + " at " + std::to_string(index);
        switch (random.below(3)) {
        case 0:
            return expectSame("add " + words, table->addObject(pair.entry), plain.add(pair.plain));
        case 1:
            return expectSame("insert " + words, table->insertObjectAtIndex(pair.entry, index),
                              plain.insert(pair.plain, index));
        default:
            return expectSame("replace " + words,
                              table->replaceObjectAtIndexWithObject(index, pair.entry),
                              plain.replace(index, pair.plain));
        }
    }

    void removeOne() {
        const Pair pair = anyPair();
        const std::int32_t index = anyIndex(table->count());
        const std::int32_t number = anyNumber();
        const std::string name = anyName();
        switch (random.below(4)) {
        case 0:
            return expectSame("remove at " + std::to_string(index),
                              table->removeObjectAtIndex(index), plain.removeAt(index));
        case 1:
            random.tell("remove " + described(pair.plain));
            table->removeObject(pair.entry);
            return plain.remove(pair.plain);
        case 2:
            random.tell("remove number " + std::to_string(number));
            table->removeObjectForKeyInt(number);
            return plain.removeFound(plain.byNumber(number));
        default:
            random.tell("remove name " + name);
            table->removeObjectForKey(name);
            return plain.removeFound(plain.byName(name));
        }
    }

    void lookUp() {
        const Pair pair = anyPair();
        const std::int32_t index = anyIndex(table->count());
        const std::int32_t number = anyNumber();
        const std::string name = anyName();
        expectSame("at " + std::to_string(index), described(table->objectAtIndex(index)),
                   described(plain.at(index)));
        expectSame("number " + std::to_string(number), described(table->objectForKeyInt(number)),
                   described(plain.find(plain.byNumber(number))));
        expectSame("name " + name, described(table->valueForKey(name)),
                   described(plain.find(plain.byName(name))));
        expectSame("index of " + described(pair.plain), table->indexOfObject(pair.entry),
                   plain.indexOf(pair.plain));
    }

    // An entry without keys knows no column; the cell then shows the column's own name.
    void readCell() {
        const std::int32_t row = anyIndex(table->count());
        const auto column = random.oneOf<std::string>({"name", "number", "other"});
        const auto entry = plain.at(row);
        const bool isUnknown = entry != nullptr && (column == "other" || !entry->knowsKeys);
        const auto shown =
            isUnknown ? column : model::plainCell(entry, column).value_or("(absent)");
        if (isUnknown) {
            plainLog.push_back("KVC Exception, no value for key " + column);
        }
        expectSame("cell " + std::to_string(row) + ' ' + column,
                   cell(table->tableViewObjectValueForTableColumnRow({column}, row)), shown);
    }

    void writeCell() {
        const std::int32_t row = anyIndex(table->count());
        const auto entry = plain.at(row);
        if (entry == nullptr || entry->knowsKeys) {
            const std::string name = anyName();
            random.tell("write " + name + " into row " + std::to_string(row));
            table->tableViewSetObjectValueForTableColumnRow(name, {"name"}, row);
            if (entry != nullptr) {
                entry->name = name;
            }
        }
    }

    // By dictionaries and back, which leaves out what has no key, and puts entries in order.
    void convert() {
        random.tell("to dictionaries and back");
        const auto dictionaries = table->dictionaryOfDictionaries();
        EXPECT_TRUE(table->loadDictionaryOfDictionariesForEntryClass(dictionaries,
                                                                     entryOfClass<KeyedEntry>));
        std::map<std::string, model::PlainEntryPointer> byName;
        for (const auto& entry : *plain.entries) {
            if (entry != nullptr && !entry->knowsKeys) {
                plainLog.emplace_back("GXStateEntry: override key for subclass");
            } else if (entry != nullptr && entry->name.has_value()) {
                byName[*entry->name] = std::make_shared<model::PlainEntry>(*entry);
            }
        }
        startPairsAnew();
        for (const auto& [name, entry] : byName) {
            const auto place = static_cast<std::int32_t>(plain.count());
            plain.store(entry, plain.byName(name));
            pairs.push_back({table->objectAtIndex(place), entry});
        }
    }

    // By an array and back, which leaves out placeholders.
    void convertByArray() {
        random.tell("to an array of dictionaries and back");
        const auto dictionaries = table->arrayOfDictionaries();
        EXPECT_TRUE(
            table->loadArrayOfDictionariesForEntryClass(dictionaries, entryOfClass<KeyedEntry>));
        const auto before = *plain.entries;
        startPairsAnew();
        for (const auto& entry : before) {
            if (entry != nullptr) {
                const auto loaded = std::make_shared<model::PlainEntry>(*entry);
                loaded->knowsKeys = true;
                const auto place = static_cast<std::int32_t>(plain.add(loaded));
                pairs.push_back({table->objectAtIndex(place), loaded});
            }
        }
    }

    void startPairsAnew() {
        plain.entries->clear();
        pairs.clear();
    }

    void startAnew() {
        random.tell("remove all");
        table->removeAllObjects();
        startPairsAnew();
    }

    // The copy shares the array, so the table goes on with all that is done to the copy.
    void useCopy() {
        random.tell("go on with a copy");
        const auto before = table;
        table = table->copy();
        EXPECT_EQ(table->tableArray(), before->tableArray());
    }

    void compare() {
        std::string program;
        for (const auto& entry : *table->tableArray()) {
            program += described(entry) + ' ';
        }
        std::string model;
        for (const auto& entry : *plain.entries) {
            model += described(entry) + ' ';
        }
        ASSERT_EQ(program, model);
        ASSERT_EQ(table->numberOfRowsInTableView(), plain.count());
        ASSERT_EQ(systemLog.lines().size(), plainLog.size());
        if (!plainLog.empty()) {
            ASSERT_EQ(systemLog.lines().back(), plainLog.back());
        }
    }

    std::shared_ptr<GXArrayTable> table = std::make_shared<GXArrayTable>();
    model::PlainArrayTable plain{plainLog};
};

} // namespace

TEST_F(ArrayTableModel, DoesTheSameAsThePlainModelAfterEveryRandomStep) {
    while (!HasFailure() && random.next()) {
        if (table->count() > 150) {
            startAnew();
        } else {
            performOne();
        }
        compare();
    }
}

} // namespace kx
