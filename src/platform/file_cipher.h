// The save-file cipher: one call on a file turns a plain store into an
// enciphered one and an enciphered one back into the plain store.
//
// Enciphered form: the magic "CMRSAVE1", a 16-byte salt, then libsodium's
// secretstream (XChaCha20-Poly1305) over the plain bytes in 64 KiB chunks,
// the last chunk tagged final. The key is derived from the passphrase and the
// salt with Argon2id. Because the stream is authenticated, a truncated file,
// a flipped byte or another passphrase is detected and nothing is written.
//
// Design decision: the plain form is always a store (an SQLite database), so
// only a file that starts with the SQLite header is enciphered; a file that
// is neither a store nor enciphered (random bytes, a text file) is refused.
//
// The result is written to a temporary file beside `out`, flushed to disk and
// renamed over `out`, so a crash or a full disk never leaves half a file;
// on failure `out` is left as it was.
#pragma once

#include <cstdint>
#include <filesystem>
#include <string_view>
#include <vector>

namespace courtmere {

// The largest file the cipher takes. A dynasty's store stays far below it;
// a larger file is refused from its size, before a byte of it is read.
inline constexpr uintmax_t kMaxCipherBytes = uintmax_t{1} << 30;

enum class CipherOutcome {
  kDone,
  kRefused,      // not a store or an enciphered file, too large, or it won't decipher
  kCannotRead,   // the in-file can't be read (missing, not allowed)
  kCannotWrite,  // the out-file can't be written (a full disk, a read-only folder)
};

struct CipherResult {
  CipherOutcome outcome = CipherOutcome::kDone;
  int error = 0;  // the errno of a failed read or write
  bool Done() const { return outcome == CipherOutcome::kDone; }
};

// Transforms `in` and writes the result to `out` (`in` and `out` may be the
// same path), telling a file the cipher refuses from a disk that fails.
CipherResult TransformFile(const std::filesystem::path& in, const std::filesystem::path& out,
                           std::string_view passphrase);

// Deciphers an enciphered file into `plain`, writing nothing to disk.
CipherResult DecipherFile(const std::filesystem::path& in, std::string_view passphrase,
                          std::vector<unsigned char>& plain);

// Answers true when the file was transformed and written to `out`.
bool CipherFile(const std::filesystem::path& in, const std::filesystem::path& out,
                std::string_view passphrase);

// Whether the file starts as an enciphered file does.
bool IsEnciphered(const std::filesystem::path& file);

}  // namespace courtmere
