#include "host/run/interrupt.h"

#include <csignal>

namespace orvik::host {
namespace {

constinit core::AbortFlag interrupted{0};

extern "C" void OnInterrupt(int signal) {
  interrupted.store(1);
  static_cast<void>(std::signal(signal, SIG_DFL));
}

void Catch(int signal) {
  // A signal that whoever started the program wants ignored (nohup, a background job) stays ignored.
  if (std::signal(signal, OnInterrupt) == SIG_IGN) static_cast<void>(std::signal(signal, SIG_IGN));
}

}  // namespace

const core::AbortFlag& InterruptFlag() {
  return interrupted;
}

void CatchInterrupts() {
  Catch(SIGINT);
  Catch(SIGTERM);
}

}  // namespace orvik::host
