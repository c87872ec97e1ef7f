// How the recruiting screens run an operation on a recruit: in one
// transaction, kept only when done; its message shown in a message box; and
// every open screen brought in line with the store after a change.
#pragma once

#include <functional>

#include "recruiting/recruit_reply.h"

namespace courtmere {
struct Session;
}

namespace courtmere::app {

class ScreenHost;

bool RunRecruitOperation(Session& session, ScreenHost& host,
                         const std::function<RecruitReply(Session&)>& operation);

}  // namespace courtmere::app
