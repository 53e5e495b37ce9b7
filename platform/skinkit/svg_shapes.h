#pragma once

#include <QByteArray>
#include <QColor>
#include <QPainterPath>
#include <QRectF>
#include <vector>

namespace skinkit {

struct Shape {
  QPainterPath path;
  QColor color;
};

/// A drawing of filled paths.
struct Drawing {
  QRectF viewBox{0, 0, 24, 24};
  std::vector<Shape> shapes;
};

/// Reads as much of SVG as icons need: `path` elements with a `fill` and absolute M, L, H, V, C and Z commands,
/// filled by the even-odd rule. Skips other elements and paths with other commands.
Drawing ReadSvg(const QByteArray& svg);

}  // namespace skinkit
