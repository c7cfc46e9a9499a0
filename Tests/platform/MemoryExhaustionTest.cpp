#include "platform/posix/MemoryExhaustion.h"

#include <gtest/gtest.h>
#include <sys/resource.h>

#include <cstdlib>
#include <new>
#include <stdexcept>
#include <vector>

namespace kx {

namespace {

// Nobody catches what leaves it, not even the test.
template<class Work>
void run(const Work& work) noexcept {
    installMemoryExhaustionHandler();
    work();
}

} // namespace

TEST(MemoryExhaustionDeathTest, AFailureThatNobodyCatchesEndsTheProcessWithASentence) {
    EXPECT_EXIT(run([] { throw std::bad_alloc(); }), testing::ExitedWithCode(EXIT_FAILURE),
                "^There is no memory left, so the program ends\\.\n$");
}

#ifndef KX_SANITIZED // the sanitizers take all of the address space at first
TEST(MemoryExhaustionDeathTest, TheSentenceComesAlsoWhenTheVeryLastByteIsTaken) {
    const auto takeEverything = [] {
        const rlimit limit{std::size_t{1} << 28U, std::size_t{1} << 28U};
        ::setrlimit(RLIMIT_AS, &limit);
        std::vector<void*> blocks;
        for (std::size_t size = std::size_t{1} << 24U; size > 8; size /= 2) {
            while (void* const block = std::malloc(size)) {
                *static_cast<void**>(block) = nullptr;
            }
        }
        for (;;) {
            *static_cast<void**>(::operator new(16)) = nullptr;
        }
    };
    EXPECT_EXIT(run(takeEverything), testing::ExitedWithCode(EXIT_FAILURE),
                "There is no memory left, so the program ends\\.");
}
#endif

TEST(MemoryExhaustionDeathTest, AnotherExceptionEndsTheProcessAsBefore) {
    EXPECT_DEATH(run([] { throw std::runtime_error("another reason"); }), "another reason");
}

} // namespace kx
