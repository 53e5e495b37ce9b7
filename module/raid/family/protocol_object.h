#pragma once

#include <cstdint>
#include <memory>
#include <utility>

namespace orvik::module::raid {

/// A protocol object with its first bridge.
template <typename ProtocolType, typename Bridge>
std::shared_ptr<ProtocolType> MakeProtocol(std::uint32_t interfaceKind, std::shared_ptr<Bridge> bridge) {
  auto protocol = std::make_shared<ProtocolType>();
  protocol->SetInterfaceKind(interfaceKind);
  protocol->AddBridge(std::move(bridge));
  return protocol;
}

}  // namespace orvik::module::raid
