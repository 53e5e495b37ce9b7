#include "platform/skinkit/svg_icon_engine.h"

#include <QFile>
#include <QPainter>
#include <QPixmap>
#include <QtPlugin>
#include <algorithm>
#ifdef Q_OS_WIN
#include <windows.h>
#endif

namespace skinkit {

namespace {

constexpr qint64 kLargestIcon = 1048576;  // bytes

#ifdef Q_OS_WIN
// Qt never forgets a plug-in, so this library must stay loaded when the last program or library that uses it is gone.
void PinLibrary() {
  static constexpr char kInThisLibrary = 0;
  constexpr DWORD kFlags = GET_MODULE_HANDLE_EX_FLAG_PIN | GET_MODULE_HANDLE_EX_FLAG_FROM_ADDRESS;
  HMODULE library = nullptr;
  GetModuleHandleExW(kFlags, reinterpret_cast<LPCWSTR>(&kInThisLibrary), &library);
}
Q_CONSTRUCTOR_FUNCTION(PinLibrary)
#endif

}  // namespace

void SvgIconEngine::addFile(const QString& fileName, const QSize& /*size*/, QIcon::Mode /*mode*/,
                            QIcon::State /*state*/) {
  QFile file(fileName);
  if (!file.open(QIODevice::ReadOnly)) return;
  const QByteArray svg = file.read(kLargestIcon + 1);
  if (svg.size() <= kLargestIcon) drawing_ = ReadSvg(svg);
}

// In the middle of the rectangle, as large as it fits.
void SvgIconEngine::paint(QPainter* painter, const QRect& rect, QIcon::Mode mode, QIcon::State /*state*/) {
  const QRectF box = drawing_.viewBox;
  const double scale = std::min(rect.width() / box.width(), rect.height() / box.height());
  painter->save();
  painter->setRenderHint(QPainter::Antialiasing);
  if (mode == QIcon::Disabled) painter->setOpacity(painter->opacity() / 2);
  painter->translate(QRectF(rect).center());
  painter->scale(scale, scale);
  painter->translate(-box.center());
  for (const Shape& shape : drawing_.shapes) painter->fillPath(shape.path, shape.color);
  painter->restore();
}

QPixmap SvgIconEngine::pixmap(const QSize& size, QIcon::Mode mode, QIcon::State state) {
  QPixmap pixmap(size);
  pixmap.fill(Qt::transparent);
  QPainter painter(&pixmap);
  paint(&painter, QRect(QPoint(), size), mode, state);
  return pixmap;
}

QIconEngine* SvgIconEngine::clone() const {
  return new SvgIconEngine(*this);
}

QIconEngine* SvgIconPlugin::create(const QString& fileName) {
  auto* engine = new SvgIconEngine;
  if (!fileName.isEmpty()) engine->addFile(fileName, {}, QIcon::Normal, QIcon::Off);
  return engine;
}

}  // namespace skinkit

Q_IMPORT_PLUGIN(SvgIconPlugin)
