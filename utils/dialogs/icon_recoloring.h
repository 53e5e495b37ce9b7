#pragma once

#include <QObject>
#include <QString>
#include <optional>

namespace orvik::utils {

/// `svg` with the colour of its first fill attribute replaced by `color` wherever its text occurs; nothing when it
/// has none.
std::optional<QString> RecoloredSvg(QString svg, const QString& color);

/// The name that a recoloured copy of the icon in a style sheet's `value` (`url(":/icons/close.svg")`) gets, without
/// its extension ("icons_close").
QString IconBaseName(const QString& value);

/// Writes a copy of the icon at `path` in `color` into `folder`, which is made when it is missing, and returns the
/// value that names it in a style sheet; nothing when the icon cannot be read or the copy not be written. The file
/// goes with `owner`.
std::optional<QString> RecoloredIcon(const QString& value, const QString& path, const QString& color,
                                     const QString& folder, QObject& owner);

}  // namespace orvik::utils
