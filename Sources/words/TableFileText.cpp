#include "words/TableFileText.h"

#include "support/LocalizedText.h"
#include "words/DocumentFaultText.h"
#include "words/QuotedText.h"

namespace kx {

namespace {

std::string sentenceOf(const Error& error, const std::string& path) {
    return localizedText(
        "“%@” cannot be read: %@.",
        {safeForSentence(path, mostCharactersOfSentence), error.localizedDescription()});
}

std::string sentenceOf(DocumentFault fault, const std::string& path) {
    return textOfDocumentFault(fault, path);
}

std::string sentenceOf(const JournalFault& fault, const std::string& path) {
    return textOfDocumentFault(fault.fault, path);
}

} // namespace

std::string sentenceOfFileFault(const TableFileFault& fault, const std::string& path) {
    return std::visit([&path](const auto& each) { return sentenceOf(each, path); }, fault);
}

std::string sentenceOfFileFault(const JournalFileFault& fault, const std::string& path) {
    return std::visit([&path](const auto& each) { return sentenceOf(each, path); }, fault);
}

} // namespace kx
