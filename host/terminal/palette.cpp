#include "host/terminal/palette.h"

#include <QtGlobal>

#include "host/terminal/terminal.h"

namespace orvik::host {
namespace {

int CodeOf(Colour colour) {
  switch (colour) {
    case Colour::Bold: return 1;
    case Colour::Green: return 32;
    case Colour::Yellow: return 33;
    case Colour::Red: return 31;
    case Colour::Cyan: return 36;
    case Colour::Plain: break;
  }
  return 0;
}

}  // namespace

Palette Palette::ForOutput() {
  return Palette(IsTerminal(Stream::Output) && qEnvironmentVariableIsEmpty("NO_COLOR"));
}

QString Palette::Paint(Colour colour, const QString& text) const {
  if (!coloured_ || colour == Colour::Plain) return text;
  return QStringLiteral("\x1b[%1m%2\x1b[0m").arg(QString::number(CodeOf(colour)), text);
}

}  // namespace orvik::host
