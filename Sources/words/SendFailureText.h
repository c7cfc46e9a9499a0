// Why something was not sent, in words.
//
// Pure but for looking up the sentences (support/LocalizedText.h), so it belongs to the main
// thread. Texts are UTF-8.

#pragma once

#include "conversation/CommandTarget.h"
#include "conversation/UnitSession.h"

#include <string>
#include <string_view>

namespace kx {

// The reason alone: the system's text, or "The UDP listener is not running."
std::string reasonOfSendFailure(const SendFailure& failure);

// Whether a reason brings its own full stop, in whatever script: the system's texts have none.
bool isWholeSentence(std::string_view reason);

// "Not sent: " and the reason, with one full stop at the end.
std::string noteOfSendFailure(const SendFailure& failure);

// For example "Not sent: No unit is selected."
std::string noteOfRefusal(CommandRefusal refusal);

} // namespace kx
