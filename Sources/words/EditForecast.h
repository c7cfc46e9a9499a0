// A forecast in words: it tells a person what Apply will send for a typed value, before they press
// it.
//
// Pure, except that it looks up the sentences (support/LocalizedText.h), so it belongs to the main
// thread. Texts are UTF-8.

#pragma once

#include "conversation/CommandTarget.h"
#include "units/ParameterEdit.h"

#include <string>
#include <variant>

namespace kx {

// For example "Apply sends ^^IdT0DC0: destination port 3520, because 3524 is outside 3520 to 3523."
std::string forecastOfEdit(const std::variant<ParameterEdit, EditRefusal>& edit,
                           const CommandTarget& target);

// Whether what Apply will send is not what was typed, or something speaks against it.
bool meansTrouble(const std::variant<ParameterEdit, EditRefusal>& edit,
                  const CommandTarget& target);

// The sentence about the value alone, wherever the command goes. For an edit whose value was
// changed it says how, for example "Apply sends ^^IdT0DC0: destination port 3520, because 3524 is
// outside 3520 to 3523."
std::string forecastOfValueAlone(const ParameterEdit& edit);

} // namespace kx
