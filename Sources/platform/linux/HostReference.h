// What the references of both authorities of Linux have in common: which rights are held, and how a
// tool's start and end are told.
//
// A right is held once it was obtained with both flags of a request. Without the first flag the
// answer is no for a right that is not held, whatever the host's rules would say: what was obtained
// under one reference says nothing about another.

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

class HostReference : public AuthorizationReference {
public:
    std::int32_t copyRights(const AuthorizationItem& right, std::uint32_t flags) final;
    std::int32_t executeWithPrivileges(const std::string& toolPath,
                                       const std::vector<std::string>& arguments,
                                       ToolEndAction ended) final;

protected:
    // The tools, which may outlive the reference; the object itself must not be outlived.
    explicit HostReference(RunningTools& runningTools);

    // Whether the right may be used now, as a status code. Without `mayAskPerson` nobody is asked.
    virtual std::int32_t obtain(const AuthorizationItem& right, bool mayAskPerson) = 0;

    // Starts the tool, or a launcher that becomes it. Null when the system cannot.
    virtual std::unique_ptr<StartedTool> start(const std::string& toolPath,
                                               const std::vector<std::string>& arguments) = 0;

    // The file name of the launcher; empty when there is none.
    virtual std::string launcher() const = 0;

    // The status code for a launcher that ended before it became the tool, by its own status.
    virtual std::int32_t refusalOf(int launcherStatus) const = 0;

private:
    RunningTools& _runningTools;
    std::set<std::string> _held; // values of the rights
    std::shared_ptr<bool> _alive = std::make_shared<bool>(true);
};

} // namespace kx
