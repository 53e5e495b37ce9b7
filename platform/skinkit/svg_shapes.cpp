#include "platform/skinkit/svg_shapes.h"

#include <QString>
#include <QXmlStreamReader>
#include <array>
#include <optional>

namespace skinkit {

namespace {

/// Reads the commands and numbers of a path's data.
class PathReader {
 public:
  explicit PathReader(QStringView data) : rest_(data) {}

  // Nothing when the data contains anything else.
  std::optional<QPainterPath> Path() {
    QChar command;
    while (SkipSeparators()) {
      if (rest_.front().isLetter()) {
        command = rest_.front();
        rest_ = rest_.mid(1);
        if (command == u'Z') path_.closeSubpath();
      } else if (!Segment(command)) {
        return std::nullopt;
      }
    }
    return path_;
  }

 private:
  // False at the end of the data.
  bool SkipSeparators() {
    while (!rest_.isEmpty() && (rest_.front().isSpace() || rest_.front() == u',')) rest_ = rest_.mid(1);
    return !rest_.isEmpty();
  }

  bool Segment(QChar command) {
    const QPointF from = path_.currentPosition();
    if (command == u'C') {
      const auto points = Numbers<6>();
      if (points) {
        const auto& [x1, y1, x2, y2, x, y] = *points;
        path_.cubicTo(x1, y1, x2, y2, x, y);
      }
      return points.has_value();
    }
    if (command == u'H' || command == u'V') {
      const auto to = Numbers<1>();
      if (to) path_.lineTo(command == u'H' ? to->front() : from.x(), command == u'V' ? to->front() : from.y());
      return to.has_value();
    }
    if (command != u'M' && command != u'L') return false;
    const auto to = Numbers<2>();
    if (to && command == u'M') path_.moveTo(to->front(), to->back());
    if (to && command == u'L') path_.lineTo(to->front(), to->back());
    return to.has_value();
  }

  template <std::size_t count>
  std::optional<std::array<double, count>> Numbers() {
    std::array<double, count> numbers{};
    for (double& number : numbers) {
      if (!SkipSeparators()) return std::nullopt;
      qsizetype length = 0;
      while (length < rest_.size() && IsOfNumber(rest_[length], length == 0)) ++length;
      bool good = false;
      number = rest_.left(length).toDouble(&good);
      if (!good) return std::nullopt;
      rest_ = rest_.mid(length);
    }
    return numbers;
  }

  static bool IsOfNumber(QChar c, bool first) {
    return (c >= u'0' && c <= u'9') || c == u'.' || (first && c == u'-');
  }

  QStringView rest_;
  QPainterPath path_;
};

QRectF ViewBox(const QString& text, const QRectF& otherwise) {
  const QStringList numbers = text.split(u' ', Qt::SkipEmptyParts);
  if (numbers.size() != 4) return otherwise;
  const QRectF box(numbers[0].toDouble(), numbers[1].toDouble(), numbers[2].toDouble(), numbers[3].toDouble());
  return box.isValid() ? box : otherwise;
}

}  // namespace

Drawing ReadSvg(const QByteArray& svg) {
  Drawing drawing;
  QXmlStreamReader reader(svg);
  while (!reader.atEnd()) {
    if (reader.readNext() != QXmlStreamReader::StartElement) continue;
    const QXmlStreamAttributes attributes = reader.attributes();
    if (reader.name() == u"svg") {
      drawing.viewBox = ViewBox(attributes.value(QLatin1String("viewBox")).toString(), drawing.viewBox);
    } else if (reader.name() == u"path") {
      const QString data = attributes.value(QLatin1String("d")).toString();
      const QColor color(attributes.value(QLatin1String("fill")).toString());
      if (auto path = PathReader(data).Path(); path && color.isValid()) drawing.shapes.push_back({*path, color});
    }
  }
  return drawing;
}

}  // namespace skinkit
