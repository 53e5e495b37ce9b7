#pragma once

// Machine descriptions: JSON documents as `machines/machine.schema.json` defines them.

#include <memory>
#include <string>
#include <variant>

#include "simulation/json/node.h"
#include "simulation/machine/machine.h"

namespace orvik::simulation {

/// Reads the root of a document; whether it could is up to the node's `Complaint`.
MachineDescription ReadMachine(const Node& node);

/// The machine that the file at `path` (UTF-8) describes, or one line that tells file, place in the document, what
/// was expected there and what was found.
std::variant<std::shared_ptr<Machine>, std::string> LoadMachine(const std::string& path);

}  // namespace orvik::simulation
