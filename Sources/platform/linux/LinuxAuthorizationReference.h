// The common part of the references of both authorities of Linux: it knows which rights are held,
// and tells the start and the end of tools.
//
// A right is held once it was obtained with both flags of a request. Without the first flag, a
// right that is not held is refused, whatever the host's rules would say: a right that was obtained
// under one reference says nothing about another reference. When a later request is not granted,
// the right is no longer held.

#pragma once

#include "platform/linux/RunningTools.h"
#include "platform/linux/StartedTool.h"
#include "support/AuthorizationService.h"

#include <cstdint>
#include <memory>
#include <set>
#include <string>
#include <vector>

namespace kx {

class LinuxAuthorizationReference : public AuthorizationReference {
public:
    std::int32_t copyRights(const AuthorizationItem& right, std::uint32_t flags) final;
    std::int32_t executeWithPrivileges(const std::string& toolPath,
                                       const std::vector<std::string>& arguments,
                                       ToolEndAction ended) final;

protected:
    // `runningTools` must outlive this reference; tools may run on.
    explicit LinuxAuthorizationReference(RunningTools& runningTools);

    // Asks whether the right may be used now, and returns a status code. No person is asked unless
    // `mayAskPerson` is true.
    virtual std::int32_t obtain(const AuthorizationItem& right, bool mayAskPerson) = 0;

    // Starts the tool, or a launcher that becomes the tool. Null when the system cannot start it.
    virtual std::unique_ptr<StartedTool> start(const std::string& toolPath,
                                               const std::vector<std::string>& arguments) = 0;

    // The file name of the launcher; empty when there is none.
    virtual std::string launcher() const = 0;

    // The status code for a launcher that ended with this exit status before it became the tool.
    virtual std::int32_t refusalOf(int launcherStatus) const = 0;

private:
    bool isRefusal(StartedTool& ended) const;

    RunningTools& _runningTools;
    std::set<std::string> _held; // values of the rights that are held
    std::shared_ptr<bool> _alive = std::make_shared<bool>(true);
};

} // namespace kx
