#include "desk/screens/frmParameters.h"

#include <span>
#include <string>
#include <utility>

#include "books/SqlText.h"
#include "host/data/TransactionScope.h"
#include "host/services/IApp.h"
#include "host/services/ISession.h"

namespace quillon {

namespace {

/// What is stored, and what a person reads. The first one holds where nothing is stored.
using Answer = std::pair<const char*, const char*>;

constexpr Answer kNoOrYes[] = {{"No", "No"}, {"Yes", "Yes"}};
constexpr Answer kDecimals[] = {{"2", "Two"}, {"4", "Four"}};
constexpr Answer kYears[] = {{"Apr-Mar", "The financial year"}, {"Jan-Dec", "The calendar year"}};
constexpr Answer kModes[] = {{"0", "Pages"}, {"2", "Plain text"}};

/// The firm's parameters by their numbers; number 0 is the user's own setting.
struct Choice {
  int Number;
  const char* Caption;
  std::span<const Answer> Answers;
};

const Choice kChoices[] = {
    {CFirm::kForbidSimilarBills, "A bill that resembles another one is refused", kNoOrYes},
    {CFirm::kSerialColumn, "Statements show serial numbers", kNoOrYes},
    {CFirm::kAmountDecimals, "Decimals of interest", kDecimals},
    {CFirm::kInterestYear, "Year whose days interest is reckoned on", kYears},
    {0, "Your reports are printed as", kModes}};
constexpr int kCount = 5;
constexpr const char* kPrinterMode = "PrinterMode";

std::string Stored(const Choice& choice) {
  return choice.Number == 0 ? gApp->GetUserSetting(kPrinterMode) : gSession->Firm().Parameter(choice.Number);
}

void Store(const Choice& choice, const std::string& value) {
  if (choice.Number == 0) {
    gApp->PutUserSetting(kPrinterMode, value);
    return;
  }
  gSession->CommonDb().Execute("update or insert into FirmParameters (ParameterNo,ParameterText) values (" +
                               books::SqlNumber(choice.Number) + "," + books::SqlString(value) +
                               ") matching (ParameterNo)");
}

}  // namespace

frmParameters::frmParameters()
    : DialogForm({.className = "frmParameters",
                  .caption = "Parameters",
                  .width = 8400,
                  .height = 4200,
                  .origin = Origin::Desk}),
      lblChoice(*this, "lblChoice", {0, 1, 2, 3, 4}),
      cmbChoice(*this, "cmbChoice", {0, 1, 2, 3, 4}) {
  DesignControls();
}

void frmParameters::DesignControls() {
  constexpr long kEdge = 240;
  constexpr long kLine = 360;
  for (int i = 0; i < kCount; ++i) {
    const long top = kEdge + i * 480L;
    lblChoice(i).Caption = kChoices[i].Caption;
    lblChoice(i).Move(kEdge, top + 30, 4800, kLine);
    cmbChoice(i).Move(5160, top, Width - 5160 - kEdge, kLine);
  }
}

void frmParameters::LoadDialog() {
  shown_.clear();
  for (int i = 0; i < kCount; ++i) {
    ComboBox& box = cmbChoice(i);
    box.Clear();
    const std::string stored = Stored(kChoices[i]);
    int chosen = 0;
    for (const auto& [value, words] : kChoices[i].Answers) {
      if (stored == value) chosen = box.ListCount();
      box.AddItem(words);
    }
    box.SetListIndex(chosen);
    shown_.push_back(chosen);
  }
}

void frmParameters::OnActivate() {
  if (ActiveControl() == nullptr) cmbChoice(0).SetFocus();
}

/// What was not changed is not stored, so that another user's change stands.
bool frmParameters::Confirm() {
  TransactionScope work(gSession->CommonDb());
  for (int i = 0; i < kCount; ++i) {
    const auto chosen = static_cast<std::size_t>(cmbChoice(i).ListIndex());
    const bool isNew = cmbChoice(i).ListIndex() != shown_[static_cast<std::size_t>(i)];
    if (isNew) Store(kChoices[i], kChoices[i].Answers[chosen].first);
  }
  work.Commit();
  return true;
}

}  // namespace quillon
