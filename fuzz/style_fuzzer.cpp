// The rewriting of style sheets and icons into high contrast, over any text.

#include "fuzz/input.h"
#include "utils/dialogs/high_contrast_style.h"
#include "utils/dialogs/icon_recoloring.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using namespace orvik;
  fuzz::Input input(data, size);
  QByteArray bytes;
  for (const std::uint8_t byte : input.Bytes(size)) bytes.append(static_cast<char>(byte));
  const QString text = QString::fromUtf8(bytes);

  const QString color = QStringLiteral("#102030");
  const utils::HighContrastColors colors{color, color, color, color, color, color, color, color};
  const utils::IconReplacement replaceIcon = [&](const QString& value, const QString& path) {
    fuzz::Demand(!path.isEmpty());
    const QString name = utils::IconBaseName(value);
    fuzz::Demand(!name.isEmpty() && !name.contains(u'/') && !name.contains(u'\\'));
    return utils::RecoloredSvg(path, color);
  };
  const QString rewritten = utils::HighContrastStyleSheet(text, colors, replaceIcon);
  fuzz::Demand(rewritten.count(u'{') == rewritten.count(u'}'));
  utils::HighContrastStyleSheet(rewritten, colors, replaceIcon);
  static_cast<void>(utils::RecoloredSvg(text, color));
  return 0;
}
