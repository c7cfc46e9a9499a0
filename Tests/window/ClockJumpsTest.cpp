#include "contracts/ClockJumpsContract.h"
#include "platform/qt/QtRunLoop.h"

namespace kx {

INSTANTIATE_TYPED_TEST_SUITE_P(Qt, ClockJumpsContract, QtRunLoop);

} // namespace kx
