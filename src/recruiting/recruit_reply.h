// What an operation of the recruiting screens answers: whether it was done,
// and the message the user is shown (a refusal's text, or the news of what
// was done; empty when the operation has nothing to say).
#pragma once

#include <string>

namespace courtmere {

struct RecruitReply {
  bool Done = false;
  std::string Message;

  static RecruitReply Refused(std::string message) { return {false, std::move(message)}; }
  static RecruitReply Ok(std::string message = {}) { return {true, std::move(message)}; }
};

}  // namespace courtmere
