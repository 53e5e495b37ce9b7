#include "module/raid/family/pass_through.h"

namespace orvik::module::raid {

void PutCommandFis(utils::MutableByteView fis, const storage::AtaCmd& command) {
  using storage::Current;
  using storage::Previous;
  fis.Put(command_fis::kType, command_fis::kHostToDevice);
  fis.Put(command_fis::kFlags, command_fis::kIsCommand);
  fis.Put(command_fis::kCommand, command.command);
  fis.Put(command_fis::kFeatures, Current(command.features));
  fis.Put(command_fis::kLbaLow, Current(command.lbaLow));
  fis.Put(command_fis::kLbaMid, Current(command.lbaMid));
  fis.Put(command_fis::kLbaHigh, Current(command.lbaHigh));
  fis.Put(command_fis::kDevice, command.device);
  fis.Put(command_fis::kLbaLowExp, Previous(command.lbaLow));
  fis.Put(command_fis::kLbaMidExp, Previous(command.lbaMid));
  fis.Put(command_fis::kLbaHighExp, Previous(command.lbaHigh));
  fis.Put(command_fis::kFeaturesExp, Previous(command.features));
  fis.Put(command_fis::kSectorCount, Current(command.sectorCount));
  fis.Put(command_fis::kSectorCountExp, Previous(command.sectorCount));
}

void TakeCurrentRegisters(utils::ByteView fis, storage::AtaCmd& command) {
  storage::SetCurrent(command.features, fis.Get(status_fis::kError));
  storage::SetCurrent(command.sectorCount, fis.Get(status_fis::kSectorCount));
  storage::SetCurrent(command.lbaLow, fis.Get(status_fis::kLbaLow));
  storage::SetCurrent(command.lbaMid, fis.Get(status_fis::kLbaMid));
  storage::SetCurrent(command.lbaHigh, fis.Get(status_fis::kLbaHigh));
  command.device = fis.Get(status_fis::kDevice);
  command.command = fis.Get(status_fis::kStatus);
}

void TakeAllRegisters(utils::ByteView fis, storage::AtaCmd& command) {
  TakeCurrentRegisters(fis, command);
  const auto setPrevious = [&fis](std::uint16_t& value, utils::U8 field) {
    value = storage::Register(storage::Current(value), fis.Get(field));
  };
  setPrevious(command.sectorCount, status_fis::kSectorCountExp);
  setPrevious(command.lbaLow, status_fis::kLbaLowExp);
  setPrevious(command.lbaMid, status_fis::kLbaMidExp);
  setPrevious(command.lbaHigh, status_fis::kLbaHighExp);
}

}  // namespace orvik::module::raid
