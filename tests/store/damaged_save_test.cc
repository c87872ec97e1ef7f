// A thousand damaged variants of a real save (bytes flipped, cut short,
// lengthened, other programs' files, an empty file) are all refused with the
// program's message, each left as it was on disk, and the open dynasty never
// changes.
#include <gtest/gtest.h>

#include <random>

#include "people/grade_all_players.h"
#include "platform/file_cipher.h"
#include "small_dynasty.h"
#include "store/blank_store.h"
#include "store/saved_games.h"
#include "store/store_files.h"

namespace courtmere {
namespace {

using testing::ReadBytes;
using testing::SmallDynasty;
using testing::WriteBytes;

struct Variant {
  std::string kind;
  std::string bytes;
};

// The enciphered form: magic (8), salt (16), stream header (24), then chunks
// of 64 KiB and their 17-byte tags.
constexpr size_t kSaltAt = 8;
constexpr size_t kStreamAt = 24;
constexpr size_t kFirstChunkAt = 48;
constexpr size_t kSealedChunk = 64 * 1024 + 17;

class DamagedVariants {
 public:
  explicit DamagedVariants(std::string good) : good_(std::move(good)) {}

  // Variants that keep the save's salt come first: they share its derived
  // key, which is slow to derive on purpose.
  std::vector<Variant> Make(SmallDynasty& dynasty) {
    for (size_t at = 0; at < kSaltAt; ++at) Flip("magic flipped", at);
    for (size_t at = kStreamAt; at < kFirstChunkAt; ++at) Flip("stream header flipped", at);
    while (variants_.size() < 600) Flip("byte flipped", Uniform(kFirstChunkAt, good_.size() - 1));
    for (size_t at = kFirstChunkAt; at < good_.size() && variants_.size() < 612;
         at += kSealedChunk) {
      Cut("cut at a chunk's end", at);
    }
    for (size_t at : {size_t{0} + 1, kSaltAt, kStreamAt, kFirstChunkAt + 1, good_.size() - 1}) {
      Cut("cut in the header or the last byte", at);
    }
    while (variants_.size() < 800) Cut("cut short", Uniform(1, good_.size() - 1));
    Add("a second save appended", good_ + good_);
    while (variants_.size() < 950) Add("bytes appended", good_ + Random(Uniform(1, 64)));
    AddForeign(dynasty);
    return std::move(variants_);
  }

 private:
  size_t Uniform(size_t low, size_t high) {
    return std::uniform_int_distribution<size_t>(low, high)(rng_);
  }
  std::string Random(size_t n) {
    std::string bytes(n, '\0');
    for (char& c : bytes) c = static_cast<char>(Uniform(0, 255));
    return bytes;
  }
  void Add(std::string kind, std::string bytes) {
    variants_.push_back({std::move(kind), std::move(bytes)});
  }
  void Flip(const char* kind, size_t at) {
    std::string bytes = good_;
    bytes[at] = static_cast<char>(bytes[at] ^ static_cast<char>(Uniform(1, 255)));
    Add(kind, std::move(bytes));
  }
  void Cut(const char* kind, size_t length) { Add(kind, good_.substr(0, length)); }

  // Other programs' files and stores that are not saves.
  void AddForeign(SmallDynasty& dynasty) {
    const std::filesystem::path work = dynasty.root() / "foreign";
    std::filesystem::create_directories(work);
    Add("an empty file", "");
    Add("a text file", "Dear coach,\nthis is not a saved game.\n");
    Add("a picture", std::string("\x89PNG\r\n\x1a\n", 8) + Random(4000));
    Add("an archive", std::string("PK\x03\x04", 4) + Random(3000));
    while (variants_.size() < 990) Add("random bytes", Random(Uniform(1, 200000)));
    // The slow ones, each with a salt of its own.
    for (size_t at : {kSaltAt, kSaltAt + 15}) Flip("salt flipped", at);
    Add("the magic and noise", "CMRSAVE1" + Random(5000));
    Add("a store's header and noise", std::string("SQLite format 3\0", 16) + Random(8000));
    BuildBlankStore(work / "blank.dat");
    Add("a store in plain form", ReadBytes(work / "blank.dat"));
    {
      Store store(work / "blank.dat");
      store.Exec("DROP TABLE Config");
    }
    ASSERT_TRUE(CipherFile(work / "blank.dat", work / "noconfig.CMR", kSavePassphrase));
    Add("an enciphered store without Config", ReadBytes(work / "noconfig.CMR"));
    WriteBytes(work / "other.CMR", good_);
    ASSERT_TRUE(CipherFile(work / "other.CMR", work / "plain.dat", kSavePassphrase));
    ASSERT_TRUE(CipherFile(work / "plain.dat", work / "other.CMR", "another passphrase"));
    Add("a save under another passphrase", ReadBytes(work / "other.CMR"));
    while (variants_.size() < 1000) Add("random bytes", Random(Uniform(1, 5000)));
  }

  std::string good_;
  std::mt19937_64 rng_{2024};
  std::vector<Variant> variants_;
};

TEST(DamagedSaveTest, AThousandDamagedSavesAreRefusedAndTheDynastyStays) {
  SmallDynasty dynasty;
  Session& session = dynasty.session();
  const std::filesystem::path good = dynasty.root() / "good.CMR";
  ASSERT_TRUE(SaveGameFile(session, good));
  const std::vector<Variant> variants = DamagedVariants(ReadBytes(good)).Make(dynasty);
  ASSERT_EQ(variants.size(), 1000u);

  dynasty.store().Exec("UPDATE HeadCoach SET Name = 'Changed Since The Save'");
  const std::string before = dynasty.Dump();
  const std::filesystem::path candidate = dynasty.root() / "candidate.CMR";
  for (size_t i = 0; i < variants.size(); ++i) {
    const Variant& v = variants[i];
    WriteBytes(candidate, v.bytes);
    const size_t shown = dynasty.ui().Messages().size();
    ASSERT_EQ(LoadGameFile(session, candidate, GradeAllPlayers), LoadOutcome::kRefused)
        << i << ": " << v.kind;
    ASSERT_EQ(dynasty.ui().Messages().size(), shown + 1) << i << ": " << v.kind;
    EXPECT_EQ(dynasty.ui().Messages().back(), kNotASaveGame) << i << ": " << v.kind;
    EXPECT_EQ(ReadBytes(candidate), v.bytes) << i << ": " << v.kind;
    ASSERT_TRUE(session.StoreOpen());
  }
  EXPECT_EQ(dynasty.Dump(), before);
  EXPECT_FALSE(std::filesystem::exists(dynasty.root() / "mereballCheck.dat"));
  EXPECT_FALSE(std::filesystem::exists(dynasty.root() / "mereballLoad.dat"));

  // The good save itself still loads.
  EXPECT_EQ(LoadGameFile(session, good, GradeAllPlayers), LoadOutcome::kLoaded);
  EXPECT_NE(dynasty.Dump(), before);
}

}  // namespace
}  // namespace courtmere
