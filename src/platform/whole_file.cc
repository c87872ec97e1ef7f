#include "platform/whole_file.h"

#include <fcntl.h>
#include <unistd.h>

#include <cerrno>
#include <system_error>

namespace courtmere {

namespace {

[[noreturn]] void Fail(const std::filesystem::path& file) {
  throw std::system_error(errno, std::generic_category(), "cannot write " + file.string());
}

}  // namespace

void WriteWholeFile(const std::filesystem::path& file, std::string_view text) {
  const int fd = ::open(file.c_str(), O_WRONLY | O_CREAT | O_CLOEXEC, 0644);
  if (fd < 0) Fail(file);
  const char* data = text.data();
  size_t left = text.size();
  while (left > 0) {
    const ssize_t n = ::write(fd, data, left);
    if (n < 0 && errno == EINTR) continue;
    if (n <= 0) {
      const int error = errno;
      ::close(fd);
      errno = error;
      Fail(file);
    }
    data += n;
    left -= static_cast<size_t>(n);
  }
  if (::ftruncate(fd, static_cast<off_t>(text.size())) != 0 || ::close(fd) != 0) Fail(file);
}

}  // namespace courtmere
