#include "desk/screens/frmFilterAc.h"

#include "books/SqlText.h"
#include "host/data/CDataSet.h"
#include "host/forms/Fields.h"
#include "host/services/ISession.h"
#include "host/services/IStd.h"
#include "host/values/Text.h"

namespace quillon {

frmFilterAc::frmFilterAc()
    : DialogForm({.className = "frmFilterAc",
                  .caption = "Filter Accounts",
                  .width = 6600,
                  .height = 7200,
                  .origin = Origin::Desk,
                  .keepsLoaded = true}),
      lblTitle(*this, "lblTitle"),
      lstAccounts(*this, "lstAccounts"),
      cmdCheck(*this, "cmdCheck"),
      cmdUnCheck(*this, "cmdUnCheck") {
  Member("SelectionOnly", SelectionOnly);
  Member("pBackOnly", pBackOnly);
  Member("AcCnd", AcCnd);
  Member("CaptionTitle", CaptionTitle);
  DesignControls();
  cmdCheck.Click = [this] { TickAll(lstAccounts, true); };
  cmdUnCheck.Click = [this] { TickAll(lstAccounts, false); };
}

void frmFilterAc::LoadDialog() {
  std::vector<std::string> heads;
  codes_.clear();
  CDataSet accounts;
  for (accounts.Open("Select mhd,mst,mcd from FAMaster order by mhd,mst", gSession->MainDb());
       !accounts.Eof(); accounts.MoveNext()) {
    const std::string station = accounts.Field("mst").ToText();
    heads.push_back(accounts.Field("mhd").ToText() + (station.empty() ? "" : ", " + station));
    codes_.push_back(accounts.Field("mcd").ToInteger());
  }
  FillCheckList(lstAccounts, heads, true);
}

bool frmFilterAc::Confirm() {
  const std::vector<std::string> heads = TickedItems(lstAccounts);
  if (heads.empty()) {
    gStd->MsgBox("No account selected.", "", "W");
    lstAccounts.SetFocus();
    return false;
  }
  std::vector<std::int64_t> codes;
  for (int item = 0; item < lstAccounts.ListCount(); ++item) {
    if (lstAccounts.Selected(item)) codes.push_back(codes_.at(static_cast<std::size_t>(item)));
  }
  const bool all = codes.size() == codes_.size();
  AcCnd = all ? "" : "a.dcd in (" + books::SqlNumbers(codes) + ")";
  CaptionTitle = all ? "" : "Accounts: " + text::Join(heads, "; ");
  return true;
}

}  // namespace quillon
