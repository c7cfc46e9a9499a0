// The random operations on table containers and their plain models: entries and their stand-ins,
// and the comparison of results.

#pragma once

#include "TestEntries.h"
#include "doubles/RecordedSystemLog.h"
#include "model/PlainTables.h"
#include "model/RandomSteps.h"

#include <gtest/gtest.h>

#include <cstddef>
#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace kx {

class TableModelFixture : public ::testing::Test {
protected:
    // An entry of the program and the one of the model that stands for it.
    struct Pair {
        std::shared_ptr<GXStateEntry> entry;
        model::PlainEntryPointer plain;
    };

    Pair newPair() {
        auto plain = std::make_shared<model::PlainEntry>();
        plain->knowsKeys = !random.oneIn(20);
        if (!plain->knowsKeys) {
            return {std::make_shared<GXStateEntry>(), plain};
        }
        auto entry = std::make_shared<KeyedEntry>();
        if (!random.oneIn(8)) {
            plain->name = anyName();
            entry->setValueForKey(PropertyListValue(*plain->name), "name");
        }
        if (!random.oneIn(8)) {
            plain->number = anyNumber();
            entry->setValueForKey(PropertyListValue(*plain->number), "number");
        }
        return {entry, plain};
    }

    // One that was made before, or a new one.
    Pair anyPair() {
        constexpr std::size_t mostRemembered = 40;
        if (pairs.empty() || random.oneIn(2)) {
            pairs.push_back(newPair());
        }
        if (pairs.size() > mostRemembered) {
            pairs.erase(pairs.begin());
        }
        return random.oneOf(pairs);
    }

    std::string anyName() { return std::string(1, static_cast<char>('a' + random.below(12))); }
    std::int32_t anyNumber() { return static_cast<std::int32_t>(random.below(24)) - 4; }

    // Mostly in the neighbourhood of the count, sometimes far beyond.
    std::int32_t anyIndex(std::int32_t count) {
        switch (random.below(10)) {
        case 0:
            return -1 - static_cast<std::int32_t>(random.below(3));
        case 1:
            return count + 97 + static_cast<std::int32_t>(random.below(5));
        default:
            return static_cast<std::int32_t>(random.below(static_cast<std::uint32_t>(count + 3)));
        }
    }

    static std::string described(const std::shared_ptr<GXStateEntry>& entry) {
        return entry != nullptr ? entry->description() : "*NULL*";
    }
    static std::string described(const model::PlainEntryPointer& entry) {
        return entry != nullptr ? entry->description() : "*NULL*";
    }
    static std::string cell(const std::optional<PropertyListValue>& value) {
        return value.has_value() ? value->description() : "(absent)";
    }

    // Tells the step. A result of the program and of the model must be the same.
    template<class Left, class Right>
    void expectSame(const std::string& words, const Left& program, const Right& model) {
        random.tell(words);
        EXPECT_EQ(program, model);
    }

    model::RandomSteps random{30'000};
    RecordedSystemLog systemLog;
    model::PlainLog plainLog;
    std::vector<Pair> pairs;
};

} // namespace kx
