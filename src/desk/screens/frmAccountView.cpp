#include "desk/screens/frmAccountView.h"

#include "host/data/CDataSet.h"
#include "host/forms/Runtime.h"
#include "host/services/ISession.h"

namespace quillon {

namespace {

struct FieldSpec {
  const char* title;
  const char* field;
};

constexpr FieldSpec kFields[] = {
    {"A/c Head", "mhd"},
    {"Station", "mst"},
    {"Group", "CtgName"},
    {"Alias", "malias1"},
    {"Contact", "mName"},
    {"Address", "mhda1"},
    {"", "mhda2"},
    {"", "mhda3"},
    {"Pin", "mPin"},
    {"State", "mState"},
    {"Phone (Off.)", "mPhoneOff"},
    {"Mobile", "mCellNo"},
    {"Bank", "mBankName"},
    {"Branch", "mBankBranch"},
    {"IFSC", "mIFSCCode"},
    {"Bank A/c No.", "mBankAcNo"},
};

}  // namespace

frmAccountView::frmAccountView()
    : DialogForm({.className = "frmAccountView",
                  .caption = "Account",
                  .width = 8400,
                  .height = 7200,
                  .origin = Origin::Desk,
                  .onlyCloses = true}),
      Grid(*this, "Grid") {
  Member("AccountCode", AccountCode);
  DesignControls();
}

void frmAccountView::LoadDialog() {
  SetColumns();
  Grid.Rows = static_cast<int>(std::size(kFields)) + 1;
  CDataSet account;
  account.Open("Select a.*,c.CtgName from FAMaster a left join CtgMaster c on a.mbshno=c.CtgNo where a.mcd=" +
                   std::to_string(AccountCode),
               gSession->MainDb());
  int row = 0;
  for (const FieldSpec& field : kFields) {
    ++row;
    Grid.SetTextMatrix(row, 0, field.title);
    if (!account.Eof()) Grid.SetTextMatrix(row, 1, account.Field(field.field).ToText());
  }
}

}  // namespace quillon
