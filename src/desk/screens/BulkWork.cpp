#include "desk/screens/BulkWork.h"

#include <algorithm>

#include "books/SqlText.h"
#include "desk/safety/BulkRun.h"
#include "desk/screens/BulkTrial.h"
#include "desk/screens/DialogChoices.h"
#include "desk/screens/frmAccount.h"
#include "desk/services/DeskSession.h"
#include "desk/services/MessageLog.h"
#include "host/services/host_services.h"
#include "host/values/Text.h"

namespace quillon {

namespace {

constexpr const char* kMerge = "mergeparties";
constexpr int kFarthest = 5;  // so many years on either side a merge goes

std::vector<int> YearsOf(DeskSession& session, const std::string& form) {
  const int open = session.Year().StartYear();
  std::vector<int> years{open};
  if (form != kMerge) return years;
  for (const int step : {-1, 1}) {
    for (int away = 1; away <= kFarthest && session.Books().HasYear(open + step * away); ++away) {
      years.push_back(open + step * away);
    }
  }
  std::sort(years.begin(), years.end());
  return years;
}

/// False when the user does not go on without a copy.
bool CopyFirst(BulkRun& run) {
  try {
    run.Copy();
    return true;
  } catch (const HostError& error) {
    MessageRequest request;
    request.Text = "The books could not be copied: " + std::string(error.what()) +
                   ".\nWithout a copy nobody can go back to before this work.";
    request.Icon = "W";
    request.Title = "Quillon";
    request.Buttons = {"Do not run"};
    bool denied = true;
    gApp->CheckRight("bulk.withoutcopy", "N", denied);
    if (!denied) request.Buttons.emplace_back("Run without a copy");
    constexpr int kRun = 2;
    return gRuntime->AskMessage(request) == kRun;
  }
}

std::string Paragraph(const std::string& heading, const std::vector<std::string>& lines) {
  return lines.empty() ? "" : heading + "\n" + text::Join(lines, "\n") + "\n\n";
}

/// Tells what the check found, and takes the books back where the user wants it.
void TellFindings(const BulkRun& run, const std::string& screen, const BulkFindings& findings) {
  if (run.Changed() == 0) return;
  if (findings.AsItWorks.empty() && findings.Unexplained.empty()) {
    gRuntime->Say(screen + ": " + std::to_string(run.Changed()) +
                  " rows changed. Books > Bulk Work has the copy of before.");
    return;
  }
  MessageRequest request;
  request.Text = Paragraph("What " + screen + " does not explain:", findings.Unexplained) +
                 Paragraph("As this screen works:", findings.AsItWorks) + "Keep it, or go back to before?";
  request.Icon = findings.Unexplained.empty() ? "Q" : "W";
  request.Title = "Quillon";
  request.Buttons = {"Keep"};
  if (gSession->UserLevel() >= User::kSupervisor) request.Buttons.emplace_back("Go back");
  request.Default = findings.Unexplained.empty() ? 1 : static_cast<int>(request.Buttons.size());
  constexpr int kGoBack = 2;
  if (gRuntime->AskMessage(request) == kGoBack) DeskSession::Current().OnGoBack(run.Number());
}

void RunUnderNet(const FormPtr& dialog, const FormPtr& owner, BulkEntry work) {
  DeskSession& session = DeskSession::Current();
  if (!session.CopiesBulkWork) {
    gStd->ShowDialog(dialog, owner);
    return;
  }
  work.AccountName =
      gSession->MainDb().Lookup("FAMaster", "mhd", "mcd=" + books::SqlNumber(work.Account)).ToText();
  BulkRun run(session, work, YearsOf(session, work.FormKey));
  if (!CopyFirst(run)) {
    run.EndUnrun();
    return;
  }
  const std::string tried = TryFirst(session, run, work);
  run.Watch();
  gRuntime->Load(dialog);
  if (!tried.empty()) DialogChoices::Put(*dialog, tried);
  // A form that has closed lets go of its cells; before it does anything it asks.
  std::string choices;
  std::string told;
  {
    const MessageLog log([&] { choices = DialogChoices::Words(*dialog); });
    gStd->ShowDialog(dialog, owner);
    told = log.Text();
  }
  TellFindings(run, work.Screen, run.End(choices, told));
}

}  // namespace

void OpenBulkWork(frmAccount& statement, const std::string& form, const std::string& screen,
                  const std::string& right) {
  bool denied = true;
  gApp->CheckRight(right, "N", denied);
  if (denied) return;
  // The rows of the other screen would go on naming entries that are gone.
  if (!statement.RequireNothingStandsOnIt()) return;
  const FormPtr dialog = statement.ModuleScreen(form);
  if (!dialog) return;
  dialog->Set("AcCode", statement.AccountCode);
  RunUnderNet(dialog, statement.Self(),
              {.FormKey = form, .Screen = screen, .Account = statement.AccountCode});
}

void OpenMergeOfParties(const FormPtr& form) {
  RunUnderNet(form, gApp->MainWindow().MainForm(), {.FormKey = kMerge, .Screen = "Merge Parties"});
}

void TellBrokenOffRuns(DeskSession& session) {
  FirebirdLink& common = *session.Books().Common();
  const bool oneIsAtWork = BulkTurn::Now(common).has_value();
  for (const BulkEntry& entry : BulkJournal(common).BrokenOff(oneIsAtWork)) {
    gStd->MsgBox(
        "This run did not come to its end: " + entry.Words() +
            ".\nWhat it had changed until then stands. Books > Bulk Work takes the firm back to before it.",
        "", "W");
    BulkJournal(common).End(entry.Run, BulkJournal::kBrokenOff, entry.Choices, entry.Told);
  }
}

}  // namespace quillon
