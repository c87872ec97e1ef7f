// Opening, closing, compacting and recovering the working store file.
#pragma once

#include <filesystem>
#include <string_view>

namespace courtmere {

struct Session;

// The passphrase of the save-file cipher.
inline constexpr std::string_view kSavePassphrase = "tidex47k29m3Q";

// The program's start-up: makes the blank store and its backup when missing,
// then OpenStore(0).
void StartUp(Session& session);

// Opens the working store; with decipher = 1 the file is deciphered in place
// first. A file that can't be deciphered or opened is replaced by the backup.
void OpenStore(Session& session, int decipher);

// Closes the working store; with encipher = 1 the file is enciphered in place
// afterwards ("Error in the encryption" when that fails).
void CloseStore(Session& session, int encipher);

// Compacts the working store in place; the store must be closed.
void CompactStore(Session& session);

}  // namespace courtmere
