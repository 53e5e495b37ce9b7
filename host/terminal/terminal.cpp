#include "host/terminal/terminal.h"

#include <QtGlobal>
#include <cstdio>

namespace orvik::host {

bool Write(Stream stream, QByteArrayView bytes) {
  std::FILE* const file = stream == Stream::Output ? stdout : stderr;
  const auto size = static_cast<std::size_t>(bytes.size());
  const bool written = size == 0 || std::fwrite(bytes.data(), 1, size, file) == size;
  return std::fflush(file) == 0 && written;
}

bool OutputTakesColours() {
  return IsTerminal(Stream::Output) && qEnvironmentVariableIsEmpty("NO_COLOR");
}

}  // namespace orvik::host
