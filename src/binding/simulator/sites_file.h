#pragma once
// Where the simulated server takes its sites from: a file, or those that are built in.

#include "binding/simulator/server_plan.h"

#include <span>
#include <string>

namespace quor {

class Files;
class MessageBoxes;

// The first of these files that is there tells the sites. If none is there, or that one tells none (which a message
// says, with the line), they are the built-in ones.
ServerPlan LoadSites(Files& files, MessageBoxes& boxes, std::span<const std::string> paths);

ServerPlan BuiltInSites();

} // namespace quor
