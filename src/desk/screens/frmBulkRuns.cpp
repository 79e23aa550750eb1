#include "desk/screens/frmBulkRuns.h"

#include <algorithm>

#include "desk/firm/BulkTurn.h"
#include "desk/safety/CopiedFirm.h"
#include "desk/safety/GoingBack.h"
#include "desk/services/DeskSession.h"
#include "host/forms/BusyJob.h"
#include "host/forms/GridFill.h"
#include "host/services/host_services.h"
#include "host/values/Text.h"

namespace quillon {

namespace {

constexpr ScreenSpec kScreen = {
    .className = "frmBulkRuns",
    .caption = "   Bulk Work",
    .titleSuffix = " -> Bulk Work",
    .rightKey = "bulk.journal",
    .registerTitle = "Bulk Work",
    .iconKey = "List",
    .firstKey = keys::kF5,
    .lastKey = keys::kF9,
};

namespace col {

constexpr int kRun = 0;
constexpr int kBegan = 1;
constexpr int kUser = 2;
constexpr int kScreen = 3;
constexpr int kAccount = 4;
constexpr int kOutcome = 5;
constexpr int kCopy = 6;
constexpr int kCount = 7;

}  // namespace col

}  // namespace

frmBulkRuns::frmBulkRuns() : ListScreen(kScreen, Origin::Desk) {}

void frmBulkRuns::BuildBar() {
  BtnBar1.AddButtons({"Copy,F5: Open Copy,Search", "Open,F6: What it did,Open",
                      "GoBack,F7: Go Back,LeftArrow", "Preview,F8: Preview,Preview", "Print,F9: Print,Print",
                      "Exit,Esc: Exit,Close"});
}

void frmBulkRuns::LoadScreen() { PlaceGrid(ContentTop()); }

std::string frmBulkRuns::CopyOf(int run) const {
  const std::vector<BookCopy> copies = BookCopies(DeskSession::Current().Books()).Of(run);
  if (copies.empty()) return "none";
  std::int64_t size = 0;
  for (const BookCopy& copy : copies) {
    if (copy.IsGone) return "gone";
    size += copy.Size;
  }
  std::string years = YearName(copies.front().StartYear);
  if (copies.size() > 1) years += " to " + YearName(copies.back().StartYear);
  constexpr std::int64_t kMegabyte = 1 << 20;
  return years + ", " + std::to_string((size + kMegabyte - 1) / kMegabyte) + " MB";
}

void frmBulkRuns::FillGrid() {
  GridFill fill(Grid, "");
  const int stood = Grid.Row;
  Grid.Clear();
  Grid.Rows = 1;
  Grid.Cols = col::kCount;
  gStd->SetupGrid(Grid);
  SetColumnsInTwips(Grid, {{col::kRun, "No.", 0.06},
                           {col::kBegan, "Began", 0.16},
                           {col::kUser, "User", 0.12},
                           {col::kScreen, "Screen", 0.16},
                           {col::kAccount, "Account", 0.22},
                           {col::kOutcome, "What came of it", 0.14},
                           {col::kCopy, "Copy", 0.14}});
  int row = 0;
  for (const BulkEntry& entry : BulkJournal(gSession->CommonDb()).All()) {
    gStd->NextGridRow(row, Grid);
    Grid.SetTextMatrix(row, col::kRun, std::to_string(entry.Run));
    Grid.SetTextMatrix(row, col::kBegan, SpokenTime(entry.BeganAt));
    Grid.SetTextMatrix(row, col::kUser, entry.User);
    Grid.SetTextMatrix(row, col::kScreen, entry.Screen);
    Grid.SetTextMatrix(row, col::kAccount, entry.AccountName);
    Grid.SetTextMatrix(row, col::kOutcome, entry.EndedAt.empty() ? "At work" : entry.Outcome);
    Grid.SetTextMatrix(row, col::kCopy, CopyOf(entry.Run));
  }
  Grid.Rows = std::max(row + 1, 2);
  fill.Done();
  Grid.Row = std::clamp(stood, 1, Grid.Rows - 1);
}

void frmBulkRuns::Pressed(const std::string& key) {
  const auto run = static_cast<int>(ValInteger(Grid.Cell(Grid.Row, col::kRun)));
  if (run == 0) return;
  if (key == "Copy") {
    LookAtCopy(run);
  } else if (key == "Open") {
    OpenRow(Grid.Row);
  } else if (key == "GoBack") {
    GoBack(run);
  }
}

void frmBulkRuns::OpenRow(int row) {
  const auto run = static_cast<int>(ValInteger(Grid.Cell(row, col::kRun)));
  if (run == 0) return;
  const BulkEntry entry = BulkJournal(gSession->CommonDb()).Of(run);
  const auto part = [](const std::string& heading, const std::string& text) {
    return text.empty() ? "" : "\n\n" + heading + "\n" + text;
  };
  gStd->MsgBox(entry.Words() +
                   (entry.EndedAt.empty() ? "" : "\n" + entry.Outcome + ", " + SpokenTime(entry.EndedAt)) +
                   part("What was filled in:", entry.Choices) + part("What it told:", entry.Told),
               "", "I");
}

/// In a desk beside this one, so that both can be compared.
void frmBulkRuns::LookAtCopy(int run) const {
  DeskSession& session = DeskSession::Current();
  try {
    if (!session.ShowCopy) throw HostError("A copy opens in a window of its own, which this program has not");
    const BusyJob busy("Making a firm of the copy …");
    const CopiedFirm firm(session.Books(), run, CopiedFirm::Use::kLook);
    session.ShowCopy(firm.Folder().string());
  } catch (const HostError& error) {
    gStd->MsgBox(std::string(error.what()) + ".", "", "W");
  }
}

/// Whoever takes the firm back loses what came after too, so that he is told first what that is.
void frmBulkRuns::GoBack(int run) {
  if (gSession->UserLevel() < User::kSupervisor) {
    gStd->MsgBox("Only a user of level 9 may take the firm back.", "", "W");
    return;
  }
  DeskSession& session = DeskSession::Current();
  std::vector<std::string> since;
  std::string words;
  try {
    const BusyJob busy("Looking what came after …");
    since = GoingBack(session.Books(), run, session.CurrentUser().Name).Since();
    words = BulkJournal(gSession->CommonDb()).Of(run).Words();
  } catch (const HostError& error) {
    gStd->MsgBox(std::string(error.what()) + ".", "", "W");
    return;
  }
  constexpr std::size_t kShown = 12;
  if (since.size() > kShown) {
    const std::size_t more = since.size() - kShown;
    since.resize(kShown);
    since.push_back("and " + std::to_string(more) + " more lines");
  }
  const std::string lost = since.empty() ? "Nothing was changed since."
                                         : "What came after it goes too:\n" + text::Join(since, "\n");
  if (gStd->AskYesNo("Take the firm back to before " + words + "?\n\n" + lost +
                         "\n\nWhat is there now stays as a copy. Others are asked to leave the firm.",
                     "Q", IStd::kNo)) {
    session.OnGoBack(run);
  }
}

void frmBulkRuns::Print(bool print) {
  gReports->ShowGrid(Grid, nullptr, "Bulk Work", "", IReports::kHostRuling, print);
}

}  // namespace quillon
