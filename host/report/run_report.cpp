#include "host/report/run_report.h"

#include <QCoreApplication>
#include <QStringList>
#include <vector>

#include "host/report/device_text.h"
#include "host/report/words.h"
#include "host/text/display_text.h"
#include "host/text/message_text.h"

namespace orvik::host {
namespace {

QJsonObject MessageJson(const core::TestMessage& message) {
  const MessageParts parts = SplitMessage(message.text);
  return {
      {"type", WordFor(message.type).stable},
      {"key", RawText(parts.key)},
      {"value", parts.separator.empty() ? QJsonValue(QJsonValue::Null) : QJsonValue(RawText(parts.value))},
      {"text", RawText(message.text)},
      {"translated", TranslateMessage(message.text)},
  };
}

QJsonObject QuestionJson(const AskedQuestion& question) {
  return {
      {"title", question.title},
      {"text", question.text},
      {"answer",
       question.answer ? QJsonValue(QLatin1String(WordOf(*question.answer))) : QJsonValue(QJsonValue::Null)},
  };
}

QString QuestionText(const AskedQuestion& question) {
  const QString answer = question.answer ? QString(QLatin1String(WordOf(*question.answer)))
                                         : QCoreApplication::translate("orvik-diag", "not answered");
  return QCoreApplication::translate("orvik-diag", "question: %1 %2 (%3)").arg(question.title, question.text, answer);
}

QJsonValue NumberOf(const std::optional<core::TestResult>& result) {
  return result ? QJsonValue(static_cast<int>(*result)) : QJsonValue(QJsonValue::Null);
}

QJsonObject RunJson(const TestRun& run) {
  const core::TestDescriptor& descriptor = run.test->test->Descriptor();
  QJsonArray messages;
  for (const core::TestMessage& message : run.recorder.Messages()) messages.append(MessageJson(message));
  QJsonArray questions;
  for (const AskedQuestion& question : run.recorder.Questions()) questions.append(QuestionJson(question));
  const std::optional<int> progress = run.recorder.Progress();
  return {
      {"device", QJsonObject{{"index", run.device->index}, {"id", RawText(run.device->description.id)}}},
      {"test", QJsonObject{{"id", run.test->id}, {"nameKey", RawText(descriptor.nameKey)}, {"name", run.test->name}}},
      {"result", QJsonObject{{"word", WordFor(run.outcome).stable}, {"number", NumberOf(run.outcome.result)}}},
      {"error", run.outcome.error.isEmpty() ? QJsonValue(QJsonValue::Null) : QJsonValue(run.outcome.error)},
      {"progress", progress ? QJsonValue(*progress) : QJsonValue(QJsonValue::Null)},
      {"messages", messages},
      {"questions", questions},
  };
}

struct Count {
  Word word;
  int runs = 0;
};

// One entry for every way a run can end that a reader should know of, in order of interest.
std::vector<Count> CountOutcomes(const TestRunList& runs) {
  using core::TestResult;
  std::vector<Count> counts;
  for (const TestResult result : {TestResult::Passed, TestResult::Warning, TestResult::Failed,
                                  TestResult::NotApplicable, TestResult::Aborted, TestResult::Invalid}) {
    counts.push_back({WordFor(RunOutcome{result, {}})});
  }
  counts.push_back({WordFor(RunOutcome{})});
  counts.push_back({WordFor(RunOutcome{static_cast<TestResult>(0xFF), {}})});

  for (const auto& run : runs) {
    const QLatin1String word(WordFor(run->outcome).stable);
    for (Count& count : counts) {
      if (word == QLatin1String(count.word.stable)) ++count.runs;
    }
  }
  return counts;
}

QString RunText(const TestRun& run, const Palette& palette) {
  QString text = QStringLiteral("    %1\n").arg(palette.Paint(Colour::Bold, run.test->name));
  for (const AskedQuestion& question : run.recorder.Questions()) {
    text += QStringLiteral("      %1\n").arg(QuestionText(question));
  }
  for (const core::TestMessage& message : run.recorder.Messages()) {
    const Word type = WordFor(message.type);
    text +=
        QStringLiteral("      %1: %2\n").arg(palette.Paint(type.colour, type.shown), TranslateMessage(message.text));
  }
  if (!run.outcome.error.isEmpty()) text += QStringLiteral("      %1\n").arg(run.outcome.error);
  const Word result = WordFor(run.outcome);
  return text + QStringLiteral("      %1\n")
                    .arg(QCoreApplication::translate("orvik-diag", "Result: %1")
                             .arg(palette.Paint(result.colour, result.shown)));
}

QString SummaryText(const TestRunList& runs, const Palette& palette) {
  if (runs.empty()) return QCoreApplication::translate("orvik-diag", "Nothing to test: no test applies.") + u'\n';
  QStringList parts;
  for (const Count& count : CountOutcomes(runs)) {
    if (count.runs == 0) continue;
    parts +=
        palette.Paint(count.word.colour, QStringLiteral("%1 %2").arg(QString::number(count.runs), count.word.shown));
  }
  return QCoreApplication::translate("orvik-diag", "%n run(s): %1", nullptr, static_cast<int>(runs.size()))
             .arg(parts.join(QStringLiteral(", "))) +
         u'\n';
}

}  // namespace

QJsonArray RunsJson(const TestRunList& runs) {
  QJsonArray array;
  for (const auto& run : runs) array.append(RunJson(*run));
  return array;
}

QJsonObject SummaryJson(const TestRunList& runs) {
  QJsonObject results;
  for (const Count& count : CountOutcomes(runs)) results[QLatin1String(count.word.stable)] = count.runs;
  return {{"runs", static_cast<qint64>(runs.size())}, {"results", results}};
}

QString RunsText(const TestRunList& runs, const Palette& palette) {
  QString text;
  const ListedDevice* device = nullptr;
  for (const auto& run : runs) {
    if (run->device != device) text += DeviceHeading(*run->device, palette) + u'\n';
    device = run->device;
    text += RunText(*run, palette);
  }
  return text + SummaryText(runs, palette);
}

}  // namespace orvik::host
