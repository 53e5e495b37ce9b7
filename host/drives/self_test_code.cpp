#include "host/drives/self_test_code.h"

namespace orvik::host {

SelfTestEnd EndOf(std::uint8_t code, bool isAta) {
  switch (code) {
    case 0: return SelfTestEnd::Passed;
    case 1:
    case 2: return SelfTestEnd::Aborted;
    case 3:
    case 4:
    case 5:
    case 6:
    case 7: return SelfTestEnd::Failed;
    case 8: return isAta ? SelfTestEnd::Failed : SelfTestEnd::Unknown;
    case 15: return SelfTestEnd::InProgress;
    default: return SelfTestEnd::Unknown;
  }
}

}  // namespace orvik::host
