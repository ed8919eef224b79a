// Folders that the program makes for a moment beside the user's files. A folder, unlike a file, can
// be made by the standard library such that it was not there before, on every system.
#pragma once

#include <chrono>
#include <filesystem>
#include <string>

namespace tarnwick {

// A folder of our own. It goes with its scope, and so does the file in it.
class OwnFolder {
 public:
  // Makes one in `parent`, under a name that did not exist: `prefix` and 16 hexadecimal digits.
  // Throws std::system_error if none can be made.
  OwnFolder(const std::filesystem::path& parent, std::string prefix);
  ~OwnFolder();
  OwnFolder(const OwnFolder&) = delete;
  OwnFolder& operator=(const OwnFolder&) = delete;

  // The one file that may lie in it.
  std::filesystem::path File() const { return FileIn(path_); }

  // Removes the other folders of that prefix that have been left behind: those made more than
  // `age` before this one, or after it, by the file system's own clock. Returns how many others
  // there still are.
  int RemoveOthers(std::chrono::seconds age) const;

 private:
  static std::filesystem::path FileIn(const std::filesystem::path& folder);
  static void Remove(const std::filesystem::path& folder);
  bool IsOther(const std::filesystem::directory_entry& entry) const;

  std::string prefix_;
  std::filesystem::path path_;
};

}  // namespace tarnwick
