#include "desk/screens/BulkTrial.h"

#include "desk/safety/TrialFirm.h"
#include "desk/screens/DialogChoices.h"
#include "desk/screens/frmTrial.h"
#include "desk/services/DeskSession.h"
#include "desk/services/MessageLog.h"
#include "host/forms/BusyJob.h"
#include "host/services/host_services.h"

namespace quillon {

namespace {

constexpr const char* kChoices = "Trial.Choices";
constexpr const char* kTold = "Trial.Told";

bool WantsTrial(const DeskSession& session, const BulkEntry& work) {
  if (!session.RunTrial) return false;
  if (!session.AsksAboutTrial) return true;
  MessageRequest request;
  request.Text = "The books are copied as they are now. What " + work.Screen +
                 " would do can be tried on the copy first, in a window of its own.";
  request.Icon = "Q";
  request.Title = "Quillon";
  request.Buttons = {"Go on", "What would it do?"};
  constexpr int kTry = 2;
  return gRuntime->AskMessage(request) == kTry;
}

std::unique_ptr<TrialFirm> MakeFirm(DeskSession& session, int run) {
  const BusyJob busy("Making the firm of trial …");
  return std::make_unique<TrialFirm>(session.Books(), run);
}

void ShowResult(const TrialFirm& trial, const BulkEntry& work) {
  std::vector<TrialLine> lines;
  {
    const BusyJob busy("Comparing …");
    lines = trial.Compare();
  }
  const std::string told = trial.Setting(kTold);
  gStd->MsgBox(lines.empty() ? "The trial changed nothing." : "The trial told:\n" + told, "", "I");
  if (lines.empty()) return;
  const auto list = std::make_shared<frmTrial>(work.Screen, std::move(lines));
  list->CallingForm = gApp->MainWindow().MainForm();
  gRuntime->Show(list, true);
}

}  // namespace

std::string TryFirst(DeskSession& session, const BulkRun& run, const BulkEntry& work) {
  if (!WantsTrial(session, work)) return {};
  try {
    const std::unique_ptr<TrialFirm> trial = MakeFirm(session, run.Number());
    {
      const BusyJob busy("The trial has a window of its own …");
      session.RunTrial(trial->Folder().string(), work.FormKey, work.Account);
    }
    ShowResult(*trial, work);
    return trial->Setting(kChoices);
  } catch (const HostError& error) {
    gStd->MsgBox("There is no trial: " + std::string(error.what()), "", "W");
    return {};
  }
}

void CarryOutTrial(const std::string& form, std::int64_t account) {
  FormPtr owner = gApp->MainWindow().MainForm();
  const FormPtr dialog = gSession->Modules().Item("DutyworksModule")->GetForm(form);
  if (account != 0) {
    const FormPtr statement = gApp->GetForm("Account");
    statement->CallingForm = owner;
    statement->Set("AccountCode", account);
    gApp->ShowForm(statement);
    dialog->Set("AcCode", account);
    owner = statement;
  }
  dialog->CallingForm = owner;
  std::string choices;
  std::string told;
  {
    const MessageLog log([&] { choices = DialogChoices::Text(*dialog); });
    gStd->ShowDialog(dialog, owner);
    told = log.Text();
  }
  gApp->PutFirmSetting(kChoices, choices);
  gApp->PutFirmSetting(kTold, told);
}

}  // namespace quillon
