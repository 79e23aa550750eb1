#include "cheques/frmChqLeaves.h"

#include <algorithm>

#include "books/BooksNames.h"
#include "books/SqlText.h"
#include "host/data/TransactionScope.h"
#include "host/forms/BusyJob.h"
#include "host/forms/Fields.h"
#include "host/forms/GridFill.h"
#include "host/forms/GridRows.h"
#include "host/services/host_services.h"
#include "host/values/Text.h"

namespace quillon {

namespace {

constexpr ScreenSpec kScreen = {
    .className = "frmChqLeaves",
    .caption = "   Cheque Leaves Record",
    .titleSuffix = "",
    .rightKey = "",
    .registerTitle = "Chq.Leaves",
    .iconKey = "Modify",
    .firstKey = keys::kF2,
    .lastKey = keys::kF9,
    .helpContext = 13,
};

constexpr long kCancelledColor = 13359855;
constexpr long long kLongestRun = 100;  // the last number less the first
constexpr const char* kAddTitle = "Add Cheque Leaves";
constexpr const char* kDeleteTitle = "Delete Cheque Leaves";
constexpr const char* kCancelledParty = "-CANCELLED-";
constexpr const char* kCancelledMark = "Y";

namespace col {

constexpr int kId = 0;
constexpr int kVoucherId = 1;
constexpr int kPartyCode = 2;
constexpr int kCancelled = 3;
constexpr int kChqNo = 4;
constexpr int kReceived = 5;
constexpr int kIssued = 6;
constexpr int kParty = 7;
constexpr int kStation = 8;
constexpr int kNarration = 9;
constexpr int kAmount = 10;
constexpr int kCount = 13;

}  // namespace col

/// Tells what is wrong and puts the user into the field; false.
bool Refuse(CTextPlus& field, const std::string& why) {
  gStd->MsgBox(why, "", "W");
  field.SetFocus();
  return false;
}

std::string NumberOf(const CTextPlus& field) { return books::SqlNumber(field.Text()); }

}  // namespace

frmChqLeaves::frmChqLeaves()
    : ListScreen(kScreen, Origin::Module),
      lblTitle2(*this, "lblTitle2"),
      cmbRType(*this, "cmbRType"),
      picChqRange(*this, "picChqRange"),
      lblRangeTitle(picChqRange, "lblRangeTitle"),
      txpFrom(picChqRange, "txpFrom"),
      txpTo(picChqRange, "txpTo"),
      txpRecDate(picChqRange, "txpRecDate"),
      btnOKCancel(picChqRange, "btnOKCancel", {0, 1}),
      picFilter(*this, "picFilter"),
      lblFilterTitle(picFilter, "lblFilterTitle"),
      txpChqNo1(picFilter, "txpChqNo1"),
      txpChqNo2(picFilter, "txpChqNo2"),
      txpParties(picFilter, "txpParties"),
      btnOKCancel2(picFilter, "btnOKCancel2", {0, 1}),
      mmOthers(*this, "mmOthers") {
  Member("BankCode", BankCode);
  Routine("FillGrid", &frmChqLeaves::FillGrid);
  for (const char* type : {"All", "Pending Only", "Issued Only", "Cancelled Only"}) cmbRType.AddItem(type);
  cmbRType.SetListIndex(0);
  Connect();
}

void frmChqLeaves::Connect() {
  // A choice counts once the list is before the user.
  cmbRType.Click = [this] {
    if (!cmbRType.Visible) return;
    FillGrid();
    Grid.SetFocus();
  };
  btnOKCancel(0).Click = [this] { ConfirmRange(); };
  btnOKCancel(1).Click = [this] { ClosePanel(); };
  btnOKCancel2(0).Click = [this] { ConfirmFilter(); };
  btnOKCancel2(1).Click = [this] { ClosePanel(); };
  txpParties.ButtonClick = [this] { PickParties(); };
  mmOthers.Items = {"Delete"};
  mmOthers.Keys = {"Delete"};
  mmOthers.Click = [this](int) { OpenRange(kDeleteTitle, false); };
  MakeDateField(txpRecDate);
}

void frmChqLeaves::LoadScreen() { DesignControls(); }

void frmChqLeaves::FirstShow() {
  if (BankCode == 0 && !SelectBank()) {
    gRuntime->Unload(*this);
    return;
  }
  FillGrid();
  Grid.Visible = true;
  Grid.SetFocus();
  cmbRType.Visible = true;
}

bool frmChqLeaves::SelectBank() {
  CPickList banks;
  banks.Title("Select Bank");
  banks.AddColumn("Bank", 5400, kAlignLeft);
  banks.Load(
      "SELECT MHD,MCD FROM FAMASTER WHERE MBSHNO=" + books::SqlNumber(books::kBankGroup) + " ORDER BY MHD",
      gSession->MainDb());
  if (!banks.Show()) return false;
  BankCode = static_cast<long>(banks.ItemData());
  return true;
}

void frmChqLeaves::SetupGrid() {
  Grid.Cols = col::kCount;
  gStd->SetupGrid(Grid);
  Grid.HideAllColumns();
  SetColumnsInTwips(Grid, {
                              {col::kChqNo, "Cheque No.", 1200},
                              {col::kReceived, "Rec.Date", 1100},
                              {col::kIssued, "Issue Date", 1100},
                              {col::kParty, "Party", 2500},
                              {col::kStation, "Station", 1200},
                              {col::kNarration, "Narration", 2200},
                              {col::kAmount, "Amount", 1200, kAlignRight},
                          });
}

std::string frmChqLeaves::Query() const {
  std::string query =
      "SELECT A.*,M.MHD,M.MST,N.NARRATION FROM (CHQLEAVES A LEFT JOIN FAMASTER M ON A.PARTYCODE=M.MCD) LEFT "
      "JOIN FANAR N ON A.NARRATIONID=N.NARRATIONID WHERE A.BANKCODE=" +
      books::SqlNumber(BankCode);
  const std::string type = cmbRType.Text();
  if (type == "Pending Only") {
    query += " AND A.VOUCHERID IS NULL AND (A.CANCELLED<>'Y' OR A.CANCELLED IS NULL)";
  } else if (type == "Issued Only") {
    query += " AND A.VOUCHERID IS NOT NULL";
  } else if (type == "Cancelled Only") {
    query += " AND A.CANCELLED='Y'";
  }
  const bool hasFirst = ValInteger(txpChqNo1.Text()) > 0;
  const bool hasLast = ValInteger(txpChqNo2.Text()) > 0;
  if (hasFirst && hasLast) {
    query += " AND (A.CHQNO>=" + NumberOf(txpChqNo1) + " AND A.CHQNO<=" + NumberOf(txpChqNo2) + ")";
  } else if (hasFirst) {
    query += " AND A.CHQNO>=" + NumberOf(txpChqNo1);
  } else if (hasLast) {
    query += " AND A.CHQNO<=" + NumberOf(txpChqNo2);
  }
  if (!partyClause_.empty()) query += " AND " + partyClause_;
  return query + " ORDER BY A.RCTDATE,A.CHQNO";
}

void frmChqLeaves::FillGrid() {
  const BusyJob job;
  CDbLink& db = gSession->MainDb();
  lblTitle2.Caption = "Bank: " + db.Lookup("FAMASTER", "MHD", "MCD=" + books::SqlNumber(BankCode)).ToText();
  GridFill fill(Grid, "");
  Grid.Clear();
  Grid.Rows = 1;
  SetupGrid();
  CDataSet leaves;
  leaves.Open(Query(), db);
  Amount total;
  int row = 0;
  for (; !leaves.Eof(); leaves.MoveNext()) {
    gStd->NextGridRow(row, Grid);
    ShowLeaf(leaves, row);
    total += leaves.Field("AMOUNT").ToAmount();
  }
  Grid.Rows = std::max(row + 1, 2);
  ShowTotals(Grid, 0, col::kParty, "Total", {{col::kAmount, total}});
  fill.Done();
  Grid.Row = 1;
  Grid.Col = col::kChqNo;
  ShowAccountOfRow(1);
}

void frmChqLeaves::ShowLeaf(const CDataSet& leaf, int row) {
  const auto show = [&](int column, const std::string& text) { Grid.SetTextMatrix(row, column, text); };
  show(col::kId, leaf.Field("ID").ToText());
  show(col::kVoucherId, leaf.Field("VOUCHERID").ToText());
  show(col::kPartyCode, leaf.Field("PARTYCODE").ToText());
  show(col::kCancelled, leaf.Field("CANCELLED").ToText());
  show(col::kChqNo, leaf.Field("CHQNO").ToText());
  show(col::kReceived, leaf.Field("RCTDATE").ToDate().Format("dd/MM/yyyy"));
  show(col::kIssued, leaf.Field("ISUDATE").ToDate().Format("dd/MM/yyyy"));
  show(col::kParty, leaf.Field("MHD").ToText());
  show(col::kStation, leaf.Field("MST").ToText());
  show(col::kNarration, leaf.Field("NARRATION").ToText());
  show(col::kAmount, gStd->FormatValue(leaf.Field("AMOUNT"), "c2"));
  if (leaf.Field("CANCELLED").ToText() == kCancelledMark) ShowCancelled(row, true);
}

void frmChqLeaves::ShowCancelled(int row, bool cancelled) {
  Grid.SetTextMatrix(row, col::kParty, cancelled ? kCancelledParty : "");
  gStd->SetRowColors(Grid, row, 0, col::kCount - 1, cancelled ? kCancelledColor : Control::kDefaultColor,
                     Control::kDefaultColor);
}

void frmChqLeaves::OnKeyDown(KeyEvent& key) {
  // What the buttons of an open panel say comes before the bar.
  if (key.KeyCode == keys::kF7 && key.Shift == 0 && (picChqRange.Visible || picFilter.Visible)) {
    key.KeyCode = 0;
    (picFilter.Visible ? btnOKCancel2 : btnOKCancel)(0).Press();
    return;
  }
  ListScreen::OnKeyDown(key);
}

void frmChqLeaves::Pressed(const std::string& key) {
  if (key == "Add") {
    OpenRange(kAddTitle, true);
  } else if (key == "Cancel") {
    CancelLeaf();
  } else if (key == "Filter") {
    OpenFilter();
  } else if (key == "Others") {
    PopupMenu(mmOthers, BtnBar1.Left + BtnBar1.Buttons("Others").Left(), BtnBar1.Top);
  }
}

void frmChqLeaves::Print(bool print) {
  gReports->ShowGrid(Grid, nullptr, lblTitle.Caption, lblTitle2.Caption, IReports::kHostRuling, print);
}

void frmChqLeaves::ExitPressed(bool& cancel) { cancel = ClosePanel(); }

bool frmChqLeaves::ClosePanel() {
  if (!picChqRange.Visible && !picFilter.Visible) return false;
  picChqRange.Visible = false;
  picFilter.Visible = false;
  Grid.SetFocus();
  return true;
}

void frmChqLeaves::OpenRange(const char* title, bool adds) {
  ClosePanel();
  lblRangeTitle.Caption = title;
  if (!adds) {
    txpFrom.Text = Grid.TextMatrix(Grid.Row, col::kChqNo);
    txpTo.Text = txpFrom.Text;
  }
  txpRecDate.Visible = adds;
  picChqRange.Visible = true;
  txpFrom.SetFocus();
}

void frmChqLeaves::OpenFilter() {
  ClosePanel();
  picFilter.Visible = true;
  txpChqNo1.SetFocus();
}

/// The message speaks of 100 leaves and lets 101 pass; people have learnt to type 1 to 101.
bool frmChqLeaves::CheckRange() {
  const long long from = ValInteger(txpFrom.Text());
  const long long to = ValInteger(txpTo.Text());
  if (from == 0) return Refuse(txpFrom, "Enter cheque no. from");
  if (to == 0) return Refuse(txpTo, "Enter cheque no. to");
  if (from > to) return Refuse(txpTo, "Cheque to cannot be less than cheque from.");
  if (to - from > kLongestRun) return Refuse(txpTo, "Can't add/delete more than 100 leaves.");
  return true;
}

void frmChqLeaves::ConfirmRange() {
  if (!CheckRange()) return;
  if (lblRangeTitle.Caption == kDeleteTitle) {
    DeleteLeaves();
  } else if (!AddLeaves()) {
    return;
  }
  FillGrid();
  ClosePanel();
}

bool frmChqLeaves::AddLeaves() {
  if (txpRecDate.Text->empty()) return Refuse(txpRecDate, "Enter rct. date");
  if (!txpRecDate.MayLeave()) {
    txpRecDate.SetFocus();
    return false;
  }
  CDbLink& db = gSession->MainDb();
  const std::string bank = books::SqlNumber(BankCode);
  const std::string existing = db.Lookup("CHQLEAVES", "LIST(CHQNO)",
                                         "BANKCODE=" + bank + " AND (CHQNO>=" + NumberOf(txpFrom) +
                                             " AND CHQNO<=" + NumberOf(txpTo) + ")")
                                   .ToText();
  if (!existing.empty()) return Refuse(txpFrom, "Following cheque no. already exists: \r\n" + existing);
  const std::string received = gStd->SqlDate(Date::Parse(gStd->ParseDateText(txpRecDate.Text, "")));
  std::int64_t created = 0;
  TransactionScope transaction(db);
  std::int64_t id = db.Lookup("CHQLEAVES", "MAX(ID)", "").ToInteger();
  for (long long number = ValInteger(txpFrom.Text()); number <= ValInteger(txpTo.Text()); ++number) {
    const std::string leaf = books::SqlNumber(number);
    if (db.RowExists("SELECT * FROM CHQLEAVES WHERE BANKCODE=" + bank + " AND CHQNO=" + leaf)) continue;
    ++id;
    db.Execute("INSERT INTO CHQLEAVES (ID,BANKCODE,CHQNO,RCTDATE) VALUES (" + books::SqlNumber(id) + "," +
               bank + "," + leaf + "," + received + ")");
    gStd->AddTo(created, 1);
  }
  transaction.Commit();
  gStd->MsgBox(std::to_string(created) + " records created.");
  return true;
}

/// Each leaf goes by itself; those before one that is issued stay deleted.
void frmChqLeaves::DeleteLeaves() {
  if (!gStd->AskYesNo("Do you want to delete cheque no. " + txpFrom.Text + " to " + txpTo.Text + " ?", "W")) {
    return;
  }
  const long long from = ValInteger(txpFrom.Text());
  const long long to = ValInteger(txpTo.Text());
  std::int64_t deleted = 0;
  for (int row = 1; row < Grid.Rows; ++row) {
    const long long number = ValInteger(Grid.Cell(row, col::kChqNo));
    if (ValInteger(Grid.Cell(row, col::kId)) == 0 || number < from || number > to) continue;
    if (ValInteger(Grid.Cell(row, col::kVoucherId)) != 0) {
      gStd->MsgBox("Cheque No. " + Grid.TextMatrix(row, col::kChqNo) +
                       " is associated with a voucher. You must delete the voucher before deleting this "
                       "cheque.",
                   "", "W");
      return;
    }
    gSession->MainDb().Execute("DELETE FROM CHQLEAVES WHERE ID=" + Grid.TextMatrix(row, col::kId));
    gStd->AddTo(deleted, 1);
  }
  gStd->MsgBox(std::to_string(deleted) + " records deleted.");
}

void frmChqLeaves::CancelLeaf() {
  const int row = Grid.Row;
  const std::string id = books::SqlNumber(Grid.Cell(row, col::kId));
  if (id == "0") return;
  const bool cancelled = Grid.TextMatrix(row, col::kCancelled) == kCancelledMark;
  if (!cancelled && ValInteger(Grid.Cell(row, col::kVoucherId)) != 0) {
    gStd->MsgBox(
        "This cheque is associated with a voucher. You must delete the voucher before cancelling this cheque. "
        "Can't continue.",
        "", "W");
    return;
  }
  const char* const question =
      cancelled ? "This cheque is already cancelled. Do you want to un-cancel this cheque ?"
                : "Do you want to cancel this cheque ?";
  if (gStd->AskYesNo(question, "W", IStd::kNo)) {
    const std::string mark = cancelled ? "N" : kCancelledMark;
    gSession->MainDb().Execute("UPDATE CHQLEAVES SET CANCELLED='" + mark + "' WHERE ID=" + id);
    Grid.SetTextMatrix(row, col::kCancelled, mark);
    ShowCancelled(row, !cancelled);
  }
  Grid.SetFocus();
}

void frmChqLeaves::ConfirmFilter() {
  const long long to = ValInteger(txpChqNo2.Text());
  if (to > 0 && to < ValInteger(txpChqNo1.Text())) {
    Refuse(txpChqNo2, "Chq. To cannot be less than Chq. From.");
    return;
  }
  FillGrid();
  ClosePanel();
}

void frmChqLeaves::PickParties() {
  CPartyFilter filter;
  filter.SetAlias("M");
  if (!filter.Show()) return;
  partyClause_ = filter.Clause();
  txpParties.Text = filter.Caption();
}

void frmChqLeaves::OpenRow(int row) {
  const std::int64_t voucher = ValInteger(Grid.Cell(row, col::kVoucherId));
  if (voucher != 0) gApp->OpenVoucher(*this, voucher, gSession->Year().StartYear(), BankCode);
}

long frmChqLeaves::AccountOfRow(int row) const {
  return static_cast<long>(ValInteger(Grid.Cell(row, col::kPartyCode)));
}

}  // namespace quillon
