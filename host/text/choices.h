#pragma once

#include <QString>
#include <QStringList>

namespace orvik::host {

/// One line: what is wrong with the user's choice, then what there is to choose from.
QString WithChoices(const QString& problem, const QStringList& available);

}  // namespace orvik::host
