#include "KXConfigAppDelegate.h"
#include "support/LocalizedText.h"

#include <utility>

// The quiet line is about one thing at a time: an edit that was sent, until another row is chosen
// or something is typed, and otherwise what Apply would send. A refusal stands until anything of
// this changes.

namespace kx {

void KXConfigAppDelegate::editTextDidChange(std::string_view text) {
    _textBeingTyped = text;
    showEditNote();
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
    if (!_editReport.has_value()) {
        showEditNote();
    }
}

void KXConfigAppDelegate::showRefusal(std::optional<CommandRefusal> refusal) {
    showNote(refusal.has_value() ? noteOfRefusal(*refusal) : std::string());
}

void KXConfigAppDelegate::showNote(std::string_view note) {
    _editReport.reset();
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
    showReport();
}

void KXConfigAppDelegate::showReport() {
    _outlets.quietLine->setStringValue(_editReport->text());
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
