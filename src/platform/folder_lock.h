// One running Courtmere per program folder.
//
// The program holds an exclusive advisory lock on "courtmere.lock" in the
// program folder for as long as it runs. A second program (the desktop
// window or the command-line tool) that finds the lock taken is refused at
// once, before it reads or writes any file of the folder: two programs on one
// store would each take the other's busy store for a damaged one, or write
// their work into a file the other has just replaced.
//
// The lock is the kernel's (flock): it goes with the process, so a program
// that is killed leaves no stale lock behind.
#pragma once

#include <filesystem>
#include <stdexcept>
#include <string>

namespace courtmere {

inline constexpr const char* kFolderBusy = "Another Courtmere is using this program folder";

// Thrown when another program holds the folder; what() is the program's
// message, naming the folder.
class FolderBusy : public std::runtime_error {
 public:
  explicit FolderBusy(const std::filesystem::path& root);
};

class FolderLock {
 public:
  // Takes the folder's lock, or throws FolderBusy when another program holds
  // it (and std::system_error when the lock file can't be made).
  explicit FolderLock(const std::filesystem::path& root);
  ~FolderLock();
  FolderLock(const FolderLock&) = delete;
  FolderLock& operator=(const FolderLock&) = delete;

 private:
  int fd_;
};

}  // namespace courtmere
