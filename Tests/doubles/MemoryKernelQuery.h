// A kernel whose values are bytes in memory, written by the test.

#pragma once

#include "System Configuration/KernelQuery.h"
#include "support/ByteRange.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <map>
#include <optional>
#include <span>
#include <string>
#include <utility>
#include <vector>

namespace kx {

class MemoryKernelQuery final : public KernelQuery {
public:
    struct Call {
        std::vector<int> name;
        std::optional<std::size_t> capacity; // length of the buffer; absent for a probe of the size
    };

    int sysctl(std::span<const int> name, std::uint8_t* buffer, std::size_t& length) override {
        calls.push_back(
            {{name.begin(), name.end()}, buffer != nullptr ? std::optional(length) : std::nullopt});
        const auto value = _values.find(std::vector<int>(name.begin(), name.end()));
        if (value == _values.end() || (buffer == nullptr ? failsProbe : failsRead)) {
            return -1;
        }
        Bytes& bytes = value->second;
        if (buffer == nullptr) {
            length = bytes.size();
            bytes.insert(bytes.end(), growth.begin(), growth.end());
            return 0;
        }
        if (length < bytes.size()) {
            return -1;
        }
        std::copy(bytes.begin(), bytes.end(), buffer);
        length = bytes.size();
        return 0;
    }

    std::string loopbackName() const override { return loopback; }

    void setValue(std::vector<int> name, Bytes bytes) {
        _values.insert_or_assign(std::move(name), std::move(bytes));
    }
    void setInterfaceList(Bytes bytes) {
        setValue({std::begin(interfaceListName), std::end(interfaceListName)}, std::move(bytes));
    }

    // Forgets all values, calls and failures.
    void clear() { *this = MemoryKernelQuery(); }

    std::vector<Call> calls;
    bool failsProbe = false;
    bool failsRead = false;
    Bytes growth; // bytes that a value gains after its size was asked for
    std::string loopback = "lo0";

private:
    std::map<std::vector<int>, Bytes> _values;
};

} // namespace kx
