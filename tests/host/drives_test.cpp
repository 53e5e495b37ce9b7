// Member drives: their values, their self-tests and hidden serial numbers.

#include <gtest/gtest.h>

#include <QJsonArray>

#include "host/privacy/hide_serials.h"
#include "tests/host/checked_document.h"
#include "tests/host/host_process.h"

namespace orvik::tests {
namespace {

TEST(Drives, ReportOnlyWhatTheDriveProvides) {
  HostProcess host;
  host.InstallModule();
  const QJsonObject document = CheckedDocument(host.Run({"drives", "--json"}).out);
  const QJsonArray drives = document["drives"].toArray();
  ASSERT_EQ(drives.size(), 6);
  EXPECT_EQ(document["notes"], (QJsonArray{"Device 1, r-260: ATA commands reach a drive with another serial number; "
                                           "only SCSI is used"}));
  const struct {
    int drive;
    const char* path;
    QJsonValue value;
  } cases[] = {
      {0, "identification/capacityBytes", qint64{9007199254741504}},
      {0, "readings/health/value", "threshold-exceeded"},
      {0, "readings/lifeRemaining/value", QJsonValue::Null},  // 101 percent
      {1, "status/number", 88},
      {2, "identification/securitySupported", QJsonValue::Null},
      {2, "readings/lifeRemaining/value", 97},
      {2, "readings/health/value", QJsonValue::Null},
      {2, "readings/selfTestResult/value", QJsonValue::Null},
      {3, "status/number", 0},  // identified through the ATA object
      {3, "readings/temperature/value", 33},
      {4, "identification/serial", "SER-1"},
      {4, "readings/temperature/status/word", "failure"},
      {5, "identification/serial", "SER-1"},  // its ATA object reaches another drive
      {5, "ataPassThrough", false},
      {5, "readings/temperature/value", QJsonValue::Null},
  };
  for (const auto& each : cases) {
    QJsonValue value = drives[each.drive];
    for (const QString& step : QString(each.path).split('/')) value = value[step];
    EXPECT_EQ(value, each.value) << each.drive << ' ' << each.path;
  }
  EXPECT_EQ(host.LogLines().filter("started drives on A77F mode 1").size(), 1) << "read without a reservation";
  host.SetEnvironment("FAKE_MOOD", "slots-fail");
  const Finished text = host.Run({"drives", "--device", "A77F"});
  EXPECT_EQ(text.exitCode, 3);
  EXPECT_TRUE(text.err.contains("all drives of the controller (rejected by the controller, status 66)"));
  EXPECT_TRUE(text.out.contains("Latest self-test: read failure, first failing LBA 1234\n    1: d-1"));
  EXPECT_TRUE(text.out.contains("Power mode: not reported\n")) << text.out.toStdString();
}

TEST(Drives, SelfTestsEndWithTheirResult) {
  const struct {
    QStringList arguments;
    const char* code;
    int exitCode;
    const char* shown;  // on one of the two streams
  } cases[] = {
      {{"0:0"}, "0", 0, "Short self-test: completed without error"},
      {{"1:0", "--extended"}, "7", 2, "First failing LBA: 1234"},
      {{"d-4"}, "8", 3, "without a result: unknown"},  // a failure code in ATA only
      {{"d-4"}, "4", 2, "failed in a test segment"},
      {{"0:0"}, "1", 3, "aborted by the host"},
      {{"d-1"}, "0", 3, "Could not start the self-test: device error, status 88"},
      {{"d-2"}, "0", 3, "Self-tests are not supported on NVMe drives"},
      {{"r-260"}, "4", 2, "failed in a test segment"},  // not the drive that ATA commands reach
      {{"d-4", "--abort"}, "0", 0, "Abort command accepted"},
      {{"d-0"}, "0", 3, "0:0 (d-0, First\xEF\xBF\xBD(), 1:0 (d-0, Second)"},
  };
  HostProcess host;
  host.InstallModule();
  for (const auto& each : cases) {
    host.SetEnvironment("FAKE_SELFTEST", each.code);
    const Finished finished = host.Run(QStringList{"selftest"} + each.arguments);
    EXPECT_EQ(finished.exitCode, each.exitCode) << each.shown;
    EXPECT_TRUE((finished.out + finished.err).contains(each.shown)) << each.shown << finished.err.toStdString();
  }
  EXPECT_EQ(host.LogLines().filter("self-test 2 by ATA").size(), 1);
}

TEST(HideSerials, MasksEveryOccurrence) {
  HostProcess host;
  host.InstallModule();
  host.SetEnvironment("FAKE_TESTS", "2");
  for (const QStringList& call :
       {QStringList{"scan"}, {"scan", "--json"}, {"drives", "--json"}, {"test", "--json"}}) {
    const QByteArray out = host.Run(call + QStringList{"--hide-serials"}).out;
    EXPECT_TRUE(out.contains("XX"));
    for (const char* const secret : {"SER-", "S1", "S2", " 77"}) EXPECT_FALSE(out.contains(secret)) << secret;
  }
  core::DeviceDescription device;
  device.name = "CARD - AB 1";
  device.udi = "CARD-AB1";
  device.properties = {{"UDI", "CARD-AB1"}, {"MODEL", "AB"}, {"SERIAL", "AB 1"}};
  host::HideSerials(device);
  EXPECT_EQ(device.name + device.udi, "CARD - XXXXCARD-XXX");
  EXPECT_EQ(device.properties, (core::KeyValueList{{"UDI", "CARD-XXX"}, {"MODEL", "AB"}, {"SERIAL", "XXXX"}}));
}

}  // namespace
}  // namespace orvik::tests
