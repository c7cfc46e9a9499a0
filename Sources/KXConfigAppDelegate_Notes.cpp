#include "KXConfigAppDelegate.h"
#include "support/LocalizedText.h"

#include <utility>

// The quiet line is about one thing at a time: an edit that was sent, a message, such as why a
// command was not sent, or otherwise what Apply would send.
//
// The report of an edit stands until another row is chosen, something is typed, Apply, Send or
// Restore is pressed, another unit is shown, or there is a message. A message stands until a person
// does the like, or presses Discover or Reload, or gets help. What the network brings ends neither,
// nor does an Apply without a parameter, the event log's button, or a choice of interface or
// option.

namespace kx {

void KXConfigAppDelegate::editTextDidChange(std::string_view text) {
    if (text != _textBeingTyped.value_or(editedValue())) {
        _textBeingTyped = text;
        showEditNote();
    }
}

CommandTarget KXConfigAppDelegate::commandTarget() const {
    return {.unitIsSelected = _selectedUnit.has_value(),
            .address = selectedText(UnitParameter::internalIPAddress),
            .hardwareAddress = selectedText(UnitParameter::internalMACAddress)};
}

void KXConfigAppDelegate::showEditNote() {
    const auto parameter = editedParameter();
    showNote(parameter.has_value()
                 ? noteOfEdit(*parameter, _textBeingTyped.value_or(editedValue()), commandTarget())
                 : std::string());
}

void KXConfigAppDelegate::refreshEditNote() {
    if (!_editReport.has_value() && !_messageStands) {
        showEditNote();
    }
}

void KXConfigAppDelegate::endMessage() {
    _messageStands = false;
    refreshEditNote();
}

void KXConfigAppDelegate::showRefusal(std::optional<CommandRefusal> refusal) {
    showMessage(refusal.has_value() ? noteOfRefusal(*refusal) : std::string());
}

// Whether the latest datagram was not sent, which the line then says.
bool KXConfigAppDelegate::showFailedSend() {
    if (!_sendFailure.has_value()) {
        return false;
    }
    showMessage(noteOfFailedSend(*_sendFailure));
    return true;
}

void KXConfigAppDelegate::showMessage(std::string_view message) {
    showNote({}); // the same message again is a new one, and a screen reader says so
    showNote(message);
    _messageStands = !message.empty();
}

void KXConfigAppDelegate::showNote(std::string_view note) {
    _editReport.reset();
    _messageStands = false;
    _outlets.quietLine->setStringValue(note);
}

EditReport KXConfigAppDelegate::reportOfEdit(UnitParameter parameter) const {
    return EditReport({.parameter = parameter,
                       .typed = editedValue(),
                       .unit = _selectedUnit,
                       .valueBefore = selectedText(parameter)});
}

void KXConfigAppDelegate::beginReport(EditReport report) {
    if (_sendFailure.has_value()) {
        report.sendDidFail(*_sendFailure);
    }
    _editReport = std::move(report);
    _messageStands = false;
    showReport();
}

void KXConfigAppDelegate::showReport() {
    if (_editReport.has_value()) {
        _outlets.quietLine->setStringValue(_editReport->text());
    }
}

void KXConfigAppDelegate::unitDidAccept(const std::optional<std::string>& serial) {
    if (serial.has_value() && _editReport.has_value() && _editReport->isAbout(*serial)) {
        _editReport->unitDidAccept();
        showReport();
    }
}

void KXConfigAppDelegate::unitDidReply(const std::string& serial, const UnitRecord& record) {
    if (_editReport.has_value() && _editReport->isAbout(serial)) {
        _editReport->unitDidReply(record);
        showReport();
    }
}

void KXConfigAppDelegate::arpToolDidEnd(const std::string& address, int status) {
    if (_editReport.has_value()) {
        _editReport->arpToolDidEnd(address, status);
        showReport();
    }
}

} // namespace kx
