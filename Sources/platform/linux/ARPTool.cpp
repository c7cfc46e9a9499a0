#include "platform/linux/ARPTool.h"

#include "PrivilegedTool/ARPRequest.h"
#include "support/LocalizedText.h"

#include <unistd.h>

#include <algorithm>
#include <filesystem>
#include <string_view>
#include <system_error>
#include <variant>

namespace kx {

static_assert(std::string_view(kxarp::arpTool) == arpToolPath);

std::string privilegedToolOfAdministrator() {
    std::error_code error;
    const auto beside =
        std::filesystem::read_symlink("/proc/self/exe", error).replace_filename("kxarp").string();
    return ::access(beside.c_str(), X_OK) == 0 ? beside : privilegedToolPath;
}

std::optional<std::string> objectionOfPrivilegedTool(const std::vector<std::string>& arguments) {
    const std::vector<std::string_view> words(arguments.begin(), arguments.end());
    const auto result = kxarp::requestOf(words);
    const auto* const failure = std::get_if<kxarp::Failure>(&result);
    return failure != nullptr ? std::optional<std::string>(kxarp::sentenceOf(*failure))
                              : std::nullopt;
}

std::optional<std::string> objectionForAdministrator(const std::vector<std::string>& arguments) {
    if (!arguments.empty() && arguments.front() == "-d") {
        return objectionOfPrivilegedTool(arguments);
    }
    const bool holdsOption =
        std::any_of(arguments.begin() + (arguments.empty() ? 0 : 1), arguments.end(),
                    [](const std::string& text) { return text.starts_with('-'); });
    return holdsOption ? std::optional<std::string>(
                             localizedKey("The ARP tool gets no text that begins with “-”."))
                       : std::nullopt;
}

} // namespace kx
