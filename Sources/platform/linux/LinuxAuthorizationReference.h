// The common part of the references of both authorities of Linux: it knows which rights are held,
// and tells the start and the end of tools.
//
// A right is held once it was obtained with both flags of a request. Without the first flag, a
// right that is not held is refused, whatever the host's rules would say: a right that was obtained
// under one reference says nothing about another reference. When a later request is not granted,
// the right is no longer held.
//
// A launcher asks a person and then becomes the tool. So the question and the run may be one
// process: a request that names the arguments may begin the tool, and the run takes it over.

#pragma once

#include "platform/linux/RunningTools.h"
#include "platform/linux/StartedTool.h"
#include "support/AuthorizationService.h"
#include "support/Waiting.h"

#include <chrono>
#include <cstdint>
#include <functional>
#include <memory>
#include <set>
#include <string>
#include <vector>

namespace kx {

class LinuxAuthorizationReference : public AuthorizationReference {
public:
    // How long a run waits for the first work of its tool.
    static constexpr std::chrono::milliseconds moment{2000};

    std::int32_t copyRights(const AuthorizationItem& right, std::uint32_t flags) final;
    std::int32_t executeWithPrivileges(const std::string& toolPath,
                                       const std::vector<std::string>& arguments,
                                       ToolEndAction ended) final;

protected:
    // `runningTools` must outlive this reference; tools may run on. So must `waiting`.
    LinuxAuthorizationReference(RunningTools& runningTools, Waiting& waiting);

    // Asks whether the right may be used now, and returns a status code. No person is asked unless
    // `mayAskPerson` is true.
    virtual std::int32_t obtain(const AuthorizationItem& right, bool mayAskPerson) = 0;

    // The path of the program that is run for this tool and these arguments; empty when such a run
    // is refused.
    virtual std::string programFor(const std::string& toolPath,
                                   const std::vector<std::string>& arguments) const = 0;

    // Starts the program, or a launcher that becomes the program. Null when the system cannot start
    // it.
    virtual std::unique_ptr<StartedTool> start(const std::string& program,
                                               const std::vector<std::string>& arguments) = 0;

    // The file name of the launcher; empty when there is none.
    virtual std::string launcher() const = 0;

    // The status code for a launcher that ended with this exit status before it became the tool.
    virtual std::int32_t refusalOf(int launcherStatus) const = 0;

    // What has to be there while a person may be asked; null when that is nothing.
    virtual std::shared_ptr<void> asker() { return nullptr; }

    // Begins to watch the authority that the launcher asks. The result says, whenever it is called,
    // whether the authority has fallen silent.
    virtual std::function<bool()> watchForSilence() = 0;

    // Starts the tool and waits until a person, where one is asked, has allowed it. The run of this
    // tool takes it over. Returns a status code.
    std::int32_t begin(const std::string& toolPath, const std::vector<std::string>& arguments);

    Waiting& waiting() { return _waiting; }

private:
    struct BegunTool {
        std::string toolPath;
        std::vector<std::string> arguments;
        std::unique_ptr<StartedTool> tool; // null when there is none
    };

    bool isLauncher(const StartedTool& tool) const;
    bool isRefusal(StartedTool& ended) const;
    std::int32_t awaitPerson(StartedTool& tool);
    bool takeBack(StartedTool& tool) const;
    void awaitFirstWork(StartedTool& tool);

    RunningTools& _runningTools;
    Waiting& _waiting;
    std::set<std::string> _held; // values of the rights that are held
    BegunTool _begun;            // a person has allowed it, and no run has taken it over yet
    std::shared_ptr<bool> _alive = std::make_shared<bool>(true);
};

} // namespace kx
