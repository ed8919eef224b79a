// What every window says when it saves a file.
#pragma once

#include <filesystem>
#include <optional>
#include <string>
#include <string_view>

#include "controls/desktop.h"

namespace tarnwick {

// Asks the user where to save a file, `suggestion` being a name for it, until he names a file that
// is not there yet or agrees to replace the one that is. Nothing if he gives up.
std::optional<std::filesystem::path> AskWhereToSave(Desktop& desktop, const std::string& title,
                                                    const std::string& suggestion);

// A title as the name of a file: colons and the like cannot stand in one everywhere.
std::string FileNameOf(std::string_view title);

// A path as the user reads it, in UTF-8.
std::string PathText(const std::filesystem::path& path);

// What the user is told when saving `what`, "the log", has failed, and how.
std::string SaveErrorText(const std::string& what, const std::string& error);

// Tells it.
void ReportSaveError(Desktop& desktop, const std::string& what, const std::string& title,
                     const std::string& error);

}  // namespace tarnwick
