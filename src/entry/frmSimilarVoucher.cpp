#include "entry/frmSimilarVoucher.h"

#include <algorithm>

#include "host/forms/GridColumns.h"
#include "host/forms/Runtime.h"
#include "host/forms/RuntimeBox.h"
#include "host/services/host_services.h"
#include "host/values/Text.h"

namespace quillon {

namespace {

constexpr int kSave = 0;
constexpr int kDoNotSave = 1;
constexpr int kColumns = 5;

/// Sales and purchases, in both writings of their types.
bool IsBill(const std::string& type) {
  const std::string kind = text::Left(type, 2);
  return kind == "S" || kind == "P" || kind == "SL" || kind == "PR";
}

}  // namespace

frmSimilarVoucher::frmSimilarVoucher()
    : Form("frmSimilarVoucher"),
      lblTitle(*this, "lblTitle"),
      lblAcHead(*this, "lblAcHead"),
      Grid(*this, "Grid"),
      Check1(*this, "Check1"),
      Command1(*this, "Command1", {kSave, kDoNotSave}) {
  Member("Cancelled", Cancelled);
  Member("DontShow", DontShow);
  Member("dTrnType", dTrnType);
  Member("CurVoucherID", CurVoucherID);
  Method("AddEntry", [this](const Array& given) -> Variant {
    if (given.empty()) throw HostError("AddEntry needs more arguments");
    std::vector<std::string> entries;
    for (const Variant& entry : given.front().ToArray()) entries.push_back(entry.ToText());
    AddEntry(entries);
    return {};
  });
  DesignControls();
  Command1(kSave).Click = [this] { Leave(true); };
  Command1(kDoNotSave).Click = [this] { Leave(false); };
}

void frmSimilarVoucher::OnLoad() {
  gApp->InitForm(*this);
  SetColumns();
  Grid.Redraw = false;
  if (IsBill(dTrnType) && gSession->Firm().Parameter(CFirm::kForbidSimilarBills) == "Yes") {
    Command1(kSave).Enabled = false;
  }
  if (CurVoucherID == 0) return;
  Command1(kSave).Caption = "Modify this Voucher";
  Command1(kDoNotSave).Caption = "Do not Modify this Voucher";
}

void frmSimilarVoucher::SetColumns() {
  gStd->SetupGrid(Grid);
  Grid.Rows = 1;
  Grid.Cols = kColumns;
  SetColumnsInChars(Grid, {{0, "Date", 12, kAlignLeft},
                           {1, "Book", 6, kAlignCentre},
                           {2, "Vch. No.", 10, kAlignLeft},
                           {3, "Narration", 42, kAlignLeft},
                           {4, "Amount", 15, kAlignRight}});
}

void frmSimilarVoucher::AddEntry(const std::vector<std::string>& entries) {
  gRuntime->Load(Self());
  Grid.Rows = ++count_ + 1;
  const int last = std::min(static_cast<int>(entries.size()), kColumns);
  for (int col = 0; col < last; ++col) {
    Grid.SetTextMatrix(count_, col, entries[static_cast<std::size_t>(col)]);
  }
}

void frmSimilarVoucher::OnActivate() {
  Grid.Rows = 1 + count_;
  Grid.Redraw = true;
  if (!Command1(kSave).Enabled) Command1(kDoNotSave).SetFocus();
}

void frmSimilarVoucher::Leave(bool goesOn) {
  const FormPtr alive = Self();
  if (goesOn) {
    Cancelled = false;
    DontShow = Check1.CheckValue == 1;
  }
  gRuntime->Unload(*this);
  gRuntime->DoEvents();
  if (Cancelled) TellInBox(*this, CurVoucherID != 0 ? "Voucher Not Modified" : "Voucher Not Saved", "I");
}

void frmSimilarVoucher::OnKeyDown(KeyEvent& key) {
  if (key.KeyCode != keys::kEscape) return;
  key.KeyCode = 0;
  gRuntime->Unload(*this);
}

}  // namespace quillon
