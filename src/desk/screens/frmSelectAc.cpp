#include "desk/screens/frmSelectAc.h"

#include "host/services/ISession.h"
#include "host/services/IStd.h"
#include "host/values/Text.h"

namespace quillon {

frmSelectAc::frmSelectAc()
    : DialogForm({.className = "frmSelectAc",
                  .caption = "Select Account",
                  .width = 9000,
                  .height = 7500,
                  .origin = Origin::Desk,
                  .keepsLoaded = true}),
      lblTitle(*this, "lblTitle"),
      txpAccount(*this, "txpAccount"),
      SelGrid1(*this, "SelGrid1") {
  Member("SelectAc", SelectAc);
  Member("Cnd", Cnd);
  Member("TblName", TblName);
  Member("ColWidth2", ColWidth2);
  Member("SelQry", SelQry);
  Member("Modify", Modify);
  Member("ModifyCode", ModifyCode);
  Member("modifytxt", modifytxt);
  DesignControls();
  SelGrid1.Selected = [this] { Take(); };
  SelGrid1.NotFound = [this](const std::string& typed) { TellNotFound(typed); };
}

void frmSelectAc::LoadDialog() {
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

/// A pick closes the dialog by itself.
bool frmSelectAc::Confirm() {
  if (!SelGrid1.PickChoice()) TellNotFound(txpAccount.Text());
  return false;
}

/// Nothing is taken that nobody asked for, and the user stays in the field.
void frmSelectAc::TellNotFound(const std::string& typed) {
  gStd->MsgBox(typed.empty() ? "Type the beginning of a word of the account's head, or move to its line."
                             : "No account is found by \"" + typed + "\".",
               "", "W");
  txpAccount.SetFocus();
}

void frmSelectAc::Take() {
  const int row = SelGrid1.Grid.Row;
  Modify = true;
  ModifyCode = static_cast<long>(ValInteger(SelGrid1.Cell(row, 1)));
  modifytxt = SelGrid1.Cell(row, 0);
  Cancelled = false;
  Close();
}

}  // namespace quillon
