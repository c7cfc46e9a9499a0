#include "contracts/ClockJumpsContract.h"
#include "platform/posix/PollRunLoop.h"

namespace kx {

INSTANTIATE_TYPED_TEST_SUITE_P(Poll, ClockJumpsContract, PollRunLoop);

} // namespace kx
