#pragma once

#include <QTimer>
#include <vector>

#include "host/run/run_scheduler.h"

namespace orvik::host {

/// One bar on standard error for each run under way, when that is a terminal; nothing otherwise. No bar is left
/// behind at the end.
class ProgressBars final : public RunObserver {
 public:
  ProgressBars();
  ~ProgressBars() override;

  void OnRunStarted(const Run& run) override;
  void OnRunEnded(const Run& run) override;

 private:
  void Redraw();

  const bool shown_;
  QTimer timer_;
  std::vector<const Run*> runs_;
  int drawnLines_ = 0;
};

/// One bar: the name, cut or padded, the bar and the percentage, exactly `columns` wide. `percent` is 0 to 100.
QString ProgressLine(const QString& name, int percent, int columns);

}  // namespace orvik::host
