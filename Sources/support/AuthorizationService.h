// The host's authority over administrator rights, and the one use of those rights: running a tool.
//
// An authority decides by itself whom it asks and how: by a dialog, or not at all where the process
// has the rights already. A reference stands for one authorization: the authority remembers under
// it which rights were granted, and forgets them when the reference is destroyed.
//
// Threading: the main thread only. A call that may ask a person returns when that person has
// answered or has given up waiting, or when the authority has fallen silent. It handles the
// application's events meanwhile (support/Waiting.h), so a caller that must not be called back
// holds the run loop. Ownership: references must not outlive their service, and must not be
// destroyed from inside a call.

#pragma once

#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace kx {

// A request for a right: its name, and the use that it is meant for.
struct AuthorizationItem {
    std::string name;
    std::string value; // for kAuthorizationRightExecute, the path of the tool
    std::uint32_t flags = 0;

    // The arguments with which the tool will be run, so that the authority can show them to the
    // person whom it asks. When they are empty, it may refuse to ask anybody.
    std::vector<std::string> arguments = {};

    friend bool operator==(const AuthorizationItem&, const AuthorizationItem&) = default;
};

// The right to run a tool as the administrator.
inline constexpr std::string_view kAuthorizationRightExecute = "system.privilege.admin";

// Flags of a request, to be combined by OR. Without the first nobody is asked; without the second
// the right is not kept under the reference.
inline constexpr std::uint32_t kAuthorizationFlagInteractionAllowed = 1U << 0U;
inline constexpr std::uint32_t kAuthorizationFlagExtendRights = 1U << 1U;

// Status codes; 0 is success.
inline constexpr std::int32_t errAuthorizationSuccess = 0;
inline constexpr std::int32_t errAuthorizationInvalidRef = -60002; // there is no reference
inline constexpr std::int32_t errAuthorizationDenied = -60005;
inline constexpr std::int32_t errAuthorizationCanceled = -60006; // the person declined
inline constexpr std::int32_t errAuthorizationInteractionNotAllowed = -60007;
inline constexpr std::int32_t errAuthorizationToolExecuteFailure = -60031;

// How a tool ended.
struct ToolEnd {
    int status = 0; // its exit status, or the number of the signal that ended it plus 128
    std::string sentence = {}; // the first line of its standard error, UTF-8; empty without one

    friend bool operator==(const ToolEnd&, const ToolEnd&) = default;
};

class AuthorizationReference {
public:
    using ToolEndAction = std::function<void(const ToolEnd& end)>;

    // Gives up what was granted under the reference.
    virtual ~AuthorizationReference() = default;

    // Obtains a right; the result is a status code. When a person is asked about certain arguments
    // and allows them, the tool may begin at once; executeWithPrivileges() with the same arguments
    // then takes over the tool that has begun.
    virtual std::int32_t copyRights(const AuthorizationItem& right, std::uint32_t flags) = 0;

    // Runs the tool at `toolPath` as the administrator, with `arguments` in their order. The tool
    // reads nothing. The result says whether the tool was started, not how it ended. When a person
    // is asked again, the call waits for that person first. It then waits for the tool, up to two
    // seconds, so that the tool's first work is done when this returns. `ended` is called from the
    // run loop once the tool has ended. It is never called from inside this call, after the
    // reference is destroyed, or for a tool that was not started. It may be empty.
    virtual std::int32_t executeWithPrivileges(const std::string& toolPath,
                                               const std::vector<std::string>& arguments,
                                               ToolEndAction ended) = 0;

protected:
    AuthorizationReference() = default;
    AuthorizationReference(const AuthorizationReference&) = delete;
    AuthorizationReference& operator=(const AuthorizationReference&) = delete;
};

class AuthorizationService {
public:
    virtual ~AuthorizationService() = default;

    // A reference under which nothing has been granted yet; null when there is no authority.
    virtual std::unique_ptr<AuthorizationReference> create() = 0;

    // Why a run of the tool with these arguments is bound to fail, as far as that is known without
    // asking anybody: an English sentence, which is a key of the catalogues. Absent when nothing is
    // known to be wrong. The authority itself decides when the tool is run, whatever this says.
    virtual std::optional<std::string>
    objectionTo(const std::string& toolPath, const std::vector<std::string>& arguments) const = 0;
};

} // namespace kx
