// frmScout and frmTrainer: the user's head scout or head trainer and, in hire
// mode, the candidates looking at his school, with their ratings as letters.
#pragma once

#include <string>
#include <vector>

#include "career/staff_market.h"

namespace courtmere {

class Store;

struct PostRow {
  int Id = 0;
  std::vector<std::string> Cells;  // under PostView::Columns
};

struct PostView {
  std::string Caption;  // "<school> Head Scout", "<school> Head Trainer"
  std::vector<std::string> Columns;
  std::vector<PostRow> Staff;
  std::vector<PostRow> Candidates;
};

// The lists' columns for Post::kScout or Post::kTrainer.
std::vector<std::string> PostColumns(Post post);

// For Post::kScout or Post::kTrainer.
PostView LoadPostView(Store& store, Post post, const std::string& school);

}  // namespace courtmere
