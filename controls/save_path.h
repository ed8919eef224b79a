// What every window says when it saves a file.
#pragma once

#include <filesystem>
#include <optional>
#include <string>

#include "controls/desktop.h"

namespace tarnwick {

// Asks the user where to save a file, `suggestion` being a name for it, until he names a file that
// is not there yet or agrees to replace the one that is. Nothing if he gives up.
std::optional<std::filesystem::path> AskWhereToSave(Desktop& desktop, const std::string& title,
                                                    const std::string& suggestion);

// Tells the user that saving `what`, "the log", has failed, and how.
void ReportSaveError(Desktop& desktop, const std::string& what, const std::string& title,
                     const std::string& error);

}  // namespace tarnwick
