#include "platform/file_cipher.h"

#include <sodium.h>
#include <sys/stat.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <cstdio>
#include <cstring>
#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace courtmere {
namespace {

constexpr std::string_view kMagic = "CMRSAVE1";
constexpr std::string_view kSqliteHeader{"SQLite format 3\0", 16};
constexpr size_t kChunk = 64 * 1024;
constexpr size_t kSaltBytes = crypto_pwhash_SALTBYTES;
constexpr size_t kHeaderBytes = crypto_secretstream_xchacha20poly1305_HEADERBYTES;
constexpr size_t kABytes = crypto_secretstream_xchacha20poly1305_ABYTES;

using Key = std::array<unsigned char, crypto_secretstream_xchacha20poly1305_KEYBYTES>;

struct FileCloser {
  void operator()(FILE* f) const { std::fclose(f); }
};
using File = std::unique_ptr<FILE, FileCloser>;

File OpenFile(const std::filesystem::path& path, const char* mode) {
  return File(std::fopen(path.c_str(), mode));
}

void AppendBytes(std::vector<unsigned char>& out, const void* data, size_t size) {
  const size_t at = out.size();
  out.resize(at + size);
  std::memcpy(out.data() + at, data, size);
}

bool StartsWith(const std::vector<unsigned char>& bytes, std::string_view prefix) {
  return bytes.size() >= prefix.size() &&
         std::memcmp(bytes.data(), prefix.data(), prefix.size()) == 0;
}

CipherResult Fail(CipherOutcome outcome, int error = 0) {
  return CipherResult{outcome, error};
}

// Reads a file the cipher may take. Its size and first bytes are looked at
// before the rest is read: a file too large to be a store, or that starts
// neither as a store nor as an enciphered file, is refused at once.
CipherResult ReadCandidate(const std::filesystem::path& path, std::vector<unsigned char>& bytes) {
  File f = OpenFile(path, "rb");
  if (!f) return Fail(CipherOutcome::kCannotRead, errno);
  struct stat info {};
  if (fstat(fileno(f.get()), &info) != 0) return Fail(CipherOutcome::kCannotRead, errno);
  const auto size = static_cast<uintmax_t>(info.st_size);
  if (size > kMaxCipherBytes) return Fail(CipherOutcome::kRefused);
  bytes.clear();
  bytes.resize(kSqliteHeader.size());
  const size_t head = std::fread(bytes.data(), 1, bytes.size(), f.get());
  bytes.resize(head);
  if (!StartsWith(bytes, kMagic) && !StartsWith(bytes, kSqliteHeader)) {
    return std::ferror(f.get()) ? Fail(CipherOutcome::kCannotRead, EIO)
                                : Fail(CipherOutcome::kRefused);
  }
  bytes.reserve(size);
  unsigned char buffer[kChunk];
  size_t n;
  while ((n = std::fread(buffer, 1, sizeof buffer, f.get())) > 0) {
    if (bytes.size() + n > kMaxCipherBytes) return Fail(CipherOutcome::kRefused);
    AppendBytes(bytes, buffer, n);
  }
  if (std::ferror(f.get())) return Fail(CipherOutcome::kCannotRead, EIO);
  return {};
}

// The last key derived, with what it was derived from. Argon2id is slow on
// purpose (a good part of a second), and a load deciphers the same save twice:
// once to check it, once to load it.
struct DerivedKey {
  std::string passphrase;
  std::array<unsigned char, kSaltBytes> salt{};
  Key key{};
  bool valid = false;
};

DerivedKey& LastKey() {
  static DerivedKey last;
  return last;
}

std::optional<Key> DeriveKey(std::string_view passphrase, const unsigned char* salt) {
  DerivedKey& last = LastKey();
  if (last.valid && last.passphrase == passphrase &&
      std::memcmp(last.salt.data(), salt, kSaltBytes) == 0) {
    return last.key;
  }
  Key key;
  if (crypto_pwhash(key.data(), key.size(), passphrase.data(), passphrase.size(), salt,
                    crypto_pwhash_OPSLIMIT_INTERACTIVE, crypto_pwhash_MEMLIMIT_INTERACTIVE,
                    crypto_pwhash_ALG_ARGON2ID13) != 0) {
    return std::nullopt;
  }
  last.passphrase = passphrase;
  std::memcpy(last.salt.data(), salt, kSaltBytes);
  last.key = key;
  last.valid = true;
  return key;
}

std::optional<std::vector<unsigned char>> Encipher(const std::vector<unsigned char>& plain,
                                                   std::string_view passphrase) {
  std::vector<unsigned char> out;
  out.reserve(kMagic.size() + kSaltBytes + kHeaderBytes + plain.size() +
              (plain.size() / kChunk + 1) * kABytes);
  AppendBytes(out, kMagic.data(), kMagic.size());
  unsigned char salt[kSaltBytes];
  randombytes_buf(salt, sizeof salt);
  AppendBytes(out, salt, sizeof salt);
  std::optional<Key> key = DeriveKey(passphrase, salt);
  if (!key) return std::nullopt;

  crypto_secretstream_xchacha20poly1305_state state;
  unsigned char header[kHeaderBytes];
  crypto_secretstream_xchacha20poly1305_init_push(&state, header, key->data());
  AppendBytes(out, header, sizeof header);

  size_t pos = 0;
  do {
    const size_t len = std::min(kChunk, plain.size() - pos);
    const bool last = pos + len == plain.size();
    const size_t at = out.size();
    out.resize(at + len + kABytes);
    crypto_secretstream_xchacha20poly1305_push(
        &state, out.data() + at, nullptr, plain.data() + pos, len, nullptr, 0,
        last ? crypto_secretstream_xchacha20poly1305_TAG_FINAL : 0);
    pos += len;
  } while (pos < plain.size());
  sodium_memzero(key->data(), key->size());
  return out;
}

std::optional<std::vector<unsigned char>> Decipher(const std::vector<unsigned char>& sealed,
                                                   std::string_view passphrase) {
  const size_t prefix = kMagic.size() + kSaltBytes + kHeaderBytes;
  if (sealed.size() < prefix + kABytes) return std::nullopt;
  std::optional<Key> key = DeriveKey(passphrase, sealed.data() + kMagic.size());
  if (!key) return std::nullopt;

  crypto_secretstream_xchacha20poly1305_state state;
  const unsigned char* header = sealed.data() + kMagic.size() + kSaltBytes;
  if (crypto_secretstream_xchacha20poly1305_init_pull(&state, header, key->data()) != 0) {
    return std::nullopt;
  }
  sodium_memzero(key->data(), key->size());

  std::vector<unsigned char> plain;
  size_t pos = prefix;
  bool final = false;
  while (pos < sealed.size()) {
    if (final) return std::nullopt;  // bytes after the final chunk
    const size_t len = std::min(kChunk + kABytes, sealed.size() - pos);
    if (len < kABytes) return std::nullopt;
    const size_t at = plain.size();
    plain.resize(at + len - kABytes);
    unsigned long long written = 0;
    unsigned char tag = 0;
    if (crypto_secretstream_xchacha20poly1305_pull(&state, plain.data() + at, &written, &tag,
                                                   sealed.data() + pos, len, nullptr, 0) != 0) {
      return std::nullopt;
    }
    plain.resize(at + written);
    final = tag == crypto_secretstream_xchacha20poly1305_TAG_FINAL;
    pos += len;
  }
  if (!final) return std::nullopt;  // truncated at a chunk boundary
  return plain;
}

// Writes beside `out`, syncs and renames over it; on failure the errno of
// the write that failed, and `out` as it was.
CipherResult WriteAtomically(const std::filesystem::path& out,
                             const std::vector<unsigned char>& bytes) {
  std::filesystem::path temp = out;
  temp += ".cipher-tmp";
  std::error_code ignored;
  {
    File f = OpenFile(temp, "wb");
    if (!f) return Fail(CipherOutcome::kCannotWrite, errno);
    const bool ok = std::fwrite(bytes.data(), 1, bytes.size(), f.get()) == bytes.size() &&
                    std::fflush(f.get()) == 0 && fsync(fileno(f.get())) == 0;
    if (!ok) {
      const int error = errno;
      f.reset();
      std::filesystem::remove(temp, ignored);
      return Fail(CipherOutcome::kCannotWrite, error);
    }
    if (std::fclose(f.release()) != 0) {
      const int error = errno;
      std::filesystem::remove(temp, ignored);
      return Fail(CipherOutcome::kCannotWrite, error);
    }
  }
  std::error_code ec;
  std::filesystem::rename(temp, out, ec);
  if (ec) {
    std::filesystem::remove(temp, ignored);
    return Fail(CipherOutcome::kCannotWrite, ec.value());
  }
  return {};
}

bool SodiumReady() {
  static const bool ready = sodium_init() >= 0;
  return ready;
}

}  // namespace

bool IsEnciphered(const std::filesystem::path& file) {
  File f = OpenFile(file, "rb");
  if (!f) return false;
  char magic[kMagic.size()];
  return std::fread(magic, 1, sizeof magic, f.get()) == sizeof magic &&
         std::memcmp(magic, kMagic.data(), kMagic.size()) == 0;
}

CipherResult TransformFile(const std::filesystem::path& in, const std::filesystem::path& out,
                           std::string_view passphrase) {
  if (!SodiumReady()) return Fail(CipherOutcome::kRefused);
  std::vector<unsigned char> bytes;
  if (CipherResult read = ReadCandidate(in, bytes); !read.Done()) return read;
  std::optional<std::vector<unsigned char>> result;
  if (StartsWith(bytes, kMagic)) {
    result = Decipher(bytes, passphrase);
  } else {
    result = Encipher(bytes, passphrase);
  }
  if (!result) return Fail(CipherOutcome::kRefused);
  return WriteAtomically(out, *result);
}

CipherResult DecipherFile(const std::filesystem::path& in, std::string_view passphrase,
                          std::vector<unsigned char>& plain) {
  if (!SodiumReady()) return Fail(CipherOutcome::kRefused);
  std::vector<unsigned char> bytes;
  if (CipherResult read = ReadCandidate(in, bytes); !read.Done()) return read;
  if (!StartsWith(bytes, kMagic)) return Fail(CipherOutcome::kRefused);
  std::optional<std::vector<unsigned char>> result = Decipher(bytes, passphrase);
  if (!result) return Fail(CipherOutcome::kRefused);
  plain = std::move(*result);
  return {};
}

bool CipherFile(const std::filesystem::path& in, const std::filesystem::path& out,
                std::string_view passphrase) {
  return TransformFile(in, out, passphrase).Done();
}

}  // namespace courtmere
