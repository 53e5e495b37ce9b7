#pragma once

#include <QObject>
#include <QString>
#include <optional>

namespace orvik::utils {

/// In bytes. An icon takes a few kilobytes, but a style sheet may name any file.
inline constexpr qint64 kLargestIcon = 1048576;

/// `svg` with the colour of its first fill attribute replaced by `color` wherever its text occurs; nothing when `svg`
/// has no such colour.
std::optional<QString> RecoloredSvg(QString svg, const QString& color);

/// The base name for a recoloured copy of the icon in a style sheet's `value`: "icons_close" for
/// `url(":/icons/close.svg")`.
QString IconBaseName(const QString& value);

/// Writes a copy of the icon at `path` in `color` into `folder`, creating the folder when it is missing, and returns
/// the style sheet value that names the copy. Returns nothing, and the original is to be used, when the icon cannot
/// be read, is larger than `kLargestIcon` or has no colour to replace, or when the copy cannot be written. The file
/// is deleted with `owner`.
std::optional<QString> RecoloredIcon(const QString& value, const QString& path, const QString& color,
                                     const QString& folder, QObject& owner);

}  // namespace orvik::utils
