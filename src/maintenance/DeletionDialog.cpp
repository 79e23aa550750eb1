#include "maintenance/DeletionDialog.h"

#include "books/SqlText.h"
#include "host/services/host_services.h"
#include "host/values/Text.h"

namespace quillon {

namespace {

constexpr std::int32_t kCash = 1;
constexpr long kWidth = 6600;
constexpr long kEdge = 150;

}  // namespace

DeletionDialog::DeletionDialog(const char* className, const char* caption, long height)
    : DialogForm({.className = className,
                  .caption = caption,
                  .width = kWidth,
                  .height = height,
                  .buttons = "Command2",
                  .okCaption = "OK",
                  .cancelCaption = "Cancel"}),
      Frame1(*this, "Frame1"),
      Text1(Frame1, "Text1") {
  Member("AcCode", AcCode);
  Frame1.Caption = "A/c Head";
  Frame1.Move(kEdge, kEdge, kWidth - 2 * kEdge, 870);
  Text1.Move(180, 390, kWidth - 2 * kEdge - 360, 360);
  Text1.Locked = true;
  Text1.TabStop = false;
}

CDbLink& DeletionDialog::Db() { return gSession->MainDb(); }

void DeletionDialog::LoadDialog() {
  const std::string code = books::SqlNumber(AcCode);
  Text1.Text = Db().Lookup("FAMASTER", "mhd", "mcd=" + code).ToText();
  Text1.Tag = code;
}

void DeletionDialog::OnActivate() {
  if (AcCode == kCash) {
    gStd->MsgBox("Mass Deletion of Cash Account not allowed.", "", "W");
    gRuntime->Unload(*this);
  } else if (ActiveControl() == nullptr) {
    FirstField().SetFocus();
  }
}

/// What was deleted before a failure stays deleted.
bool DeletionDialog::Confirm() {
  try {
    return Delete();
  } catch (const std::exception& error) {
    gApp->ReportError(error, this, "Command2_Click");
    Close();
    return false;
  }
}

bool DeletionDialog::Confirmed() { return gStd->AskYesNo("Are you sure to delete entries"); }

CDataSet DeletionDialog::Entries(const std::string& condition) const {
  CDataSet entries;
  entries.CursorLocation = CDataSet::kUseClient;
  entries.Open("Select * from FAData where dcd=" + books::SqlNumber(Text1.Tag()) + condition, Db(), 3, 1);
  entries.SetActiveConnection(nullptr);
  return entries;
}

std::int64_t DeletionDialog::DocumentOf(std::int64_t voucher) {
  return Db().Lookup("DOCMAIN", "DOCUMENTID", "DocVoucherID=" + books::SqlNumber(voucher)).ToInteger();
}

}  // namespace quillon
