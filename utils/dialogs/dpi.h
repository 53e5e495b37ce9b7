#pragma once

#include <QSize>
#include <QWidget>

/// The primary monitor's DPI, rounded to one of five steps, and the scaling of dialog sizes with it. GUI thread only.
class Dpi : public QWidget {
 public:
  Dpi(const Dpi&) = delete;
  Dpi& operator=(const Dpi&) = delete;
  ~Dpi() override;

  /// The process's only one, created on first use as a hidden child of the application's first top-level widget; null
  /// while there is no top-level widget. The monitor is queried only once. Valid until `Release` or until its parent
  /// is destroyed; the next call creates it again.
  static const Dpi* Instance();
  /// Destroys the instance, because its parent may be a window of the host that outlives this library.
  static void Release();

  /// Horizontal and vertical DPI that the system reports for the primary monitor, or else Qt for the primary screen.
  static QSize Detected();
  /// The highest step that is not above `dpi`; the lowest step for smaller values.
  static int Step(int dpi);
  /// Scales a size in unscaled pixels to `dpi`, within the limits of a screen of size `screen`.
  static QSize Scaled(QSize size, int dpi, QSize screen);
  /// Scales a size to the instance's DPI on the first screen.
  QSize Scaled(QSize size) const;

 protected:
  int metric(PaintDeviceMetric metric) const override;

 private:
  Dpi(QWidget* parent, QSize dpi);

  static inline Dpi* instance_ = nullptr;
  int horizontal_;
  [[maybe_unused]] int vertical_;  // the class has both; sizes follow the horizontal one
};
