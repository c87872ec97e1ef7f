#include "app/recruit_operation.h"

#include "app/screen.h"
#include "store/session.h"

namespace courtmere::app {

bool RunRecruitOperation(Session& session, ScreenHost& host,
                         const std::function<RecruitReply(Session&)>& operation) {
  RecruitReply reply;
  {
    Store::Transaction tx(session.Db());
    reply = operation(session);
    if (reply.Done) tx.Commit();
  }
  if (!reply.Message.empty()) session.ui.Message(reply.Message);
  if (reply.Done) host.StoreChanged();
  return reply.Done;
}

}  // namespace courtmere::app
