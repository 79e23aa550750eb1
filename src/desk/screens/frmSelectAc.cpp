#include "desk/screens/frmSelectAc.h"

#include "host/forms/Runtime.h"
#include "host/services/ISession.h"
#include "host/services/IStd.h"
#include "host/values/Text.h"

namespace quillon {

frmSelectAc::frmSelectAc()
    : Form("frmSelectAc", Origin::Desk),
      lblTitle(*this, "lblTitle"),
      txpAccount(*this, "txpAccount"),
      SelGrid1(*this, "SelGrid1"),
      btnOKCancel(*this, "btnOKCancel", {0, 1}) {
  Member("SelectAc", SelectAc);
  Member("Cnd", Cnd);
  Member("TblName", TblName);
  Member("ColWidth2", ColWidth2);
  Member("SelQry", SelQry);
  Member("Modify", Modify);
  Member("ModifyCode", ModifyCode);
  Member("modifytxt", modifytxt);
  Caption = "Select Account";
  lblTitle.Caption = "   Select Account";
  Width = 9000;
  Height = 7500;
  Left = (gRuntime->ScreenWidth() - Width) / 2;
  Top = (gRuntime->ScreenHeight() - Height) / 2;
  lblTitle.Move(0, 0, Width, 420);
  txpAccount.Caption = "A/c Head";
  txpAccount.Move(120, 540, Width - 240, 375);
  SelGrid1.Move(120, 1020, Width - 240, Height - 1020 - 660);
  btnOKCancel(0).Caption = "F7: OK";
  btnOKCancel(0).Move(Width - 3270, Height - 540, 1500, 420);
  btnOKCancel(1).Caption = "Esc: Cancel";
  btnOKCancel(1).Move(Width - 1650, Height - 540, 1500, 420);
  SelGrid1.Title.Caption = "Select an Account";
  SelGrid1.Selected = [this] { Take(); };
  SelGrid1.NotFound = [this](const std::string& typed) { TellNotFound(typed); };
  btnOKCancel(0).Click = [this] { Confirm(); };
  btnOKCancel(1).Click = [this] { gRuntime->Hide(*this); };
}

void frmSelectAc::OnLoad() {
  const std::string inUse =
      "(m.mDeactiveDate>" + gStd->SqlDate(gSession->Year().StartDate()) + " or m.mDeactiveDate is null)";
  const std::string query = !SelQry.empty()
                                ? SelQry
                                : "Select m.mhd,m.mcd,m.mst from FAMaster m where " + inUse +
                                      (Cnd.empty() ? "" : " and " + Cnd) + " order by m.mhd,m.mst";
  SelGrid1.Load(query, gSession->MainDb(), false, ColWidth2);
  SelGrid1.Grid.SetColWidth(1, 0);
  for (int col = 3; col < SelGrid1.Grid.Cols; ++col) SelGrid1.Grid.SetColWidth(col, 0);
  if (SelGrid1.Grid.Cols > 2) SelGrid1.Grid.SetColWidth(2, 2400);
  SelGrid1.SetBoundText(&txpAccount.TextBox);
  txpAccount.SuppressEnter = true;
  Modify = false;
}

void frmSelectAc::OnActivate() { txpAccount.SetFocus(); }

void frmSelectAc::OnKeyDown(KeyEvent& key) {
  if (key.KeyCode != keys::kF7 || key.Shift != 0) return;
  key.KeyCode = 0;
  Confirm();
}

void frmSelectAc::Confirm() {
  if (!SelGrid1.PickMeant()) TellNotFound(txpAccount.Text());
}

/// Nothing is taken that nobody asked for, and the user stays in the field.
void frmSelectAc::TellNotFound(const std::string& typed) {
  gStd->MsgBox(typed.empty() ? "Type the beginning of the account's head, or move to its line."
                             : "No account begins with \"" + typed + "\".",
               "", "W");
  txpAccount.SetFocus();
}

void frmSelectAc::Take() {
  const int row = SelGrid1.Grid.Row;
  Modify = true;
  ModifyCode = static_cast<long>(ValInteger(SelGrid1.Cell(row, 1)));
  modifytxt = SelGrid1.Cell(row, 0);
  gRuntime->Hide(*this);
}

}  // namespace quillon
