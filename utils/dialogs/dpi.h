#pragma once

#include <QSize>
#include <QWidget>

/// The DPI of the primary monitor in five steps, and the sizes of dialogs that follow from it. GUI thread only.
class Dpi : public QWidget {
 public:
  Dpi(const Dpi&) = delete;
  Dpi& operator=(const Dpi&) = delete;
  ~Dpi() override;

  /// The process's only one, created on first use as a hidden child of the application's first top-level widget; null
  /// while there is no top-level widget. The monitor is queried only once. Valid until `Release` or until its parent
  /// is destroyed; the next call creates it again.
  static const Dpi* Instance();
  /// Takes the instance out of its parent, which may be a window of the host and outlive this library.
  static void Release();

  /// What the system says about the primary monitor, or else Qt about the screen.
  static QSize Detected();
  /// 96, 120, 144, 168 or 192: the step that `dpi` lies on.
  static int Step(int dpi);
  /// A size made for 96 DPI on `dpi`, as far as the screen allows.
  static QSize Scaled(QSize size, int dpi, QSize screen);
  /// The size on the first screen.
  QSize Scaled(QSize size) const;

 protected:
  int metric(PaintDeviceMetric metric) const override;

 private:
  Dpi(QWidget* parent, QSize dpi);

  static inline Dpi* instance_ = nullptr;
  int horizontal_;
  int vertical_;
};
