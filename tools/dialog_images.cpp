// Makes a picture of the question dialog for the documentation: dialog_images FILE DPI TRANSLATION CONTRAST, where
// TRANSLATION is a .qm file and CONTRAST "normal" or "high". One picture per process, because the dialog reads the
// monitor's DPI only once.

#include <QApplication>
#include <QPainter>
#include <QPixmap>
#include <QTranslator>
#include <iostream>

#include "simulation/machine/current_machine.h"
#include "utils/dialogs/generic_input_dialog.h"

namespace {

// On a background of another colour, which shows the rounded corners.
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

bool MakePicture(const QString& file) {
  InputRequest request;
  request.title = Translated("CHECK_CONSISTENCY_ALREADY_IN_PROGRESS");
  request.text = Translated("CANCEL_AND_START_NEW_CHECK_CONSISTENCY_ON_LOGICAL_DRIVE_QUESTION");
  request.kind = 1;
  request.buttons = 1;
  GenericInputDialog dialog(&request, "RAID", nullptr);
  dialog.show();
  QCoreApplication::processEvents();
  return Picture(dialog).save(file, "PNG", 0);
}

}  // namespace

int main(int argc, char** argv) {
  const QApplication application(argc, argv);
  const QStringList arguments = QApplication::arguments();
  QTranslator translator;
  if (arguments.size() != 5 || !translator.load(arguments.at(3))) {
    std::cerr << "usage: dialog_images FILE DPI TRANSLATION normal|high\n";
    return 2;
  }
  QCoreApplication::installTranslator(&translator);
  orvik::simulation::MachineDescription description;
  description.desktop = {.highContrast = arguments.at(4) == u"high", .dpi = arguments.at(2).toUInt()};
  orvik::simulation::InstallMachine(std::make_shared<orvik::simulation::Machine>(description));
  return MakePicture(arguments.at(1)) ? 0 : 1;
}
