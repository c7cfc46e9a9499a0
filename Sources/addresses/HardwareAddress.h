// Ethernet hardware addresses as values, and their formatter.
//
// Both are plain values; the shared formatter is made on first use on the main thread. Parsing
// writes to the log and belongs to the main thread; the rest may be called from any thread.

#pragma once

#include "addresses/HardwareAddressText.h"
#include "support/PropertyListValue.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <string_view>

namespace kx {

// The base of all objects that formatters can be asked to format.
class FormattedObject {
public:
    virtual ~FormattedObject() = default;

protected:
    FormattedObject() = default;
    FormattedObject(const FormattedObject&) = default;
    FormattedObject& operator=(const FormattedObject&) = default;
};

// Six octets in wire order; all zero in a new one.
class HardwareAddress : public FormattedObject {
public:
    using Octets = std::array<std::uint8_t, hardwareAddressLength>;

    HardwareAddress() = default;

    // The stored octets, to read and to write through.
    std::uint8_t* hardwareAddress() { return _hardwareAddress.data(); }
    const std::uint8_t* hardwareAddress() const { return _hardwareAddress.data(); }
    std::uint8_t* bytes() { return hardwareAddress(); }
    const std::uint8_t* bytes() const { return hardwareAddress(); }
    std::size_t length() const { return _hardwareAddress.size(); }

    void setHardwareAddress(const Octets& octets) { _hardwareAddress = octets; }
    void getHardwareAddress(Octets& octets) const { octets = _hardwareAddress; }

    // "00:1A:2B:3C:4D:5E".
    std::string stringValue() const;

    // Parses a text by the formatter's rules and returns whether it could. On failure logs the
    // formatter's error description and leaves the octets as they were.
    bool setStringValue(std::string_view text);

    // stringValue().
    std::string description() const { return stringValue(); }

    // A new address with the same octets. It is always of this class: a subclass's own fields are
    // not copied.
    HardwareAddress copy() const;

private:
    Octets _hardwareAddress{};
};

// A text and the attributes with which it is shown.
struct AttributedText {
    std::string text;
    PropertyDictionary attributes;
};

// Converts hardware addresses to text and back. Holds no state.
class HardwareAddressFormatter {
public:
    // The process's one formatter, created on first use and never released.
    static const HardwareAddressFormatter& sharedInstance();

    // "00:1A:2B:3C:4D:5E"; absent unless the object is a HardwareAddress or of a subclass.
    std::optional<std::string> stringForObjectValue(const FormattedObject* object) const;

    // The same text with attributes.
    std::optional<AttributedText>
    attributedStringForObjectValueWithDefaultAttributes(const FormattedObject* object,
                                                        const PropertyDictionary& attributes) const;

    // Parses six groups of hexadecimal digits (see HardwareAddressText.h) and returns whether it
    // could; text behind the sixth group is ignored. On success `object` receives a new address.
    // When a group is missing, `object` receives a new address with the octets read so far, and
    // "Input: " and the text are logged.
    //
    // `errorDescription`, unless null, is cleared on success and says in words what is wrong on
    // failure (localized): "HardwareAddressFormatter: inString is nil" for an empty text,
    // "HardwareAddressFormatter: object could not be allocated" without memory,
    // "HardwareAddressFormatter: invalid Ethernet address". In the first two cases `object` is not
    // written.
    //
    // The new address lies in memory of the default memory resource (std::pmr), which must outlive
    // it.
    bool
    getObjectValueForStringErrorDescription(std::shared_ptr<HardwareAddress>& object,
                                            std::string_view text,
                                            std::optional<std::string>* errorDescription) const;
};

} // namespace kx
