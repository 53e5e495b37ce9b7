// Makes pictures of the question dialog for the documentation: dialog_images FOLDER DPI TRANSLATION (a .qm file). One
// process makes those of one DPI, because it asks its monitor only once.

#include <QApplication>
#include <QDir>
#include <QPainter>
#include <QPixmap>
#include <QTranslator>
#include <iostream>

#include "simulation/machine/current_machine.h"
#include "utils/dialogs/generic_input_dialog.h"

namespace {

// Before a window of another colour, so that the corners can be told from what is behind them.
QImage Picture(GenericInputDialog& dialog) {
  const int margin = dialog.fontMetrics().height();
  QPixmap picture(dialog.size() + QSize(2 * margin, 2 * margin));
  picture.fill(QColor(0x5B, 0x6B, 0x82));
  QPainter(&picture).drawPixmap(margin, margin, dialog.grab());
  return picture.toImage();
}

std::string Translated(const char* key) {
  return QCoreApplication::translate("RAID", key).toStdString();
}

bool MakePicture(const QString& folder, unsigned dpi, bool highContrast) {
  orvik::simulation::MachineDescription description;
  description.desktop = {.highContrast = highContrast, .dpi = dpi};
  orvik::simulation::InstallMachine(std::make_shared<orvik::simulation::Machine>(description));
  InputRequest request;
  request.title = Translated("CHECK_CONSISTENCY_ALREADY_IN_PROGRESS");
  request.text = Translated("CANCEL_AND_START_NEW_CHECK_CONSISTENCY_ON_LOGICAL_DRIVE_QUESTION");
  request.kind = 1;
  request.buttons = 1;
  GenericInputDialog dialog(&request, "RAID", nullptr);
  dialog.show();
  QCoreApplication::processEvents();
  const QString name = QStringLiteral("question-%1-dpi%2.png").arg(dpi).arg(highContrast ? "-high-contrast" : "");
  return Picture(dialog).save(QDir(folder).filePath(name), "PNG", 0);
}

}  // namespace

int main(int argc, char** argv) {
  const QApplication application(argc, argv);
  const QStringList arguments = QApplication::arguments();
  QTranslator translator;
  if (arguments.size() != 4 || !translator.load(arguments.at(3))) {
    std::cerr << "dialog_images FOLDER DPI TRANSLATION\n";
    return 2;
  }
  QCoreApplication::installTranslator(&translator);
  const unsigned dpi = arguments.at(2).toUInt();
  return MakePicture(arguments.at(1), dpi, false) && MakePicture(arguments.at(1), dpi, true) ? 0 : 1;
}
