// Why something was not sent, in words.
//
// Pure but for looking up the sentences (support/LocalizedText.h), so it belongs to the main
// thread. Texts are UTF-8.

#pragma once

#include "conversation/CommandTarget.h"
#include "conversation/UnitSession.h"

#include <string>

namespace kx {

// The reason alone: the system's text, or "The UDP listener is not running."
std::string reasonOfSendFailure(const SendFailure& failure);

// "Not sent: " and the reason, with one full stop at the end.
std::string noteOfSendFailure(const SendFailure& failure);

// For example "Not sent: No unit is selected."
std::string noteOfRefusal(CommandRefusal refusal);

} // namespace kx
