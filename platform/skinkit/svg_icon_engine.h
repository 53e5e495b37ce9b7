#pragma once

// Draws SVG icons at any size where Qt's SVG module is not installed.

#include <QIconEngine>
#include <QIconEnginePlugin>

#include "platform/skinkit/svg_shapes.h"

namespace skinkit {

class SvgIconEngine final : public QIconEngine {
 public:
  void addFile(const QString& fileName, const QSize& size, QIcon::Mode mode, QIcon::State state) override;
  void paint(QPainter* painter, const QRect& rect, QIcon::Mode mode, QIcon::State state) override;
  QPixmap pixmap(const QSize& size, QIcon::Mode mode, QIcon::State state) override;
  QIconEngine* clone() const override;
  bool isNull() override { return drawing_.shapes.empty(); }

 private:
  Drawing drawing_;
};

/// Linked into this library. Qt prefers an installed plug-in of the same key.
class SvgIconPlugin final : public QIconEnginePlugin {
  Q_OBJECT
  Q_PLUGIN_METADATA(IID QIconEngineFactoryInterface_iid FILE "svg_icon_engine.json")

 public:
  QIconEngine* create(const QString& fileName) override;
};

}  // namespace skinkit
