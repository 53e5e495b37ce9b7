#include "host/report/run_report.h"

#include <QCoreApplication>
#include <QStringList>
#include <algorithm>
#include <vector>

#include "host/report/device_report.h"
#include "host/text/text.h"

namespace orvik::host {
namespace {

std::vector<int> DevicesOf(const ListedTest& test, const std::vector<ListedDevice>& devices) {
  std::vector<int> indexes;
  for (const ListedDevice& device : devices) {
    if (AppliesTo(test, device)) indexes.push_back(device.index);
  }
  return indexes;
}

QString DeviceList(const std::vector<int>& indexes) {
  QStringList texts;
  for (const int index : indexes) texts += QString::number(index);
  return texts.isEmpty() ? QStringLiteral("-") : texts.join(QStringLiteral(", "));
}

// Columns as wide as their widest cell, except that the last one is not padded.
QString Table(const std::vector<QStringList>& rows, const Palette& palette) {
  QList<qsizetype> widths(rows.front().size(), 0);
  for (const QStringList& row : rows) {
    for (qsizetype i = 0; i < row.size(); ++i) widths[i] = std::max(widths[i], row[i].size());
  }
  QString table;
  for (const QStringList& row : rows) {
    QString line;
    for (qsizetype i = 0; i + 1 < row.size(); ++i) line += row[i].leftJustified(widths[i] + 2);
    line += row.back();
    table += palette.Paint(&row == &rows.front() ? Colour::Bold : Colour::Plain, line) + u'\n';
  }
  return table;
}

Word ResultWord(core::TestResult result) {
  switch (result) {
    case core::TestResult::Passed:
      return {"passed", QCoreApplication::translate("orvik-diag", "passed"), Colour::Green};
    case core::TestResult::Warning:
      return {"warning", QCoreApplication::translate("orvik-diag", "warning"), Colour::Yellow};
    case core::TestResult::Failed:
      return {"failed", QCoreApplication::translate("orvik-diag", "failed"), Colour::Red};
    case core::TestResult::NotApplicable:
      return {"not-applicable", QCoreApplication::translate("orvik-diag", "not applicable"), Colour::Cyan};
    case core::TestResult::Aborted:
      return {"aborted", QCoreApplication::translate("orvik-diag", "aborted"), Colour::Red};
    case core::TestResult::Invalid:
      return {"invalid", QCoreApplication::translate("orvik-diag", "device unavailable"), Colour::Red};
  }
  return {"unknown", QCoreApplication::translate("orvik-diag", "unknown"), Colour::Red};
}

Word OutcomeWord(const RunOutcome& outcome) {
  if (!outcome.Ok()) return {"error", QCoreApplication::translate("orvik-diag", "error"), Colour::Red};
  return ResultWord(outcome.Value());
}

Word TypeWord(core::MessageType type) {
  switch (type) {
    case core::MessageType::Info: return {"info", QCoreApplication::translate("orvik-diag", "info"), Colour::Plain};
    case core::MessageType::Warning:
      return {"warning", QCoreApplication::translate("orvik-diag", "warning"), Colour::Yellow};
    case core::MessageType::Error: return {"error", QCoreApplication::translate("orvik-diag", "error"), Colour::Red};
    case core::MessageType::Notice:
      return {"notice", QCoreApplication::translate("orvik-diag", "notice"), Colour::Cyan};
  }
  return {"unknown", QCoreApplication::translate("orvik-diag", "unknown"), Colour::Plain};
}

QJsonObject MessageJson(const core::TestMessage& message) {
  const MessageParts parts = SplitMessage(message.text);
  return {
      {"type", TypeWord(message.type).stable},
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
       question.answer ? QJsonValue(QLatin1String(NameOf(*question.answer))) : QJsonValue(QJsonValue::Null)},
  };
}

QString QuestionText(const AskedQuestion& question) {
  const QString answer = question.answer ? QString(QLatin1String(NameOf(*question.answer)))
                                         : QCoreApplication::translate("orvik-diag", "not answered");
  return QCoreApplication::translate("orvik-diag", "question: %1 %2 (%3)").arg(question.title, question.text, answer);
}

QJsonValue NumberOf(const RunOutcome& outcome) {
  return outcome.Ok() ? QJsonValue(static_cast<int>(outcome.Value())) : QJsonValue(QJsonValue::Null);
}

QJsonObject RunJson(const TestRun& run) {
  const core::TestDescriptor& descriptor = run.test->test->Descriptor();
  QJsonArray messages;
  for (const core::TestMessage& message : run.log.Messages()) messages.append(MessageJson(message));
  QJsonArray questions;
  for (const AskedQuestion& question : run.log.Questions()) questions.append(QuestionJson(question));
  const std::optional<int> progress = run.log.Progress();
  return {
      {"device", QJsonObject{{"index", run.device->index}, {"id", RawText(run.device->description.id)}}},
      {"test", QJsonObject{{"id", run.test->id}, {"nameKey", RawText(descriptor.nameKey)}, {"name", run.test->name}}},
      {"result", QJsonObject{{"word", OutcomeWord(run.outcome).stable}, {"number", NumberOf(run.outcome)}}},
      {"error", JsonTextOrNull(run.outcome.Error().text)},
      {"progress", progress ? QJsonValue(*progress) : QJsonValue(QJsonValue::Null)},
      {"messages", messages},
      {"questions", questions},
  };
}

struct Count {
  Word word;
  int runs = 0;
};

// One entry for each way a run can end, the most interesting first.
std::vector<Count> CountOutcomes(const TestRunList& runs) {
  using core::TestResult;
  std::vector<Count> counts;
  for (const TestResult result : {TestResult::Passed, TestResult::Warning, TestResult::Failed,
                                  TestResult::NotApplicable, TestResult::Aborted, TestResult::Invalid}) {
    counts.push_back({ResultWord(result)});
  }
  counts.push_back({OutcomeWord(Error())});
  counts.push_back({ResultWord(static_cast<TestResult>(0xFF))});

  for (const auto& run : runs) {
    const QLatin1String word(OutcomeWord(run->outcome).stable);
    for (Count& count : counts) {
      if (word == QLatin1String(count.word.stable)) ++count.runs;
    }
  }
  return counts;
}

QString RunText(const TestRun& run, const Palette& palette) {
  QString text = QStringLiteral("    %1\n").arg(palette.Paint(Colour::Bold, run.test->name));
  for (const AskedQuestion& question : run.log.Questions()) {
    text += QStringLiteral("      %1\n").arg(QuestionText(question));
  }
  for (const core::TestMessage& message : run.log.Messages()) {
    text +=
        QStringLiteral("      %1: %2\n").arg(palette.Paint(TypeWord(message.type)), TranslateMessage(message.text));
  }
  if (!run.outcome.Ok()) text += QStringLiteral("      %1\n").arg(run.outcome.Error().text);
  return text + QStringLiteral("      %1\n")
                    .arg(QCoreApplication::translate("orvik-diag", "Result: %1")
                             .arg(palette.Paint(OutcomeWord(run.outcome))));
}

QString SummaryText(const TestRunList& runs, const Palette& palette) {
  if (runs.empty()) return QCoreApplication::translate("orvik-diag", "No applicable tests.") + u'\n';
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

QJsonArray TestsJson(const std::vector<ListedTest>& tests, const std::vector<ListedDevice>& devices) {
  QJsonArray array;
  for (const ListedTest& test : tests) {
    const core::TestDescriptor& descriptor = test.test->Descriptor();
    QJsonArray indexes;
    for (const int index : DevicesOf(test, devices)) indexes.append(index);
    array.append(QJsonObject{
        {"id", test.id},
        {"nameKey", RawText(descriptor.nameKey)},
        {"name", test.name},
        {"tooltipKey", RawText(descriptor.tooltipKey)},
        {"tooltip", TranslateKey(descriptor.tooltipKey)},
        {"groupKey", RawText(descriptor.groupKey)},
        {"group", TranslateKey(descriptor.groupKey)},
        {"exclusive", test.test->IsExclusive()},
        {"estimatedDuration", static_cast<qint64>(test.test->GetEstimatedDuration())},
        {"devices", indexes},
    });
  }
  return array;
}

QString TestsText(const std::vector<ListedTest>& tests, const std::vector<ListedDevice>& devices,
                  const Palette& palette) {
  std::vector<QStringList> rows{{
      QCoreApplication::translate("orvik-diag", "ID"),
      QCoreApplication::translate("orvik-diag", "Name"),
      QCoreApplication::translate("orvik-diag", "Group"),
      QCoreApplication::translate("orvik-diag", "Exclusive"),
      QCoreApplication::translate("orvik-diag", "Duration"),
      QCoreApplication::translate("orvik-diag", "Devices"),
  }};
  for (const ListedTest& test : tests) {
    rows.push_back({
        QString::number(test.id),
        test.name,
        TranslateKey(test.test->Descriptor().groupKey),
        test.test->IsExclusive() ? QCoreApplication::translate("orvik-diag", "yes")
                                 : QCoreApplication::translate("orvik-diag", "no"),
        QString::number(test.test->GetEstimatedDuration()),
        DeviceList(DevicesOf(test, devices)),
    });
  }
  return Table(rows, palette);
}

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
