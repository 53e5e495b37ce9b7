#include "module/raid/family/register_fis.h"

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

}  // namespace orvik::module::raid
