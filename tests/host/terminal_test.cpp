// The program on a terminal: one of its streams is a pseudo-terminal.

#include <gtest/gtest.h>

#include <QtGlobal>

#ifdef Q_OS_UNIX

#include <fcntl.h>
#include <unistd.h>

#include <array>
#include <cstdlib>

#include "tests/host/fake_module.h"
#include "tests/host/host_process.h"

namespace orvik::tests {
namespace {

class TerminalTest : public testing::Test {
 protected:
  TerminalTest() : terminal_(posix_openpt(O_RDWR | O_NOCTTY | O_NONBLOCK)) {
    EXPECT_EQ(grantpt(terminal_), 0);
    EXPECT_EQ(unlockpt(terminal_), 0);
    screen_ = open(ptsname(terminal_), O_RDWR | O_NOCTTY);
    EXPECT_GE(screen_, 0);
    host_.InstallModule();
    host_.SetEnvironment("FAKE_TESTS", "1,3");
    host_.SetEnvironment("TERM", "xterm");
  }

  ~TerminalTest() override {
    close(screen_);
    close(terminal_);
  }

  // Runs the program with the terminal as one of its streams; returns what appeared there.
  QByteArray Show(int stream) {
    QProcess process;
    process.setChildProcessModifier([this, stream] { dup2(screen_, stream); });
    host_.Start(process, {"test"});
    EXPECT_TRUE(process.waitForFinished());
    piped_ = stream == STDERR_FILENO ? process.readAllStandardOutput() : process.readAllStandardError();
    QByteArray shown;
    std::array<char, 4096> part{};
    for (ssize_t size = 0; (size = read(terminal_, part.data(), part.size())) > 0;) shown.append(part.data(), size);
    return shown;
  }

  HostProcess host_;
  QByteArray piped_;  ///< what went to the other stream
  int terminal_;
  int screen_ = -1;
};

TEST_F(TerminalTest, BarsAreDrawnAndErased) {
  const QByteArray shown = Show(STDERR_FILENO);
  EXPECT_TRUE(shown.contains("Device 0: RAID status test"));
  EXPECT_TRUE(shown.endsWith("\x1b[1A\r\x1b[J")) << "a bar remained";
  EXPECT_TRUE(piped_.endsWith("4 runs: 2 passed, 2 failed\n"));
  EXPECT_FALSE(piped_.contains('\x1b'));

  host_.SetEnvironment("TERM", "dumb");
  host_.SetEnvironment("FAKE_TESTS", "5");
  EXPECT_FALSE(Show(STDERR_FILENO).contains('\x1b'));
}

TEST_F(TerminalTest, ColoursNeedATerminalWithoutNoColor) {
  EXPECT_TRUE(Show(STDOUT_FILENO).contains("\x1b[31mfailed\x1b[0m"));
  EXPECT_EQ(piped_, "");
  host_.SetEnvironment("NO_COLOR", "1");
  EXPECT_FALSE(Show(STDOUT_FILENO).contains('\x1b'));
}

TEST_F(TerminalTest, QuestionsAreRepeatedUntilTheAnswerIsValid) {
  host_.SetEnvironment("FAKE_TESTS", QString::number(kAsk));
  const QByteArray answers = "what?\nCANCEL\n";
  ASSERT_EQ(write(terminal_, answers.data(), static_cast<std::size_t>(answers.size())), answers.size());
  QProcess process;
  process.setInputChannelMode(QProcess::ForwardedInputChannel);
  process.setChildProcessModifier([this] {
    dup2(screen_, STDIN_FILENO);
    dup2(screen_, STDERR_FILENO);
  });
  host_.Start(process, {"test", "--device", "0"});
  ASSERT_TRUE(process.waitForFinished());
  std::array<char, 4096> shown{};
  const ssize_t size = read(terminal_, shown.data(), shown.size());
  EXPECT_EQ(QByteArray(shown.data(), size).count("Sure?\r\nIt hurts.\r\n[ok/cancel] "), 2);
  EXPECT_EQ(host_.LogLines().filter("answer").last(), "answer 2");
  EXPECT_TRUE(process.readAllStandardOutput().contains("question: Sure? It hurts. (cancel)\n"));
}

}  // namespace
}  // namespace orvik::tests

#endif
