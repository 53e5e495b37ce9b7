#pragma once

// Machine descriptions: JSON documents as `machines/machine.schema.json`
// defines them.

#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <variant>

#include "simulation/json/node.h"
#include "simulation/machine/machine.h"

namespace orvik::simulation {

/// The machine that a document describes; nothing, after a complaint, when it
/// is not one or is larger than 1 MiB.
std::optional<MachineDescription> ParseMachine(std::string_view text, Complaint& complaint);

/// The machine that the file at `path` (UTF-8) describes, or a one-line error:
/// file, place in the document, what was expected there and what was found.
std::variant<std::shared_ptr<Machine>, std::string> LoadMachine(const std::string& path);

}  // namespace orvik::simulation
