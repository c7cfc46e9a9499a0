// One row of a parameter table: the name of a unit's parameter and its value as text.
//
// Both live in the entry's dictionary under their own names, which are the identifiers of the
// table's columns too. Main thread only; held by std::shared_ptr when in a table.

#pragma once

#include "tables/GXStateEntry.h"

#include <memory>
#include <optional>
#include <string>
#include <string_view>

namespace kx {

class KXParameterEntry : public GXStateEntry {
public:
    static constexpr std::string_view parameterNameKey = "parameterName";
    static constexpr std::string_view parameterValueKey = "parameterValue";

    // Each is absent when the dictionary has no such field. Storing an absent text removes the
    // field. A field that is not a text reads as its description.
    std::optional<std::string> parameterName() const;
    void setParameterName(const std::optional<std::string>& name);
    std::optional<std::string> parameterValue() const;
    void setParameterValue(const std::optional<std::string>& value);

    // The two properties by name. Any other name throws UndefinedKeyFailure.
    std::optional<PropertyListValue> valueForKey(std::string_view key) const override;
    void setValueForKey(const std::optional<PropertyListValue>& value,
                        std::string_view key) override;

protected:
    std::shared_ptr<GXStateEntry> newInstance() const override;
};

} // namespace kx
