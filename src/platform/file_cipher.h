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

#include <filesystem>
#include <string_view>

namespace courtmere {

// Answers true when the file was transformed and written to `out`
// (`in` and `out` may be the same path).
bool CipherFile(const std::filesystem::path& in, const std::filesystem::path& out,
                std::string_view passphrase);

// Whether the file starts as an enciphered file does.
bool IsEnciphered(const std::filesystem::path& file);

}  // namespace courtmere
