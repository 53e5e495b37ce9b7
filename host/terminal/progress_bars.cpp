#include "host/terminal/progress_bars.h"

#include <algorithm>
#include <chrono>
#include <utility>

#include "host/terminal/terminal.h"

namespace orvik::host {
namespace {

constexpr std::chrono::milliseconds kRedrawInterval(150);
constexpr int kMostColumns = 100;
constexpr int kPercentColumns = 6;  // " 100 %"

}  // namespace

QString ProgressLine(const QString& name, int percent, int columns) {
  const int nameColumns = columns / 2;
  const int barColumns = std::max(0, columns - nameColumns - kPercentColumns - 3);  // a blank and two brackets
  const int filled = barColumns * percent / 100;
  return QStringLiteral("%1 [%2%3]%4 %")
      .arg(name.left(nameColumns).leftJustified(nameColumns), QString(filled, QLatin1Char('#')),
           QString(barColumns - filled, QLatin1Char('-')), QString::number(percent).rightJustified(4));
}

ProgressBars::ProgressBars() : shown_(IsTerminal(Stream::Error)) {
  QObject::connect(&timer_, &QTimer::timeout, &timer_, [this] { Redraw(); });
}

ProgressBars::~ProgressBars() {
  runs_.clear();
  Redraw();
}

void ProgressBars::OnRunStarted(const Run& run) {
  runs_.push_back(&run);
  Redraw();
  if (!timer_.isActive()) timer_.start(kRedrawInterval);
}

void ProgressBars::OnRunEnded(const Run& run) {
  std::erase(runs_, &run);
  if (runs_.empty()) timer_.stop();
  Redraw();
}

void ProgressBars::SetHidden(bool hidden) {
  if (!IsTerminal(Stream::Error)) return;
  if (hidden) {
    // Redrawing without runs erases the bars.
    const auto runs = std::exchange(runs_, {});
    Redraw();
    runs_ = runs;
  }
  shown_ = !hidden;
  Redraw();
}

void ProgressBars::Redraw() {
  if (!shown_ || (runs_.empty() && drawnLines_ == 0)) return;
  QString frame;
  if (drawnLines_ > 0) frame += QStringLiteral("\x1b[%1A").arg(drawnLines_);
  frame += QStringLiteral("\r\x1b[J");

  // Lines that have scrolled off the screen could not be erased.
  const TerminalSize size = ErrorTerminalSize();
  const auto lines = std::min(static_cast<int>(runs_.size()), std::max(1, size.rows - 1));
  const int columns = std::min(size.columns - 1, kMostColumns);
  for (int line = 0; line < lines; ++line) {
    const Run& run = *runs_[static_cast<std::size_t>(line)];
    frame += ProgressLine(run.Name(), run.log.Progress().value_or(0), columns) + QLatin1Char('\n');
  }
  drawnLines_ = lines;
  Write(Stream::Error, frame.toUtf8());
}

}  // namespace orvik::host
