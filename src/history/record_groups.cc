#include "history/record_groups.h"

namespace courtmere {

namespace {

constexpr const char* kShots = "AND s.Shots > 74 ";
constexpr const char* kFreeThrows = "AND s.FreeThrows > 34 ";
constexpr const char* kThrees = "AND s.Threes > 34 ";

constexpr RecordGroup Average(const char* stem, const char* source) {
  return {stem, false, source, "", stem, false, true};
}
constexpr RecordGroup Total(const char* stem, bool career, const char* source, const char* label) {
  return {stem, career, source, "", label, false, false};
}
constexpr RecordGroup Percent(const char* stem, bool career, const char* source,
                              const char* qualifier, const char* label) {
  return {stem, career, source, qualifier, label, true, false};
}

constexpr std::array<RecordGroup, kRecordGroups> kGroups = {
    Average("PPG", "s.PPG"),
    Average("APG", "s.APG"),
    Average("RPG", "s.RPG"),
    Average("SPG", "s.SPG"),
    Average("BPG", "s.BPG"),
    Percent("ThreePercent", false, "s.ThreePercent", kThrees, "Three Percent"),
    Percent("ThreePercent", true, "s.ThreePercent", kThrees, "Three Percent"),
    Total("Points", false, "s.Points", "Points"),
    Total("Points", true, "s.Points", "Points"),
    Total("Assists", false, "s.Assists", "Assists"),
    Total("Assists", true, "s.Assists", "Assists"),
    Total("Steals", false, "s.Steals", "Steals"),
    Total("Steals", true, "s.Steals", "Steals"),
    Total("Rebounds", false, "(s.OffRebounds + s.DefRebounds)", "Rebounds"),
    Total("Rebounds", true, "(s.OffRebounds + s.DefRebounds)", "Rebounds"),
    Total("ShotBlocks", false, "s.ShotBlocks", "ShotBlocks"),
    Total("ShotBlocks", true, "s.ShotBlocks", "ShotBlocks"),
    Total("ThreesMade", false, "s.ThreesMade", "Threes Made"),
    Total("ThreesMade", true, "s.ThreesMade", "Threes Made"),
    Total("FGMade", false, "s.ShotsMade", "Field Goals Made"),
    Total("FGMade", true, "s.ShotsMade", "Field Goals Made"),
    Percent("FGPercent", false, "s.FGPercent", kShots, "Field Goal Percent"),
    Percent("FGPercent", true, "s.FGPercent", kShots, "Field Goal Percent"),
    Percent("FTPercent", false, "s.FTPercent", kFreeThrows, "Free Throw Percent"),
    Percent("FTPercent", true, "s.FTPercent", kFreeThrows, "Free Throw Percent"),
};

}  // namespace

const std::array<RecordGroup, kRecordGroups>& RecordGroups() {
  return kGroups;
}

std::string GroupColumn(const RecordGroup& group) {
  return std::string(group.stem) + (group.career ? "Career" : "Season");
}

}  // namespace courtmere
