#include "words/SendFailureText.h"

#include "support/LocalizedText.h"

namespace kx {

std::string reasonOfSendFailure(const SendFailure& failure) {
    return failure.error.has_value() ? failure.error->localizedDescription()
                                     : localizedText("The UDP listener is not running.");
}

bool isWholeSentence(std::string_view reason) {
    return reason.ends_with('.') || reason.ends_with("。");
}

std::string noteOfSendFailure(const SendFailure& failure) {
    const std::string reason = reasonOfSendFailure(failure);
    return isWholeSentence(reason) ? localizedText("Not sent: %@", {reason})
                                   : localizedText("Not sent: %@.", {reason});
}

std::string noteOfRefusal(CommandRefusal refusal) {
    switch (refusal) {
    case CommandRefusal::notEditable:
        return localizedText("Not sent: No command changes this parameter.");
    case CommandRefusal::emptyValue:
        return localizedText("Not sent: The value is empty.");
    case CommandRefusal::notUTF8:
        return localizedText("Not sent: The unit ID is not a text in UTF-8.");
    case CommandRefusal::noUnit:
        return localizedText("Not sent: No unit is selected.");
    case CommandRefusal::notASCII:
        return localizedText("Not sent: A command can hold ASCII characters only.");
    case CommandRefusal::noAddress:
        break;
    }
    return localizedText("Not sent: The address of the unit is not known.");
}

} // namespace kx
