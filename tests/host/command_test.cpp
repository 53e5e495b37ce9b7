// The program as a user or a script runs it.

#include <gtest/gtest.h>

#include <QFile>
#include <QJsonArray>

#include "tests/host/checked_document.h"
#include "tests/host/fake_module.h"
#include "tests/host/host_process.h"

namespace orvik::tests {
namespace {

class CommandTest : public testing::Test {
 protected:
  CommandTest() {
    host_.InstallModule();
    host_.SetEnvironment("FAKE_TESTS", "1,2,3");
  }

  // The document of a call that ends with `exitCode`.
  QJsonObject Document(QStringList arguments, int exitCode) const {
    const Finished finished = host_.Run(arguments << "--json");
    EXPECT_EQ(finished.exitCode, exitCode) << arguments.join(' ').toStdString();
    QJsonObject document = CheckedDocument(finished.out);
    EXPECT_EQ(document["exitCode"].toInt(), exitCode);
    EXPECT_EQ(document["errors"].toArray().isEmpty(), finished.err.isEmpty()) << finished.err.toStdString();
    return document;
  }

  HostProcess host_;
};

TEST_F(CommandTest, ScanPrintsControllersAndDrives) {
  const Finished finished = host_.Run({"scan"});
  EXPECT_EQ(finished.exitCode, 0);
  EXPECT_EQ(finished.err, "");
  for (const char* const expected :
       {"[0] First\xEF\xBF\xBD( (ID A77F)", "Serial number: \\x07 77\n",
        "0: logical drive 7, RAID 1, degraded, 9.01 PB, 2 members", "failed member: DISK B - S2\xEF\xBF\xBD\n",
        "1: NVMe, ACME DISK A, 1 kB, serial number S1\\x1b[31m", "2 RAID controllers\n"}) {
    EXPECT_TRUE(finished.out.contains(expected)) << expected << '\n' << finished.out.toStdString();
  }
}

TEST_F(CommandTest, ScanReportsEveryDriveInJson) {
  const QJsonObject document = Document({"scan"}, 0);
  EXPECT_EQ(document["module"].toObject()["version"].toString(), "1.2.3-test");
  const QJsonObject device = document["devices"].toArray()[0].toObject();
  EXPECT_TRUE(device["controller"].toObject()["logicalDriveCount"].toInt() == 1);
  const QJsonObject logical = device["logicalDrives"].toArray()[0].toObject();
  EXPECT_EQ(logical["state"].toString(), "degraded");
  EXPECT_EQ(logical["sizeBytes"].toInteger(), 9007199254740993);
  EXPECT_EQ(logical["size"].toString(), "9.01 PB");
  const QJsonObject physical = device["physicalDrives"].toArray()[0].toObject();
  EXPECT_EQ(physical["index"].toInt(), 1);
  EXPECT_EQ(physical["protocol"].toString(), "nvme");
  const QJsonObject property = device["properties"].toArray()[1].toObject();
  EXPECT_EQ(property["key"].toString(), "SERIAL");
  EXPECT_EQ(property["label"].toString(), "Serial number");
}

TEST_F(CommandTest, ScanFallsBackToTheDescriptionIfTheControllerFails) {
  host_.SetEnvironment("FAKE_MOOD", "slots-fail");
  const QJsonObject document = Document({"scan"}, 0);
  EXPECT_EQ(document["errors"].toArray().size(), 6);
  const QJsonObject device = document["devices"].toArray()[1].toObject();
  EXPECT_TRUE(device["controller"].isNull());
  const QJsonObject logical = device["logicalDrives"].toArray()[0].toObject();
  EXPECT_TRUE(logical["state"].isNull());
  EXPECT_EQ(logical["raidLevel"].toString(), "RAID 1");
  EXPECT_EQ(logical["memberCount"].toInt(), 2);
  EXPECT_EQ(device["physicalDrives"].toArray()[0].toObject()["model"].toString(), "DISK A");

  const Finished finished = host_.Run({"scan"});
  EXPECT_TRUE(finished.out.contains("Could not read the controller's logical drives (the cable is loose)"));
  EXPECT_TRUE(finished.out.contains("0: RAID 1, 9.01 PB, 2 members"));
}

TEST_F(CommandTest, TestListNamesTheDevicesEachTestAppliesTo) {
  host_.SetEnvironment("FAKE_TESTS", "1,9,6");
  const QJsonArray tests = Document({"tests"}, 0)["tests"].toArray();
  ASSERT_EQ(tests.size(), 3);
  EXPECT_EQ(tests[0].toObject()["name"].toString(), "RAID status test");
  EXPECT_EQ(tests[0].toObject()["devices"].toArray(), (QJsonArray{0, 1}));
  EXPECT_EQ(tests[1].toObject()["devices"].toArray(), QJsonArray{0});
  EXPECT_TRUE(tests[2].toObject()["exclusive"].toBool());
  EXPECT_TRUE(host_.Run({"tests"}).out.contains("RAID status test  Quick RAID tests  no"));
}

TEST_F(CommandTest, ExitCodeIsTheMostSevere) {
  const struct {
    const char* tests;
    int exitCode;
  } cases[] = {{"1", 0},   {"1,2", 1}, {"2,3,1", 2}, {"5,1", 3}, {"2,5", 3},
               {"3,5", 2}, {"8", 3},   {"10", 3},    {"99,1", 3}};
  for (const auto& each : cases) {
    host_.SetEnvironment("FAKE_TESTS", each.tests);
    EXPECT_EQ(host_.Run({"test"}).exitCode, each.exitCode) << each.tests;
    Document({"test"}, each.exitCode);
  }
}

TEST_F(CommandTest, RunsReportMessagesInOrder) {
  const QJsonObject document = Document({"test", "--device", "A77F"}, 2);
  const QJsonArray runs = document["runs"].toArray();
  ASSERT_EQ(runs.size(), 3);
  const QJsonArray messages = runs[1].toObject()["messages"].toArray();
  EXPECT_EQ(messages[0].toObject()["translated"].toString(), "Logical drive is degraded: 7");
  EXPECT_EQ(messages[1].toObject()["key"].toString(), "DRIVE_DOWN");
  EXPECT_EQ(messages[1].toObject()["value"].toString(), u"DISK B - S2\uFFFD");
  EXPECT_EQ(runs[2].toObject()["result"].toObject()["number"].toInt(), 3);
  EXPECT_EQ(runs[2].toObject()["progress"].toInt(), 100);
  EXPECT_EQ(document["summary"].toObject()["results"].toObject()["failed"].toInt(), 1);

  const Finished text = host_.Run({"test", "--only", "3", "--device", "0"});
  EXPECT_TRUE(text.out.contains("[1] Second (ID 0)\n")) << "an ID takes precedence over an index";
  EXPECT_TRUE(
      text.out.contains("error: Faulty enclosure 3\n      notice: NOBODY_KNOWS_THIS\n      Result: failed\n"));
  EXPECT_TRUE(text.out.endsWith("1 run: 1 failed\n"));
  EXPECT_EQ(text.err, "") << "bars need a terminal";
}

TEST_F(CommandTest, ThrowingTestFailsItsOwnRunOnly) {
  host_.SetEnvironment("FAKE_TESTS", "5,1");
  const QJsonArray runs = Document({"test"}, 3)["runs"].toArray();
  ASSERT_EQ(runs.size(), 4);
  EXPECT_EQ(runs[0].toObject()["error"].toString(), "Unexpected error: out of luck");
  EXPECT_EQ(runs[1].toObject()["result"].toObject()["word"].toString(), "passed");
}

TEST_F(CommandTest, ModuleThatDropsTasksDoesNotHangTheProgram) {
  for (const char* const mood : {"swallow", "refuse"}) {
    host_.SetEnvironment("FAKE_MOOD", mood);
    const QJsonArray runs = Document({"test"}, 3)["runs"].toArray();
    EXPECT_EQ(runs.size(), 6);
    for (const auto& run : runs) EXPECT_EQ(run.toObject()["result"].toObject()["word"].toString(), "error");
  }
}

TEST_F(CommandTest, RunsOfOneDeviceAreSequentialAndRespectReservations) {
  host_.SetEnvironment("FAKE_TESTS", "7,6,1");
  Document({"test"}, 0);  // test 7 passes only if both devices run at the same time
  for (const char* const device : {"A77F", "0"}) {
    const QString on = QStringLiteral(" on ") + device;
    const QStringList expected{"started 7" + on + " mode 1", "run 7" + on, "finished 7" + on + " mode 1",
                               "started 6" + on + " mode 0", "run 6" + on, "finished 6" + on + " mode 0",
                               "started 1" + on + " mode 1", "run 1" + on, "finished 1" + on + " mode 1"};
    QStringList steps = host_.LogLines();
    steps.erase(std::remove_if(steps.begin(), steps.end(),
                               [&on](const QString& line) { return !line.contains(on + ' ') && !line.endsWith(on); }),
                steps.end());
    EXPECT_EQ(steps, expected) << steps.join('\n').toStdString();
  }
  const QStringList log = host_.LogLines();
  const QStringList exclusive = log.filter(" 6 on ").filter("mode 0");
  ASSERT_EQ(exclusive.size(), 4);
  EXPECT_TRUE(exclusive[1].startsWith("finished")) << "two exclusive runs overlapped";
  EXPECT_EQ(log.last(), "module destroyed");
}

TEST_F(CommandTest, NoControllerIsNotAnError) {
  host_.SetEnvironment("FAKE_MOOD", "empty");
  EXPECT_TRUE(Document({"scan"}, 0)["devices"].toArray().isEmpty());
  EXPECT_FALSE(Document({"presence"}, 0)["present"].toBool());
  EXPECT_TRUE(Document({"test"}, 0)["runs"].toArray().isEmpty());
  EXPECT_EQ(host_.Run({"presence"}).out, "No RAID controller found.\n");
}

TEST_F(CommandTest, MissingVendorLibraryIsNotedIfNothingIsFound) {
  host_.InstallSimulation();
  const QString note =
      "Vendor library storelib.dll not found in the simulated machine: controllers that need it are not listed";
  const struct {
    const char* mood;
    QJsonArray notes;
  } cases[] = {{"empty no-vendor", {note}}, {"empty", {}}};
  for (const auto& each : cases) {
    host_.SetEnvironment("FAKE_MOOD", each.mood);
    for (const char* const command : {"scan", "presence", "test", "drives", "tests"}) {
      EXPECT_EQ(Document({command, "--machine", "good.json"}, 0)["notes"], each.notes) << command << each.mood;
    }
  }
  host_.SetEnvironment("FAKE_MOOD", "no-vendor");
  EXPECT_TRUE(Document({"scan", "--machine", "good.json"}, 0)["notes"].toArray().isEmpty())
      << "controllers were found";
  host_.SetEnvironment("FAKE_MOOD", "empty no-vendor");
  EXPECT_EQ(host_.Run({"scan", "--machine", "good.json"}).out,
            "No RAID controller found.\nNote: " + note.toUtf8() + '\n');
}

TEST_F(CommandTest, UnusableDisplayMattersToQuestionsOnly) {
  host_.SetEnvironment("QT_QPA_PLATFORM", "nonsense");
  EXPECT_EQ(host_.Run({"test", "--device", "0"}).err, "");
  host_.SetEnvironment("FAKE_TESTS", QString::number(kAsk));
  EXPECT_EQ(host_.Run({"test", "--device", "0"}).err,
            "orvik-diag: Could not open a window for the question (QT_QPA_PLATFORM=nonsense)\n");
}

TEST_F(CommandTest, TextsFollowTheRequestedLanguage) {
  EXPECT_TRUE(host_.Run({"tests", "--lang", "de"}).out.contains("RAID-Statustest"));
  EXPECT_TRUE(host_.Run({"tests", "--lang=xx"}).out.contains("RAID status test"));
  EXPECT_EQ(host_.Run({"test", "--lang", "de", "--only", "raid status TEST"}).exitCode, 0);
  EXPECT_EQ(host_.Run({"test", "--lang", "de", "--only", "RAID-Statustest"}).exitCode, 0);
  EXPECT_EQ(host_.Run({"test", "--only", "RAID-Statustest"}).exitCode, 3);
}

TEST_F(CommandTest, CommonOptionsWorkBeforeAndAfterTheCommand) {
  CheckedDocument(host_.Run({"--json", "presence"}).out);
  CheckedDocument(host_.Run({"presence", "--json"}).out);
  EXPECT_EQ(host_.Run({"--module", FAKE_MODULE, "presence"}).exitCode, 0);
  EXPECT_EQ(host_.Run({"presence", "--module", FAKE_MODULE}).exitCode, 0);
}

TEST_F(CommandTest, HelpAndVersionAreAlwaysText) {
  for (const QStringList& arguments :
       {QStringList{"--help"}, QStringList{"--json", "--help"}, QStringList{"test", "--help", "--json"}}) {
    const Finished finished = host_.Run(arguments);
    EXPECT_EQ(finished.exitCode, 0);
    EXPECT_TRUE(finished.out.contains("Usage: orvik-diag"));
  }
  EXPECT_TRUE(host_.Run({"--version", "--json"}).out.startsWith("orvik-diag "));
}

TEST_F(CommandTest, FailureIsOneErrorLineAndExitCodeThree) {
  const struct {
    QStringList arguments;
    const char* mood;
    const char* reason;
  } cases[] = {
      {{}, "", "No command given"},
      {{"diagnose"}, "", "diagnose"},
      {{"scan", "--loud"}, "", "--loud"},
      {{"scan", "--json=true"}, "", "--json takes no value"},
      {{"selftest", "0:0", "--abort=1"}, "", "--abort takes no value"},
      {{"test", "--device", "9"}, "", "0 (A77F, First"},
      {{"test", "--only", "9"}, "", "RAID status test"},
      {{"scan", "--module", "/no/such.so"}, "", "no such file"},
      {{"scan", "--module", "."}, "", "it is a folder"},
      {{"scan", "--module", FAKE_SIMULATION}, "", "does not export CreateModuleInstance"},
      {{"scan", "--module", HOST_SCHEMA}, "", "Could not load the module"},
      {{"scan"}, "no-instance", "did not create a module instance"},
      {{"scan"}, "scan-throws", "no bus"},
      {{"test"}, "scan-throws", "no bus"},
      {{"scan", "--machine", "m.json"}, "", "not available in this installation"},
  };
  for (const auto& each : cases) {
    host_.SetEnvironment("FAKE_MOOD", each.mood);
    const Finished finished = host_.Run(each.arguments);
    EXPECT_EQ(finished.exitCode, 3) << each.reason;
    EXPECT_TRUE(finished.out.isEmpty() || each.arguments.contains("--json=true")) << each.reason;
    EXPECT_EQ(finished.err.count('\n'), 1) << finished.err.toStdString();
    EXPECT_TRUE(finished.err.contains(each.reason)) << finished.err.toStdString();

    const QJsonArray errors = Document(each.arguments, 3)["errors"].toArray();
    ASSERT_EQ(errors.size(), 1);
    EXPECT_TRUE(errors[0].toObject()["message"].toString().contains(each.reason));
  }
}

TEST_F(CommandTest, MachineIsOpenedBeforeTheModuleIsLoaded) {
  host_.InstallSimulation();
  EXPECT_EQ(host_.Run({"scan", "--machine", "sübdir/good.json"}).exitCode, 0);
  EXPECT_EQ(host_.LogLines().mid(0, 2), (QStringList{"opened sübdir/good.json", "module created"}));

  host_.SetEnvironment("ORVIK_MACHINE", "bad.json");
  const QJsonObject broken = Document({"scan"}, 3);
  EXPECT_EQ(broken["errors"].toArray()[0].toObject()["message"].toString(),
            "broken.json: /controllers/0: expected an object, found a number");
  EXPECT_TRUE(broken["module"].isNull());
  EXPECT_EQ(host_.LogLines().last(), "opened bad.json") << "the module must not be loaded";
  EXPECT_EQ(host_.Run({"scan", "--machine", "good.json"}).exitCode, 0) << "the option overrides the environment";
  host_.SetEnvironment("ORVIK_MACHINE", "");
  EXPECT_EQ(host_.Run({"scan"}).exitCode, 0);
}

TEST_F(CommandTest, QuestionsWithoutAUserAreAnsweredOrClosed) {
  host_.SetEnvironment("FAKE_TESTS", QString::number(kAsk));
  struct Row {
    QStringList arguments;
    QJsonValue answer;
    const char* ending;
    int exitCode;
  };
  for (const auto& [arguments, answer, ending, exitCode] :
       {Row{{"--answer", "ok"}, "ok", "answer 1", 0}, Row{{"--answer=Cancel"}, "cancel", "answer 2", 0},
        Row{{"--answer", "yes"}, QJsonValue::Null, "answer 0", 3}, Row{{}, QJsonValue::Null, "answer 0", 0}}) {
    const QJsonObject document = Document(QStringList{"test", "--device", "0"} + arguments, exitCode);
    const QJsonArray questions = document["runs"].toArray()[0].toObject()["questions"].toArray();
    EXPECT_EQ(questions, (QJsonArray{QJsonObject{{"title", "Sure?"}, {"text", "It hurts."}, {"answer", answer}}}));
    EXPECT_EQ(host_.LogLines().filter("answer").last(), ending);
  }
  EXPECT_TRUE(host_.Run({"test", "--device", "0", "--answer", "yes"}).err.contains("has no button \"yes\""));
  const Finished finished = host_.Run({"test", "--device", "0"});
  EXPECT_TRUE(finished.out.contains("question: Sure? It hurts. (not answered)\n")) << finished.out.toStdString();
}

}  // namespace
}  // namespace orvik::tests
