#pragma once

#include <QTimer>
#include <vector>

#include "host/run/run_scheduler.h"

namespace orvik::host {

/// Draws one bar on standard error for each active run if that is a terminal, and removes them at the end.
class ProgressBars final : public RunObserver {
 public:
  ProgressBars();
  ~ProgressBars() override;

  void OnRunStarted(const Run& run) override;
  void OnRunEnded(const Run& run) override;

  /// Removes the bars while something else writes to standard error.
  void SetHidden(bool hidden);

 private:
  void Redraw();

  bool shown_;
  QTimer timer_;
  std::vector<const Run*> runs_;
  int drawnLines_ = 0;
};

/// One bar: the name, truncated or padded, the bar and the percentage, exactly `columns` wide. `percent` is 0 to 100.
QString ProgressLine(const QString& name, int percent, int columns);

}  // namespace orvik::host
