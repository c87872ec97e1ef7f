// The conference choice of a new dynasty (frmLeagueSelect, "CONFERENCE
// SETUP"): the user puts three low conferences on his list, looking at their
// schools, and continues to add them and their schools to the dynasty.
//
// The list of three lives in this object; the store changes only when
// Continue succeeds. Each operation asks and tells through the session's Ui.
#pragma once

#include <array>
#include <string>
#include <vector>

#include "screens/school_snapshot.h"

namespace courtmere {

struct Session;

class ConferenceChoice {
 public:
  static constexpr const char* kTitle = "CONFERENCE SETUP";

  explicit ConferenceChoice(Session& session);

  // The low conferences, by name.
  const std::vector<std::string>& Conferences() const { return conferences_; }
  // The schools of one, by name, and the snapshot of one school.
  std::vector<std::string> Schools(const std::string& conference) const;
  SchoolSnapshot Snapshot(const std::string& school) const;

  // The three slots; an empty text is a free slot.
  const std::array<std::string, 3>& Chosen() const { return chosen_; }

  // Puts the conference in the first free slot after the user agrees.
  bool Add(const std::string& conference);
  // Frees a slot (0 to 2) after the user agrees.
  bool Remove(int slot);
  // With three chosen and the user's agreement, adds the conferences as
  // League rows 7, 8 and 9 and their schools as Team rows, in one
  // transaction. True when the dynasty may go on to the team choice.
  bool Continue();

 private:
  bool Listed(const std::string& conference) const;
  bool Chosen(const std::string& conference) const;

  Session& session_;
  std::vector<std::string> conferences_;
  std::array<std::string, 3> chosen_;
};

}  // namespace courtmere
