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

/// An installation of the host in a temporary folder: the program and the libraries that a test adds.
class HostProcess {
 public:
  HostProcess();

  /// Installs the fake module or the fake simulation in place of the real one.
  void InstallModule() const;
  void InstallSimulation() const;

  void SetEnvironment(const QString& name, const QString& value) { environment_[name] = value; }

  /// Starts the program without waiting for it.
  void Start(QProcess& process, const QStringList& arguments) const;

  /// Runs the program to its end.
  Finished Run(const QStringList& arguments) const;

  /// Lines logged by the fakes.
  QStringList LogLines() const;

  QString PathOf(const QString& name) const { return folder_.filePath(name); }

 private:
  QTemporaryDir folder_;
  QMap<QString, QString> environment_;
};

}  // namespace orvik::tests
