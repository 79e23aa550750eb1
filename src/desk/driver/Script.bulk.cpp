#include "desk/driver/Script.h"

#include <algorithm>

#include "desk/driver/TrialProcess.h"
#include "desk/screens/AccountTool.h"
#include "desk/screens/BulkTrial.h"
#include "desk/screens/frmAccount.h"

namespace quillon {

namespace {

constexpr std::chrono::seconds kLookEvery(2);

/// The copies, and the trial, are asked for as long as it lives.
class Copying {
 public:
  Copying(DeskSession& session, decltype(DeskSession::RunTrial) trial) : session_(session) {
    session_.CopiesBulkWork = true;
    session_.AsksAboutTrial = false;
    session_.RunTrial = std::move(trial);
  }
  Copying(const Copying&) = delete;
  Copying& operator=(const Copying&) = delete;
  ~Copying() {
    session_.CopiesBulkWork = false;
    session_.RunTrial = nullptr;
  }

 private:
  DeskSession& session_;
};

}  // namespace

/// A line of the statement's Others, or of the desk's menus, as a person opens it: with copies before it.
Json Script::DoBulk(const Json& command) {
  RequireFirm();
  const std::string key = command.at("key").get<std::string>();
  Json tried = Json::array();
  decltype(DeskSession::RunTrial) trial;
  if (command.value("trial", false)) {
    trial = [&](const std::string& folder, const std::string& form, std::int64_t account) {
      tried = TrialProcess::Run({folder, desk_.Session().UserToOpenWith(), desk_.Session().Year().StartYear(),
                                 form, account, runtime_.InOutput("trial")},
                                command.value("script", Json::array()));
    };
  }
  const Copying copying(desk_.Session(), std::move(trial));
  const std::vector<AccountTool> tools = AccountTools();
  const auto tool =
      std::find_if(tools.begin(), tools.end(), [&](const AccountTool& known) { return known.Key == key; });
  Json answer;
  if (tool == tools.end()) {
    answer = DoMenuLine(command);
  } else {
    const auto statement = std::dynamic_pointer_cast<frmAccount>(runtime_.ActiveForm());
    if (!statement) throw Refused("No statement of account is on top");
    answer = Act([&] { tool->Open(*statement); });
  }
  if (command.value("trial", false)) answer["trial"] = tried;
  return answer;
}

void Script::Try(const std::string& form, std::int64_t account) {
  runtime_.Act([&] { CarryOutTrial(form, account); });
}

Json Script::DoGoBack(const Json& command) {
  RequireFirm();
  if (depth_ > 1) throw Refused("A form waits for its answer");
  return GoBack(command.at("run").get<int>());
}

Json Script::GoBack(int run) {
  const auto ignore = [this] { runtime_.Ignore(desk_.App().MainWindow().MainForm().get()); };
  try {
    desk_.GoBack(run);
  } catch (...) {
    if (desk_.HasFirm()) ignore();
    throw;
  }
  ignore();
  return {{"gone_back", run}};
}

void Script::LeaveWhereAsked() {
  const auto now = std::chrono::steady_clock::now();
  if (depth_ > 1 || !desk_.HasFirm() || now - looked_ < kLookEvery) return;
  looked_ = now;
  const std::string words = desk_.WhoAsksToLeave();
  if (words.empty()) return;
  desk_.CloseFirm();
  throw HostError("The firm was closed, because all were asked to leave it: " + words);
}

}  // namespace quillon
