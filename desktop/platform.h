// What differs from one system to the next.
#pragma once

#include <filesystem>
#include <string>

namespace tarnwick::platform {

// The folder for the data that programs keep for the user.
std::filesystem::path UserDataFolder();

// Whether screen readers are handed values that are texts; else such a value has to be part of the
// description.
bool ReadersKnowValues();

// Whether the question for a printer offers to print to a file too, and so serves without one.
bool PrintsToFiles();

// Shows a page in the user's browser.
void OpenWebPage(const std::string& address);

}  // namespace tarnwick::platform
