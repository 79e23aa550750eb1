#include "desk/screens/frmNewAccount.h"

#include "books/SqlText.h"
#include "desk/screens/ModuleScreen.h"
#include "host/data/TransactionScope.h"
#include "host/forms/Fields.h"
#include "host/services/host_services.h"
#include "host/values/Text.h"

namespace quillon {

namespace {

constexpr long kWidth = 8100;
constexpr long kHeight = 5400;
constexpr long kEdge = 150;
constexpr long kLine = 375;
constexpr int kHeadLength = 80;
constexpr int kStationLength = 40;

}  // namespace

frmNewAccount::frmNewAccount()
    : DialogForm({.className = "frmNewAccount",
                  .caption = "New Account",
                  .width = kWidth,
                  .height = kHeight,
                  .origin = Origin::Desk,
                  .keepsLoaded = true}),
      txpHead(*this, "txpHead"),
      txpStation(*this, "txpStation"),
      txpGroup(*this, "txpGroup"),
      SelGrid1(*this, "SelGrid1") {
  Member("AccountCode", AccountCode);
  long top = kEdge;
  const auto place = [&top](CTextPlus& field, const char* caption) {
    field.Caption = caption;
    field.Move(kEdge, top, kWidth - 2 * kEdge, kLine);
    top += kLine + kEdge;
  };
  place(txpHead, "A/c Head");
  place(txpStation, "Station");
  place(txpGroup, "Group");
  txpHead.TextBox.MaxLength = kHeadLength;
  txpStation.TextBox.MaxLength = kStationLength;
  SelGrid1.Move(0, 0, 5400, 2700);
  SelGrid1.Visible = false;
  txpGroup.GotFocus = [this] {
    if (!SelGrid1.Visible) SelGrid1.OpenUnder(txpGroup);
  };
  txpGroup.LostFocus = [this] { SelGrid1.Close(); };
  txpGroup.Change = [this] { txpGroup.Tag = ""; };
  txpGroup.Validate = [this](bool& cancel) { cancel = !CheckGroup(); };
  SelGrid1.Selected = [this] { txpGroup.Tag = SelGrid1.Cell(SelGrid1.Grid.Row, 1); };
}

void frmNewAccount::LoadDialog() {
  SelGrid1.Load("Select CtgName,CtgNo from CtgMaster order by CtgName", gSession->MainDb(), false, 0);
  SelGrid1.Grid.SetColWidth(0, SelGrid1.Width);
  SelGrid1.Grid.SetColWidth(1, 0);
}

void frmNewAccount::OnActivate() { txpHead.SetFocus(); }

bool frmNewAccount::CheckGroup() {
  if (!txpGroup.Tag->empty() || txpGroup.Text->empty()) return true;
  if (!SelGrid1.HasChoice()) {
    gStd->MsgBox("No group is found by \"" + txpGroup.Text() + "\".", "", "W");
    return false;
  }
  const int line = SelGrid1.Grid.Row;
  txpGroup.Text = SelGrid1.Cell(line, 0);
  txpGroup.Tag = SelGrid1.Cell(line, 1);
  return true;
}

bool frmNewAccount::Confirm() {
  txpHead.Text = gStd->TidyName(txpHead.Text());
  if (gStd->PressHead(txpHead.Text()).empty()) return RefuseAt(txpHead, "Type the account's head.", "W");
  if (!CheckGroup()) return false;
  if (txpGroup.Tag->empty()) return RefuseAt(txpGroup, "Choose the account's group.", "W");
  if (!IsNewHead()) return false;
  Store();
  return true;
}

/// Heads that begin alike are shown; one that is there at the same station is not added.
bool frmNewAccount::IsNewHead() {
  CDbLink& year = gSession->MainDb();
  const std::string pressed = gStd->PressHead(txpHead.Text());
  if (!year.RowExists("Select first 1 Code from FAHeads where PressHead like " +
                      books::SqlString(pressed + "%")))
    return true;
  if (year.RowExists(
          "Select first 1 h.Code from FAHeads h inner join FAMaster m on m.mcd=h.Code where h.PressHead=" +
          books::SqlString(pressed) + " and upper(coalesce(m.mst,''))=upper(" +
          books::SqlString(text::Trim(txpStation.Text())) + ")"))
    return RefuseAt(txpHead, "This account is in the books already.", "W");
  const FormPtr similar = ModuleScreen(*this, "similarachead");
  if (!similar) return false;
  similar->Set("mhd", pressed);
  gStd->ShowDialog(similar, Self());
  return gStd->AskYesNo("Add \"" + txpHead.Text() + "\" all the same?", "Q", IStd::kNo);
}

void frmNewAccount::Store() {
  CDbLink& year = gSession->MainDb();
  TransactionScope work(year);
  AccountCode = year.Lookup("FAMaster", "Max(mcd)", "").ToInteger() + 1;
  const std::string code = books::SqlNumber(AccountCode);
  const std::string head = books::SqlString(txpHead.Text());
  year.Execute("insert into FAMaster (mcd,mhd,mst,mbshno) values (" + code + "," + head + "," +
               books::SqlString(text::Trim(txpStation.Text())) + "," +
               books::SqlNumber(ValInteger(txpGroup.Tag())) + ")");
  year.Execute("insert into FAHeads (Code,SubCode,Head,PressHead) values (" + code + ",0," + head + "," +
               books::SqlString(gStd->PressHead(txpHead.Text())) + ")");
  work.Commit();
}

}  // namespace quillon
