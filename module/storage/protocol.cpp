#include "module/storage/protocol.h"

#include <array>

#include "module/storage/device_control.h"
#include "utils/bytes/byte_view.h"

#include <winioctl.h>

namespace orvik::module::storage {

namespace {

/// STORAGE_PREDICT_FAILURE: the verdict and 512 vendor bytes.
namespace predict_failure {
constexpr utils::Le32 kPredictFailure{0};
constexpr std::size_t kSize = 516;
}  // namespace predict_failure

}  // namespace

Protocol::Protocol() : properties_(std::make_shared<ProtocolProperties>()) {}

Protocol::~Protocol() = default;

bool Protocol::IsSupported() {
  ProtocolProperties properties;
  return GetProperties(&properties) == status::kSuccess;
}

Status Protocol::QueryPredictFailure(std::uint8_t& healthy) const {
  std::array<std::uint8_t, predict_failure::kSize> reply{};
  if (!QueryDevice(GetHandle(), IOCTL_STORAGE_PREDICT_FAILURE, reply)) return status::kIoctlFailed;
  healthy = utils::ByteView(reply).Get(predict_failure::kPredictFailure) == 0 ? 1 : 0;
  return status::kSuccess;
}

void Protocol::CopyProperties(ProtocolProperties& properties) const {
  const std::uint32_t hint = properties.interfaceHint;
  properties = *properties_;
  properties.interfaceHint = hint;
}

}  // namespace orvik::module::storage
