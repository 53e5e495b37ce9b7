// 100,000 empty tasks from the first dispatch to the last completion, beside what Qt offers for the same.

#include <benchmark/benchmark.h>

#include <QRunnable>
#include <QThreadPool>
#include <QtConcurrent>

#include <atomic>
#include <memory>
#include <thread>
#include <vector>

#include "utils/dispatcher/general_diagnostic_dispatcher.h"

namespace {

constexpr int kTasks = 100'000;

/// What is left to do in a round; the same count on every side.
class Round {
 public:
  void Begin() { left_.store(kTasks, std::memory_order_relaxed); }
  void TaskDone() {
    if (left_.fetch_sub(1, std::memory_order_acq_rel) == 1) left_.notify_one();
  }
  void Wait() {
    for (int left = left_; left != 0; left = left_) left_.wait(left);
  }

 private:
  std::atomic<int> left_ = 0;
};

/// Our dispatcher, a future per task.
class Dispatcher {
 public:
  explicit Dispatcher(int workers) : dispatcher_(static_cast<unsigned>(workers) + 1) {}
  void Submit(Round& round) { dispatcher_.Dispatch(std::make_unique<Task>(round)); }

 private:
  class Task final : public orvik::core::TaskInterface {
   public:
    explicit Task(Round& round) : round_(round) {}
    void Execute() override { round_.TaskDone(); }

   private:
    Round& round_;
  };

  orvik::utils::GeneralDiagnosticDispatcher dispatcher_;
};

/// Qt's pool, a future per task.
class Concurrent {
 public:
  explicit Concurrent(int workers) { pool_.setMaxThreadCount(workers); }
  void Submit(Round& round) {
    static_cast<void>(QtConcurrent::run(&pool_, [&round] { round.TaskDone(); }));
  }

 private:
  QThreadPool pool_;
};

/// Qt's pool without futures.
class BarePool {
 public:
  explicit BarePool(int workers) { pool_.setMaxThreadCount(workers); }
  void Submit(Round& round) { pool_.start(new Task(round)); }

 private:
  class Task final : public QRunnable {
   public:
    explicit Task(Round& round) : round_(round) {}
    void run() override { round_.TaskDone(); }

   private:
    Round& round_;
  };

  QThreadPool pool_;
};

template <typename Pool>
void EmptyTasks(benchmark::State& state) {
  const auto producers = static_cast<int>(state.range(0));
  Pool pool(static_cast<int>(state.range(1)));
  Round round;
  const auto produce = [&] {
    for (int i = 0; i < kTasks / producers; ++i) pool.Submit(round);
  };
  for ([[maybe_unused]] const auto& iteration : state) {
    round.Begin();
    std::vector<std::jthread> others;
    others.reserve(static_cast<std::size_t>(producers));
    for (int i = 1; i < producers; ++i) others.emplace_back(produce);
    produce();
    round.Wait();
  }
  state.SetItemsProcessed(state.iterations() * kTasks);
}

void Sizes(benchmark::internal::Benchmark* benchmark) {
  benchmark->ArgNames({"producers", "workers"})->ArgsProduct({{1, 4}, {1, 2, 4}});
  benchmark->Unit(benchmark::kMillisecond)->UseRealTime()->MeasureProcessCPUTime();
}

BENCHMARK(EmptyTasks<Dispatcher>)->Apply(Sizes);
BENCHMARK(EmptyTasks<Concurrent>)->Apply(Sizes);
BENCHMARK(EmptyTasks<BarePool>)->Apply(Sizes);

}  // namespace
