#include "host/drives/drive_choice.h"

#include <QCoreApplication>
#include <QStringList>
#include <vector>

#include "host/text/choices.h"
#include "host/text/display_text.h"

namespace orvik::host {
namespace {

QString PlaceOf(const ChosenDrive& chosen) {
  return QStringLiteral("%1:%2").arg(chosen.device->index).arg(chosen.drive->index);
}

template <typename Matches>
std::vector<ChosenDrive> Matching(const DriveQueryList& lists, const Matches& matches) {
  std::vector<ChosenDrive> found;
  for (const auto& list : lists) {
    for (const Drive& drive : list->drives) {
      const ChosenDrive candidate{list->device, &drive};
      if (matches(candidate)) found.push_back(candidate);
    }
  }
  return found;
}

QStringList Names(const std::vector<ChosenDrive>& drives) {
  QStringList names;
  for (const ChosenDrive& each : drives) {
    names += QStringLiteral("%1 (%2, %3)")
                 .arg(PlaceOf(each), DisplayText(each.drive->entry.id), DisplayText(each.device->description.name));
  }
  return names;
}

}  // namespace

std::optional<ChosenDrive> ChooseDrive(const DriveQueryList& lists, const std::string& wanted, QString& error) {
  std::vector<ChosenDrive> found =
      Matching(lists, [&wanted](const ChosenDrive& each) { return each.drive->entry.id == wanted; });
  if (found.empty()) {
    found = Matching(lists, [&wanted](const ChosenDrive& each) { return PlaceOf(each).toStdString() == wanted; });
  }
  if (found.size() == 1) return found.front();

  const QString problem = found.empty()
                              ? QCoreApplication::translate("orvik-diag", "No drive \"%1\"")
                              : QCoreApplication::translate("orvik-diag", "Several drives are called \"%1\"");
  const auto all = [](const ChosenDrive&) { return true; };
  error = WithChoices(problem.arg(DisplayText(wanted)), Names(found.empty() ? Matching(lists, all) : found));
  return std::nullopt;
}

}  // namespace orvik::host
