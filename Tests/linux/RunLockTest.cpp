#include "PrivateNetwork.h"
#include "platform/linux/LinuxRunLock.h"

#include <gtest/gtest.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cerrno>
#include <csignal>

namespace kx {

namespace {

class LinuxRunLockTest : public testing::Test {
protected:
    using Held = std::unique_ptr<HeldRunLock>;

    Held taken() {
        auto result = lock.take();
        return std::holds_alternative<Held>(result) ? std::move(std::get<Held>(result)) : nullptr;
    }

    // Why the lock is not given now.
    RunLockRefusal refusal() {
        const auto result = lock.take();
        const auto* const refused = std::get_if<RunLockRefusal>(&result);
        EXPECT_NE(refused, nullptr);
        return refused != nullptr ? *refused : RunLockRefusal{};
    }

    struct Child {
        pid_t process = -1;
        char word = 0; // 'y' when it has the lock, 'u' when it cannot be this user
    };

    // A child that takes the lock, says so, and lives until it is killed.
    Child childWithLock(uid_t user) {
        int pipe[2] = {-1, -1};
        EXPECT_EQ(::pipe(pipe), 0);
        const pid_t child = ::fork();
        if (child == 0) {
            const bool isUser = user == ::geteuid() || ::setuid(user) == 0;
            const auto held = taken();
            const char word = !isUser ? 'u' : held != nullptr ? 'y' : 'n';
            ::close(pipe[0]);
            ::_exit(::write(pipe[1], &word, 1) == 1 && ::pause() == 0 ? 0 : 1);
        }
        ::close(pipe[1]);
        char word = 0;
        EXPECT_EQ(::read(pipe[0], &word, 1), 1);
        ::close(pipe[0]);
        return {child, word};
    }

    static void kill(pid_t child) {
        ::kill(child, SIGKILL);
        ::waitpid(child, nullptr, 0);
    }

    PrivateNetwork network;
    LinuxRunLock lock;
};

} // namespace

TEST_F(LinuxRunLockTest, IsGivenOnceAndAgainWhenItWasGivenBack) {
    auto held = taken();
    ASSERT_NE(held, nullptr);
    EXPECT_EQ(refusal().holder, ::getpid());
    EXPECT_FALSE(refusal().error.has_value());
    held.reset();
    EXPECT_NE(taken(), nullptr);
}

TEST_F(LinuxRunLockTest, TellsWhichProcessHasItAndIsFreeWhenThatWasKilled) {
    const Child child = childWithLock(::geteuid());
    EXPECT_EQ(child.word, 'y');
    EXPECT_EQ(refusal().holder, child.process);
    kill(child.process);
    EXPECT_NE(taken(), nullptr);
}

TEST_F(LinuxRunLockTest, WithoutADescriptorTheReasonIsTold) {
    EXPECT_NE(taken(), nullptr); // a sanitizer needs descriptors for the first use of each class
    rlimit before{};
    ASSERT_EQ(::getrlimit(RLIMIT_NOFILE, &before), 0);
    rlimit none = before;
    none.rlim_cur = 0;
    ASSERT_EQ(::setrlimit(RLIMIT_NOFILE, &none), 0);
    const RunLockRefusal refused = refusal();
    ::setrlimit(RLIMIT_NOFILE, &before);
    EXPECT_EQ(refused.error, posixError(EMFILE));
}

TEST_F(LinuxRunLockTest, IsNotGivenToOneUserWhileAnotherHasIt) {
    const Child child = childWithLock(65'534);
    const bool isOther = child.word != 'u';
    const std::int32_t holder = isOther ? refusal().holder : 0;
    kill(child.process);
    if (!isOther) {
        GTEST_SKIP() << "there is only one user in this namespace";
    }
    EXPECT_EQ(holder, child.process);
    EXPECT_NE(taken(), nullptr);
}

} // namespace kx
