// The rating index screen's data (frmCRI): every school of CRIRank in the
// order of the index, with its record and its schedule's strength.
#pragma once

#include <string>
#include <vector>

namespace courtmere {

class Store;

struct CriListRow {
  int Rank = 0;
  std::string Team;
  std::string Record;
  double CRIValue = 0;
  double WinPer = 0;
  double SchedStrength = 0;
  int SchedRank = 0;
  bool User = false;  // the user's school
};

struct CriList {
  std::string Title = "College Rating Index";
  std::vector<CriListRow> Rows;
};

// Empty rows while the index has not been released.
CriList ShowCRI(Store& store, const std::string& userSchool);

// An index figure as the screen writes it: three decimals, "0.563", enough
// to tell the schools of a page apart.
std::string FormatIndex(double value);

}  // namespace courtmere
