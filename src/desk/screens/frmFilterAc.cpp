#include "desk/screens/frmFilterAc.h"

#include <algorithm>
#include <span>

#include "books/SqlText.h"
#include "host/data/CDataSet.h"
#include "host/forms/Fields.h"
#include "host/services/ISession.h"
#include "host/services/IStd.h"
#include "host/values/Text.h"

namespace quillon {

namespace {

constexpr int kMostNamed = 5;

/// The engine takes no more of them in one list.
constexpr std::size_t kMostInList = 1000;

/// "(b.mcd in (…) or b.mcd in (…))", or that none of them is it.
std::string CodesCondition(const std::vector<std::int64_t>& codes, bool isOneOf) {
  std::string condition;
  for (std::size_t from = 0; from < codes.size(); from += kMostInList) {
    const std::span<const std::int64_t> some =
        std::span(codes).subspan(from, std::min(kMostInList, codes.size() - from));
    if (from > 0) condition += isOneOf ? " or " : " and ";
    condition += std::string("b.mcd ") + (isOneOf ? "in (" : "not in (") + books::SqlNumbers(some) + ")";
  }
  return codes.size() > kMostInList ? "(" + condition + ")" : condition;
}

}  // namespace

frmFilterAc::frmFilterAc()
    : DialogForm({.className = "frmFilterAc",
                  .caption = "Filter Accounts",
                  .width = 6600,
                  .height = 7200,
                  .origin = Origin::Desk,
                  .keepsLoaded = true}),
      lblTitle(*this, "lblTitle"),
      cmbGroup(*this, "cmbGroup"),
      lstAccounts(*this, "lstAccounts"),
      cmdCheck(*this, "cmdCheck"),
      cmdUnCheck(*this, "cmdUnCheck") {
  Member("SelectionOnly", SelectionOnly);
  Member("pBackOnly", pBackOnly);
  Member("AcCnd", AcCnd);
  Member("CaptionTitle", CaptionTitle);
  DesignControls();
  cmbGroup.Click = [this] { FillAccounts(); };
  cmdCheck.Click = [this] { TickAll(lstAccounts, true); };
  cmdUnCheck.Click = [this] { TickAll(lstAccounts, false); };
}

void frmFilterAc::LoadDialog() {
  cmbGroup.Clear();
  cmbGroup.AddItem("All Groups");
  CDataSet groups;
  for (groups.Open(
           "Select CtgName,CtgNo from CtgMaster where CtgNo in (Select mbshno from FAMaster) order by "
           "CtgName",
           gSession->MainDb());
       !groups.Eof(); groups.MoveNext()) {
    cmbGroup.AddItem(groups.Field("CtgName").ToText(), groups.Field("CtgNo").ToInteger());
  }
  cmbGroup.SetListIndex(0);
}

void frmFilterAc::OnActivate() {
  if (ActiveControl() == nullptr) cmbGroup.SetFocus();
}

std::string frmFilterAc::GroupCondition() const {
  const int group = cmbGroup.ListIndex();
  return group > 0 ? "b.mbshno=" + books::SqlNumber(cmbGroup.ItemData(group)) : "";
}

void frmFilterAc::FillAccounts() {
  std::vector<std::string> heads;
  codes_.clear();
  std::string group = GroupCondition();
  CDataSet accounts;
  for (accounts.Open("Select b.mhd,b.mst,b.mcd from FAMaster b" + (group.empty() ? "" : " where " + group) +
                         " order by b.mhd,b.mst",
                     gSession->MainDb());
       !accounts.Eof(); accounts.MoveNext()) {
    const std::string station = accounts.Field("mst").ToText();
    heads.push_back(accounts.Field("mhd").ToText() + (station.empty() ? "" : ", " + station));
    codes_.push_back(accounts.Field("mcd").ToInteger());
  }
  FillCheckList(lstAccounts, heads, true);
}

bool frmFilterAc::Confirm() {
  if (lstAccounts.SelCount() == 0) return RefuseAt(lstAccounts, "No account selected.", "W");
  AcCnd = Condition();
  CaptionTitle = Words();
  return true;
}

/// The shorter list of the two is taken.
std::string frmFilterAc::Condition() const {
  std::vector<std::int64_t> ticked;
  std::vector<std::int64_t> others;
  for (int item = 0; item < lstAccounts.ListCount(); ++item) {
    (lstAccounts.Selected(item) ? ticked : others).push_back(codes_.at(static_cast<std::size_t>(item)));
  }
  std::string group = GroupCondition();
  if (others.empty()) return group;
  if (ticked.size() <= others.size()) return CodesCondition(ticked, true);
  return (group.empty() ? "" : group + " and ") + CodesCondition(others, false);
}

std::string frmFilterAc::Words() const {
  const int all = lstAccounts.ListCount();
  const int ticked = lstAccounts.SelCount();
  const std::string group = cmbGroup.ListIndex() > 0 ? cmbGroup.Text() : "";
  if (ticked == all) return group.empty() ? "" : "Group: " + group;
  if (ticked <= kMostNamed) return "Accounts: " + text::Join(TickedItems(lstAccounts), "; ");
  return "Accounts: " + std::to_string(ticked) + " of " + std::to_string(all) +
         (group.empty() ? "" : " of " + group);
}

}  // namespace quillon
