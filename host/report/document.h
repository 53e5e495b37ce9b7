#pragma once

#include <QByteArray>
#include <QJsonObject>
#include <QJsonValue>
#include <QString>

#include "core/module.h"
#include "host/command/command.h"

namespace orvik::host {

/// Who answered: the members of "module" in the JSON document.
QJsonObject ModuleJson(const core::Module& module);

/// The one JSON document of a call. `command` is empty when none was understood; `module` is null without one.
QByteArray JsonDocument(const QString& command, const QJsonValue& module, const CommandResult& result);

}  // namespace orvik::host
