#pragma once

// SVG icons at any size. Qt draws them with its SVG module where that is installed; this is for where it is not.

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

/// Part of the library itself. A plug-in of the same key that is installed comes before it.
class SvgIconPlugin final : public QIconEnginePlugin {
  Q_OBJECT
  Q_PLUGIN_METADATA(IID QIconEngineFactoryInterface_iid FILE "svg_icon_engine.json")

 public:
  QIconEngine* create(const QString& fileName) override;
};

}  // namespace skinkit
