#include "platform/skinkit/svg_icon_engine.h"

#include <QFile>
#include <QPainter>
#include <QPixmap>
#include <algorithm>

namespace skinkit {

namespace {

constexpr qint64 kLargestIcon = 1048576;  // bytes

}  // namespace

void SvgIconEngine::addFile(const QString& fileName, const QSize& /*size*/, QIcon::Mode /*mode*/,
                            QIcon::State /*state*/) {
  QFile file(fileName);
  if (!file.open(QIODevice::ReadOnly)) return;
  const QByteArray svg = file.read(kLargestIcon + 1);
  if (svg.size() <= kLargestIcon) drawing_ = ReadSvg(svg);
}

// Centred in the rectangle and scaled to fit.
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
