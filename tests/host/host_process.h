#pragma once

#include <QByteArray>
#include <QMap>
#include <QProcess>
#include <QString>
#include <QStringList>
#include <QTemporaryDir>

namespace orvik::tests {

struct Finished {
  int exitCode = -1;
  QByteArray out;
  QByteArray err;
};

/// An installation of the host in a folder of its own: the program, and beside it whatever a test puts there.
class HostProcess {
 public:
  HostProcess();

  /// Puts the fake module, or the fake simulation, where the host looks for the real one.
  void InstallModule() const;
  void InstallSimulation() const;

  void SetEnvironment(const QString& name, const QString& value) { environment_[name] = value; }

  /// Starts the program; `process` is the caller's to wait for.
  void Start(QProcess& process, const QStringList& arguments) const;

  /// Runs the program to its end.
  Finished Run(const QStringList& arguments) const;

  /// Lines that the fakes have logged.
  QStringList LogLines() const;

  QString PathOf(const QString& name) const { return folder_.filePath(name); }

 private:
  QTemporaryDir folder_;
  QMap<QString, QString> environment_;
};

}  // namespace orvik::tests
