#include "files/JournalFolder.h"

#include "files/TableFile.h"
#include "files/WholeFile.h"

#include <algorithm>
#include <array>
#include <filesystem>
#include <iterator>
#include <string_view>
#include <tuple>
#include <utility>

namespace kx {

namespace {

constexpr std::string_view beginningOfName = "kxctl-journal-";
constexpr std::string_view endOfName = ".jsonl";

// The time in the name of a journal, and what follows it: nothing for the first run of a second,
// "-2" for the second one.
std::tuple<std::string_view, std::size_t, std::string_view> placeInTime(std::string_view name) {
    constexpr std::string_view form = "20260102-030405";
    name.remove_prefix(beginningOfName.size());
    name.remove_suffix(endOfName.size());
    const std::string_view time = name.substr(0, form.size());
    name.remove_prefix(time.size());
    return {time, name.size(), name}; // "-10" is behind "-9"
}

} // namespace

std::variant<KeptJournal, JournalFileFault> readKeptJournal(const std::string& path) {
    auto contents = contentsOfFile(path, mostBytesOfFile);
    if (const auto* const error = std::get_if<Error>(&contents)) {
        return JournalFileFault(*error);
    }
    KeptJournal kept{.path = path, .text = std::get<std::string>(std::move(contents))};
    auto read = readJournal(kept.text);
    if (const auto* const fault = std::get_if<JournalFault>(&read)) {
        return JournalFileFault(*fault);
    }
    kept.journal = std::get<Journal>(std::move(read));
    return kept;
}

std::string newJournalPath(const std::string& folder, const std::tm& time) {
    std::array<char, 32> digits{};
    std::strftime(digits.data(), digits.size(), "%Y%m%d-%H%M%S", &time);
    const auto begun =
        (std::filesystem::path(folder) / (std::string(beginningOfName) + digits.data())).string();
    std::string path = begun + std::string(endOfName);
    std::error_code none;
    for (int number = 2; std::filesystem::exists(path, none); ++number) {
        path = begun + '-' + std::to_string(number) + std::string(endOfName);
    }
    return path;
}

std::string timeOfJournal(std::chrono::seconds sinceEpoch) {
    const auto seconds = static_cast<std::time_t>(sinceEpoch.count());
    std::tm time{};
    ::gmtime_r(&seconds, &time);
    std::array<char, 32> text{};
    std::strftime(text.data(), text.size(), "%Y-%m-%dT%H:%M:%SZ", &time);
    return text.data();
}

std::vector<KeptJournal> journalsIn(const std::string& folder) {
    std::vector<std::string> names;
    std::error_code error;
    const std::filesystem::directory_iterator entries(folder.empty() ? "." : folder, error);
    for (const auto& entry : entries) {
        const std::string name = entry.path().filename().string();
        if (name.starts_with(beginningOfName) && name.ends_with(endOfName)) {
            names.push_back(name);
        }
    }
    std::ranges::sort(names, {}, placeInTime);
    std::vector<KeptJournal> journals;
    for (const std::string& name : names) {
        auto read = readKeptJournal((std::filesystem::path(folder) / name).string());
        if (auto* const kept = std::get_if<KeptJournal>(&read)) {
            journals.push_back(std::move(*kept));
        }
    }
    sortByBeginning(journals);
    return journals;
}

std::vector<KeptJournal> journalsOfFolders(const std::vector<std::string>& folders) {
    std::vector<std::filesystem::path> places;
    std::vector<KeptJournal> journals;
    for (const std::string& folder : folders) {
        std::error_code error;
        auto place = std::filesystem::canonical(folder, error);
        if (!error && std::ranges::find(places, place) == places.end()) {
            places.push_back(std::move(place));
            std::ranges::move(journalsIn(folder), std::back_inserter(journals));
        }
    }
    sortByBeginning(journals);
    return journals;
}

// Times of one form and one zone, so their texts are in their order.
void sortByBeginning(std::vector<KeptJournal>& journals) {
    std::ranges::stable_sort(journals, {}, [](const KeptJournal& kept) -> const std::string& {
        return kept.journal.head.started;
    });
}

std::string_view wholeLinesOfJournal(std::string_view text) {
    return text.substr(0, text.rfind('\n') + 1); // 0 without a line break
}

} // namespace kx
