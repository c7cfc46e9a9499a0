#include "words/QuietLine.h"

#include "words/EditOutcomeText.h"
#include "words/RequestOutcomeText.h"

#include <utility>

namespace kx {

QuietLine::QuietLine(Show show)
    : _show(std::move(show)) {}

void QuietLine::show(std::string_view text, bool meansTrouble) {
    _shown = text;
    _shownMeansTrouble = meansTrouble;
    display();
}

void QuietLine::display() {
    const std::string& sentence = _hint.empty() ? _shown : _hint;
    const bool both = !_warning.empty() && !sentence.empty();
    const bool meansTrouble = !_warning.empty() || (_hint.empty() && _shownMeansTrouble);
    _show(both ? _warning + ' ' + sentence : _warning + sentence, meansTrouble);
}

void QuietLine::setWarning(std::string warning) {
    if (warning != _warning) {
        _warning = std::move(warning);
        display();
    }
}

void QuietLine::setHint(std::string hint) {
    if (hint != _hint) {
        _hint = std::move(hint);
        display();
    }
}

void QuietLine::showForecast(std::string text, bool meansTrouble) {
    _hint.clear();
    show(text, meansTrouble);
    _state = Forecast{std::move(text), meansTrouble};
}

void QuietLine::refreshForecast(std::string text, bool meansTrouble) {
    const bool isNew = text != _shown || meansTrouble != _shownMeansTrouble;
    if (std::holds_alternative<Forecast>(_state) && isNew) {
        show(text, meansTrouble);
        _state = Forecast{std::move(text), meansTrouble};
    }
}

void QuietLine::showMessage(std::string text) {
    showForecast({}); // the line is cleared first, so the same message counts as new
    if (!text.empty()) {
        show(text, true);
        _state = Message{std::move(text)};
    }
}

void QuietLine::endMessage(std::string text, bool meansTrouble) {
    if (!std::holds_alternative<EditOutcome>(_state)) {
        showForecast(std::move(text), meansTrouble);
    }
}

void QuietLine::showOutcome(EditOutcome outcome) {
    _hint.clear();
    _state = std::move(outcome);
    refreshOutcome();
}

void QuietLine::showOutcome(RequestOutcome outcome) {
    _hint.clear();
    _state = std::move(outcome);
    refreshOutcome();
}

void QuietLine::refreshOutcome() {
    if (const auto* const edit = std::get_if<EditOutcome>(&_state)) {
        show(textOfEditOutcome(*edit), meansTrouble(*edit));
    } else if (const auto* const request = std::get_if<RequestOutcome>(&_state)) {
        show(textOfRequestOutcome(*request), meansTrouble(*request));
    }
}

void QuietLine::unitIsShown(std::string_view serialNumber) {
    const auto* const edit = std::get_if<EditOutcome>(&_state);
    const auto* const request = std::get_if<RequestOutcome>(&_state);
    const bool isOfAnother =
        (edit != nullptr && edit->unit() != serialNumber) ||
        (request != nullptr && request->isForOneUnit() && request->unit() != serialNumber);
    if (isOfAnother) {
        _state = Forecast{};
    }
}

void QuietLine::unitDidAccept(std::string_view serialNumber,
                              const std::optional<SendFailure>& requestFailure,
                              std::uint32_t sender) {
    auto* const edit = std::get_if<EditOutcome>(&_state);
    auto* const request = std::get_if<RequestOutcome>(&_state);
    if ((edit != nullptr && (edit->unitDidAccept(serialNumber, requestFailure) ||
                             edit->otherUnitDidAccept(serialNumber, sender))) ||
        (request != nullptr && request->unitDidAccept(serialNumber, sender))) {
        refreshOutcome();
    }
}

void QuietLine::unitDidTell(std::string_view serialNumber, const UnitRecord& record,
                            std::uint32_t sender) {
    auto* const edit = std::get_if<EditOutcome>(&_state);
    auto* const request = std::get_if<RequestOutcome>(&_state);
    if ((edit != nullptr && edit->unitDidTell(serialNumber, record)) ||
        (request != nullptr && request->unitDidTell(serialNumber, sender))) {
        refreshOutcome();
    }
}

void QuietLine::unitDidAnswer(std::string_view serialNumber, std::uint32_t sender,
                              std::string text) {
    auto* const request = std::get_if<RequestOutcome>(&_state);
    if (request != nullptr && request->unitDidAnswer(serialNumber, sender, std::move(text))) {
        refreshOutcome();
    }
}

void QuietLine::arpToolDidEnd(ARPEntry entry) {
    auto* const outcome = std::get_if<EditOutcome>(&_state);
    if (outcome != nullptr && outcome->arpEntry().state != ARPEntryState::notWanted) {
        outcome->setARPEntry(std::move(entry));
        refreshOutcome();
    }
}

void QuietLine::patienceDidEnd() {
    auto* const edit = std::get_if<EditOutcome>(&_state);
    auto* const request = std::get_if<RequestOutcome>(&_state);
    if ((edit != nullptr && edit->patienceDidEnd()) ||
        (request != nullptr && request->patienceDidEnd())) {
        refreshOutcome();
    }
}

void QuietLine::patienceDidBegin() {
    auto* const edit = std::get_if<EditOutcome>(&_state);
    if (edit != nullptr && edit->patienceDidBegin()) {
        refreshOutcome();
    }
}

} // namespace kx
