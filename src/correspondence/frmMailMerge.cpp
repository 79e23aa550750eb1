#include "correspondence/frmMailMerge.h"

#include <algorithm>

#include "books/SqlText.h"
#include "host/controls/RedrawHold.h"
#include "host/forms/BusyJob.h"
#include "host/forms/Fields.h"
#include "host/forms/Progress.h"
#include "host/services/host_services.h"
#include "host/values/Text.h"

namespace quillon {

namespace {

constexpr ScreenSpec kScreen = {
    .className = "frmMailMerge",
    .caption = "Mail Merge",
    .titleSuffix = " -> Mail Merge",
    .rightKey = "mst.mailmerge",
    .registerTitle = "Mail Merge",
    .iconKey = "Account",
    .firstKey = keys::kF2,
    .lastKey = keys::kF9,
    .helpContext = 12,
};

constexpr int kDelete = 1;
constexpr int kPrevious = 3;
constexpr int kNext = 4;
constexpr int kText = 0;
constexpr int kCommand = 1;
constexpr int kMoreForAddress = 10;
constexpr int kMoreForLetter = 100;
constexpr const char* kHeadingMark = "<B>";
constexpr const char* kHeadingFont = "*headingfonts*";
constexpr const char* kPageBreak = "*pagebreak*";
constexpr const char* kLineEnd = "\r\n";

CDbLink& Common() { return gApp->MainWindow().CommonDb(); }

}  // namespace

frmMailMerge::frmMailMerge()
    : ScreenForm(kScreen, Origin::Module),
      txpRefNo(*this, "txpRefNo"),
      txpDate(*this, "txpDate"),
      chkLHead(*this, "chkLHead"),
      txpReportName(*this, "txpReportName"),
      txtLetter(*this, "txtLetter"),
      Grid(*this, "Grid"),
      SelGrid1(*this, "SelGrid1") {
  Member("FilterCnd", FilterCnd);
  Member("LetterID", LetterID);
  Member("PartyCode", PartyCode);
  txtLetter.MultiLine = true;
  Grid.Visible = false;
  SelGrid1.Visible = false;
  SelGrid1.TakesNewNames = true;
  Connect();
}

void frmMailMerge::Connect() {
  MakeDateField(txpDate);
  txpReportName.GotFocus = [this] { OpenList(); };
  txpReportName.LostFocus = [this] { CloseList(); };
  SelGrid1.Selected = [this] { TakeLetter(); };
  // A name that no letter has is a new one.
  SelGrid1.NotFound = [](const std::string&) { gStd->SendKeys("{TAB}"); };
}

void frmMailMerge::BuildBar() {
  BtnBar1.AddButtons({"New,F2: New,New", "Delete,F3: Delete,Delete", "Parties,F4: Parties,Customers",
                      "Previous,F5: Previous,LeftArrow", "Next,F6: Next,RightArrow", "Save,F7: Save,Save",
                      "Preview,F8: Preview,Preview", "Print,F9: Print,Print", "Exit,Esc: Exit,Close"});
}

void frmMailMerge::LoadScreen() {
  DesignControls();
  NewLetter();
  BtnBar1.DisableButtons({kPrevious, kNext});
  if (!FilterCnd.empty()) OpenParties("Select b.* from FAMaster b where " + FilterCnd);
  if (!Common().TableExists("MLETTERS")) {
    Common().Execute("Create Table MLetters (ID Int,LetterName Varchar(100),LetterText Blob sub_type text)");
  }
  SelGrid1.Title.Caption = "Existing Letters";
}

void frmMailMerge::UnloadScreen() {
  if (rsParties_ && rsParties_->State() == 1) rsParties_->Close();
  rsParties_.reset();
  PartyCode = 0;
}

void frmMailMerge::Pressed(const std::string& key) {
  if (key == "New") {
    NewLetter();
    txpRefNo.SetFocus();
  } else if (key == "Delete") {
    DeleteLetter();
  } else if (key == "Parties") {
    SelectParties();
  } else if (key == "Previous") {
    StepParty(-1);
  } else if (key == "Next") {
    StepParty(1);
  } else if (key == "Save") {
    SaveLetter();
  }
}

void frmMailMerge::ExitPressed(bool& cancel) {
  cancel = SelGrid1.Visible;
  if (cancel) CloseList();
}

void frmMailMerge::NewLetter() {
  LetterID = 0;
  txpReportName.Text = "";
  txpRefNo.Text = "";
  txpDate.Text = "";
  const CDataSet& firm = gApp->MainWindow().FirmRecord();
  txtLetter.Text = text::Join(
      {"Dear Sir,", "", "<B>Subject: ", "", "   Type your letter here", "", "Sincerely yours,", "",
       "<B>For " + firm.Field("FirmName").ToText(), "", "", "<B>" + firm.Field("AuthDesig").ToText()},
      kLineEnd);
  BtnBar1.DisableButtons({kDelete});
}

void frmMailMerge::OpenList() {
  if (SelGrid1.Visible) return;
  SelGrid1.Load("Select LetterName,ID from MLetters order by LetterName", Common(), false, 0);
  SelGrid1.Grid.SetColWidth(1, 0);
  SelGrid1.OpenUnder(txpReportName);
  txpReportName.SuppressEnter = true;
}

void frmMailMerge::CloseList() {
  SelGrid1.Close();
  txpReportName.SuppressEnter = false;
}

void frmMailMerge::TakeLetter() {
  LetterID = static_cast<long>(ValInteger(SelGrid1.Cell(SelGrid1.Grid.Row, 1)));
  CDataSet letter;
  letter.Open("Select LetterText from MLetters where ID=" + books::SqlNumber(LetterID), Common());
  CloseList();
  if (letter.Eof()) return;
  txtLetter.Text = letter.Field("LetterText").ToText();
  BtnBar1.EnableButtons({kDelete});
}

void frmMailMerge::SaveLetter() {
  if (txpReportName.Text->empty()) {
    gStd->MsgBox("Enter Letter Name", "", "W");
    txpReportName.SetFocus();
    return;
  }
  CDataSet letter;
  letter.Open("Select * from MLetters where LetterName='" + txpReportName.Text + "'", Common(), 3, 3);
  if (letter.Eof()) {
    LetterID = static_cast<long>(Common().Lookup("MLetters", "Max(ID)", "").ToInteger()) + 1;
    letter.AddNew();
    letter.SetField("ID", LetterID);
  } else if (const std::int64_t known = letter.Field("ID").ToInteger(); known != LetterID) {
    if (!gStd->AskYesNo("This letter already exists do you want to Overwrite?")) return;
    LetterID = static_cast<long>(known);
  }
  letter.SetField("LetterName", txpReportName.Text());
  letter.SetField("LetterText", txtLetter.Text());
  letter.Update();
  letter.Close();
  BtnBar1.EnableButtons({kDelete});
  gStd->MsgBox("Letter has been saved.", "", "I");
}

void frmMailMerge::DeleteLetter() {
  if (!gStd->AskYesNo("Are you sure to delete this letter?")) return;
  Common().Execute("Delete from MLetters where ID=" + books::SqlNumber(LetterID));
  NewLetter();
  txpRefNo.SetFocus();
}

void frmMailMerge::SelectParties() {
  CPartyFilter filter;
  if (!filter.Show()) return;
  const std::string where = filter.Clause().empty() ? "" : " where " + filter.Clause();
  OpenParties("Select b.* from FAMaster b" + where + " order by b.mhd");
}

void frmMailMerge::OpenParties(const std::string& sql) {
  auto parties = std::make_shared<CDataSet>();
  parties->CursorLocation = CDataSet::kUseClient;
  parties->Open(sql, gSession->MainDb(), 3, 1);
  rsParties_ = std::move(parties);
  BtnBar1.DisableButtons({kPrevious, kNext});
  if (rsParties_->RecordCount() > 1) BtnBar1.EnableButtons({kPrevious, kNext});
  ShowParty();
}

void frmMailMerge::ShowParty() {
  PartyCode = rsParties_->Eof() ? 0 : static_cast<long>(rsParties_->Field("mcd").ToInteger());
  MStrip1.Code = PartyCode;
}

void frmMailMerge::StepParty(int direction) {
  if (direction < 0) {
    rsParties_->MovePrevious();
    if (rsParties_->Bof()) rsParties_->MoveFirst();
  } else {
    rsParties_->MoveNext();
    if (rsParties_->Eof()) rsParties_->MoveLast();
  }
  ShowParty();
}

void frmMailMerge::Print(bool print) {
  if (PartyCode == 0 && !gStd->AskYesNo("Print without party address?")) return;
  CReportOptions options;
  options.Settings.ChkUnderline = true;
  options.SetOption("Heading", false);
  options.SetOption("RulingChr1", "");
  options.SetVar("RefNo", txpRefNo.Text);
  options.SetVar("Dated", Date::Parse(gStd->ParseDateText(txpDate.Text, "")).Format("dd/MM/yyyy"));
  const char* const heading = chkLHead.CheckValue != 0 ? "LetterHead" : "LetterHeadRefDate";
  options.SetOption("MainHeadForm1", heading);
  options.SetOption("MainHeadForm2", heading);
  options.SetColumnOption(1, "ColAlign", "J");
  FillGrid();
  gReports->ShowGrid(Grid, &options, "", "", IReports::kHostRuling, print, "", "BottomLine=False");
  Grid.Rows = 1;
}

void frmMailMerge::FillGrid() {
  const BusyJob job;
  const RedrawHold hold(Grid);
  Grid.Rows = 1;
  Grid.Cols = 2;
  Grid.SetColWidth(kText, Grid.Width);
  Grid.SetColWidth(kCommand, 0);
  Grid.SetTextMatrix(0, kText, "Particulars");
  const std::vector<std::string> lines = text::Split(text::ReplaceAll(txtLetter.Text, kLineEnd, "\n"), "\n");
  int row = 1;
  if (PartyCode == 0) {
    row = AddLetter(lines, row);
  } else {
    Progress progress("Letters", rsParties_->RecordCount());
    for (rsParties_->MoveFirst(); !rsParties_->Eof(); rsParties_->MoveNext(), progress.Step()) {
      row = AddLetter(lines, AddAddress(row));
    }
    rsParties_->Find("mcd=" + books::SqlNumber(PartyCode));
  }
  Grid.Rows = std::max(row, 2);
  Grid.FixedRows = 1;
}

/// The party's lines and an empty one; the next free row.
int frmMailMerge::AddAddress(int row) {
  CPartyInfo party;
  party.DataSet = rsParties_;
  party.Code = rsParties_->Field("mcd").ToInteger();
  const std::vector<std::string> lines = gApp->GetPartyAddress(party);
  Grid.Rows = std::max(Grid.Rows(), row + static_cast<int>(lines.size())) + kMoreForAddress;
  if (!lines.empty()) Grid.SetTextMatrix(row, kCommand, kHeadingFont);
  for (const std::string& line : lines) Grid.SetTextMatrix(row++, kText, line);
  if (!lines.empty()) Grid.SetCellFontUnderline(row - 1, kText, true);
  return row + 1;
}

int frmMailMerge::AddLetter(const std::vector<std::string>& lines, int row) {
  for (const std::string& line : lines) {
    if (row >= Grid.Rows) Grid.Rows = row + kMoreForLetter;
    const bool heading = line.starts_with(kHeadingMark);
    Grid.SetTextMatrix(row, kText, heading ? line.substr(std::string(kHeadingMark).size()) : line);
    Grid.SetTextMatrix(row, kCommand, heading ? kHeadingFont : "");
    ++row;
  }
  Grid.SetTextMatrix(row - 1, kCommand, kPageBreak + Grid.TextMatrix(row - 1, kCommand));
  return row;
}

}  // namespace quillon
