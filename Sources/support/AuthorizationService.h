// The host's authority over administrator rights, and the one use of those rights: running a tool.
//
// An authority decides by itself whom it asks and how: by a dialog, or not at all where the process
// has the rights already. A reference stands for one authorization: the authority remembers under
// it which rights were granted, and forgets them when the reference is destroyed.
//
// Threading: the main thread only. A call that may ask a person blocks until that person has
// answered, however long that takes. Ownership: references must not outlive their service.

#pragma once

#include <cstdint>
#include <functional>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace kx {

// A request for a right: its name, and the use that it is meant for.
struct AuthorizationItem {
    std::string name;
    std::string value; // for kAuthorizationRightExecute, the path of the tool
    std::uint32_t flags = 0;

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

class AuthorizationReference {
public:
    // How a tool ended: its exit status, or the number of the signal that ended it plus 128.
    using ToolEndAction = std::function<void(int status)>;

    // Gives up what was granted under the reference.
    virtual ~AuthorizationReference() = default;

    // Obtains a right; the result is a status code.
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
};

} // namespace kx
