// Stopping the program with signals. Only POSIX systems let other programs send them.

#include <gtest/gtest.h>

#include <QtGlobal>

#ifdef Q_OS_UNIX

#include <QJsonArray>
#include <csignal>

#include "tests/host/checked_document.h"
#include "tests/host/host_process.h"

namespace orvik::tests {
namespace {

constexpr int kTimeoutMilliseconds = 60000;

class InterruptTest : public testing::Test {
 protected:
  InterruptTest() {
    host_.InstallModule();
    host_.SetEnvironment("FAKE_TESTS", "4,1");
  }

  // Starts endless runs and waits until both devices are running.
  void Start(const QStringList& arguments = {"test", "--json"}) {
    process_.setChildProcessModifier([] {
      static_cast<void>(std::signal(SIGINT, SIG_DFL));
      static_cast<void>(std::signal(SIGHUP, SIG_DFL));
    });
    host_.Start(process_, arguments);
    WaitForBoth("waiting\n");
  }

  void WaitForBoth(const char* line) {
    process_.setReadChannel(QProcess::StandardError);
    while (seen_.count(line) < 2 && process_.waitForReadyRead(kTimeoutMilliseconds)) {
      seen_ += process_.readAllStandardError();
    }
    ASSERT_EQ(seen_.count(line), 2);
  }

  void Send(int signal) const { ASSERT_EQ(kill(static_cast<pid_t>(process_.processId()), signal), 0); }

  HostProcess host_;
  QProcess process_;
  QByteArray seen_;
};

TEST_F(InterruptTest, RunsEndAsAbortedAndAreAllReported) {
  Start();
  Send(SIGINT);
  ASSERT_TRUE(process_.waitForFinished(kTimeoutMilliseconds));
  EXPECT_EQ(process_.exitStatus(), QProcess::NormalExit);
  EXPECT_EQ(process_.exitCode(), 3);
  const QJsonObject document = CheckedDocument(process_.readAllStandardOutput());
  const QJsonArray runs = document["runs"].toArray();
  ASSERT_EQ(runs.size(), 4) << "runs that had not started are reported too";
  for (const auto& run : runs) EXPECT_EQ(run.toObject()["result"].toObject()["word"].toString(), "aborted");
  EXPECT_EQ(document["errors"].toArray().size(), 1);
  EXPECT_EQ(host_.LogLines().filter("run 1").size(), 0) << "no run may start after the interruption";
  EXPECT_EQ(host_.LogLines().filter("finished 4").size(), 2);
}

TEST_F(InterruptTest, TerminationRequestsAndClosedTerminalsStopTheProgram) {
  for (const int signal : {SIGTERM, SIGHUP}) {
    seen_.clear();
    Start();
    Send(signal);
    ASSERT_TRUE(process_.waitForFinished(kTimeoutMilliseconds));
    EXPECT_EQ(process_.exitStatus(), QProcess::NormalExit);
    EXPECT_EQ(process_.exitCode(), 3);
  }
}

TEST_F(InterruptTest, SecondSignalEndsAHangingProgram) {
  host_.SetEnvironment("FAKE_MOOD", "stubborn");
  Start();
  Send(SIGINT);
  WaitForBoth("noticed\n");
  Send(SIGINT);
  ASSERT_TRUE(process_.waitForFinished(kTimeoutMilliseconds));
  EXPECT_EQ(process_.exitStatus(), QProcess::CrashExit);
}

TEST_F(InterruptTest, SelfTestIsAborted) {
  host_.SetEnvironment("FAKE_MOOD", "endless");
  Start({"selftest", "0:0", "--json"});
  Send(SIGINT);
  ASSERT_TRUE(process_.waitForFinished(kTimeoutMilliseconds));
  EXPECT_EQ(process_.exitCode(), 3);
  const QJsonObject document = CheckedDocument(process_.readAllStandardOutput());
  const QJsonObject selfTest = document["selfTest"].toObject();
  EXPECT_EQ(selfTest["request"].toString(), "short");
  EXPECT_TRUE(selfTest["aborted"].toBool());
  EXPECT_EQ(selfTest["result"].toObject()["word"].toString(), "aborted-by-host");
  EXPECT_EQ(document["errors"].toArray()[0].toObject()["message"].toString(),
            "Device 0, d-0: The self-test was aborted");
  EXPECT_EQ(host_.LogLines().filter("self-test aborted").size(), 1);
}

}  // namespace
}  // namespace orvik::tests

#endif
