#include "tests/host/host_process.h"

#include <gtest/gtest.h>

#include <QFile>
#include <QFileInfo>
#include <QProcessEnvironment>

#include "tests/host/fake_module.h"

namespace orvik::tests {
namespace {

constexpr int kTimeoutMilliseconds = 60000;

QByteArray Contents(const QString& path) {
  QFile file(path);
  return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

// Text streams on Windows end lines with CR LF.
QByteArray WithUnixLineEnds(QByteArray text) {
  return text.replace("\r\n", "\n");
}

}  // namespace

HostProcess::HostProcess() {
  EXPECT_TRUE(QFile::copy(HOST_PROGRAM, PathOf(QFileInfo(HOST_PROGRAM).fileName())));
  environment_[kLogEnvironment] = PathOf("log");
  environment_["LANG"] = "C.UTF-8";
  // No user is there to answer questions in a window.
  environment_["QT_QPA_PLATFORM"] = "offscreen";
}

void HostProcess::InstallModule() const {
  EXPECT_TRUE(QFile::copy(FAKE_MODULE, PathOf("ovk_module_raid." + QFileInfo(FAKE_MODULE).suffix())));
}

void HostProcess::InstallSimulation() const {
  EXPECT_TRUE(QFile::copy(FAKE_SIMULATION, PathOf("orvik_simulation." + QFileInfo(FAKE_SIMULATION).suffix())));
}

void HostProcess::Start(QProcess& process, const QStringList& arguments) const {
  QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
  for (const char* const name : {"ORVIK_MACHINE", "LANGUAGE", "LC_ALL", "NO_COLOR"}) environment.remove(name);
  for (auto entry = environment_.begin(); entry != environment_.end(); ++entry) {
    environment.insert(entry.key(), entry.value());
  }
  process.setProcessEnvironment(environment);
  process.start(PathOf(QFileInfo(HOST_PROGRAM).fileName()), arguments);
  EXPECT_TRUE(process.waitForStarted(kTimeoutMilliseconds));
}

Finished HostProcess::Run(const QStringList& arguments) const {
  QProcess process;
  Start(process, arguments);
  EXPECT_TRUE(process.waitForFinished(kTimeoutMilliseconds)) << arguments.join(' ').toStdString();
  EXPECT_EQ(process.exitStatus(), QProcess::NormalExit);
  return {process.exitCode(), WithUnixLineEnds(process.readAllStandardOutput()),
          WithUnixLineEnds(process.readAllStandardError())};
}

QStringList HostProcess::LogLines() const {
  return QString::fromUtf8(WithUnixLineEnds(Contents(PathOf("log")))).split('\n', Qt::SkipEmptyParts);
}

}  // namespace orvik::tests
