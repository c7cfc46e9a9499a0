#include "commands/Document.h"

#include "commands/PlanReport.h"

namespace kx {

namespace {

// What a key holds before its command has got anything.
Json emptyValue(std::string_view command, std::string_view key) {
    if (key == "sums") {
        return jsonOfSums({}, command == "plan" ? PlanStage::planned : PlanStage::carriedOut);
    }
    if (key == "interface" || key == "port") {
        return nullptr;
    }
    if (key == "dropped" || key == "rejected" || key == "same") {
        return 0;
    }
    if (key == "complete") {
        return false;
    }
    return Json::array();
}

} // namespace

Document::Document(const std::optional<std::string>& command) {
    _json["schema"] = schemaOfDocuments;
    _json["command"] = command.has_value() ? Json(*command) : Json(nullptr);
    _json["exit"] = 0;
    _json["error"] = nullptr;
    _json["warnings"] = Json::array();
    const CommandRow* const row = command.has_value() ? commandForName(*command) : nullptr;
    if (row != nullptr) {
        for (const std::string_view key : row->keys) {
            _json[std::string(key)] = emptyValue(row->name, key);
        }
    }
}

void Document::appendText(std::string_view key, std::string_view element) {
    std::string& list = _lists[std::string(key)];
    list += list.empty() ? "" : ",";
    list += element;
}

void Document::warn(std::string_view code, std::string_view message) {
    Json warning;
    warning["code"] = std::string(code);
    warning["message"] = std::string(message);
    _json["warnings"].push_back(std::move(warning));
}

std::string Document::text(int exitStatus, const std::optional<Failure>& failure) {
    _json["exit"] = exitStatus;
    if (failure.has_value()) {
        Json error;
        error["code"] = std::string(nameOf(failure->code));
        error["message"] = failure->message;
        _json["error"] = std::move(error);
    }
    std::string text;
    for (const auto& [key, value] : _json.items()) {
        text += text.empty() ? '{' : ',';
        text += textOfJson(key) + ':';
        const auto list = _lists.find(key);
        if (list == _lists.end()) {
            text += textOfJson(value);
        } else {
            text.append("[").append(list->second).append("]");
        }
    }
    return text += "}\n";
}

Json jsonOfDuplicates(const HeardUnits& units) {
    Json list = Json::array();
    for (const DuplicateAddress& duplicate : units.duplicateAddresses()) {
        Json json;
        json["internal_ip"] = duplicate.address;
        json["serials"] = duplicate.serialNumbers;
        list.push_back(std::move(json));
    }
    for (const DuplicateSerialNumber& duplicate : units.duplicateSerialNumbers()) {
        Json json;
        json["serial"] = duplicate.serialNumber;
        json["internal_macs"] = duplicate.hardwareAddresses;
        list.push_back(std::move(json));
    }
    return list;
}

} // namespace kx
