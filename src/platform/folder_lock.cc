#include "platform/folder_lock.h"

#include <fcntl.h>
#include <sys/file.h>
#include <unistd.h>

#include <cerrno>
#include <system_error>

namespace courtmere {

FolderBusy::FolderBusy(const std::filesystem::path& root)
    : std::runtime_error(std::string(kFolderBusy) + ": " + root.string()) {}

FolderLock::FolderLock(const std::filesystem::path& root) {
  const std::filesystem::path file = root / "courtmere.lock";
  fd_ = ::open(file.c_str(), O_RDWR | O_CREAT | O_CLOEXEC, 0644);
  // In a folder that can't be written, a lock file left by an earlier run is
  // locked all the same: the program can still show what the store holds.
  if (fd_ < 0 && (errno == EROFS || errno == EACCES))
    fd_ = ::open(file.c_str(), O_RDONLY | O_CLOEXEC);
  if (fd_ < 0) {
    throw std::system_error(errno, std::generic_category(), "cannot open " + file.string());
  }
  int result;
  do {
    result = ::flock(fd_, LOCK_EX | LOCK_NB);
  } while (result != 0 && errno == EINTR);
  if (result != 0) {
    const int error = errno;
    ::close(fd_);
    if (error == EWOULDBLOCK) throw FolderBusy(root);
    throw std::system_error(error, std::generic_category(), "cannot lock " + file.string());
  }
}

FolderLock::~FolderLock() {
  // Closing the descriptor releases the lock.
  ::close(fd_);
}

}  // namespace courtmere
