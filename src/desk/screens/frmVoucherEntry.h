#pragma once

#include <optional>
#include <string>

#include "desk/services/StoredVoucher.h"
#include "desk/services/VoucherDraft.h"
#include "host/controls/CGridPlus.h"
#include "host/controls/CSelGrid.h"
#include "host/controls/CTextPlus.h"
#include "host/controls/ComboBox.h"
#include "host/forms/ScreenForm.h"

namespace quillon {

/// Vouchers of the open year are entered, changed and deleted, one after the other.
class frmVoucherEntry : public ScreenForm {
 public:
  frmVoucherEntry();

  /// The voucher to begin with; 0 begins with a new one.
  std::int64_t VoucherID = 0;

  Label lblKind;
  ComboBox cmbKind;
  CTextPlus txpDay;
  CTextPlus txpNumber;
  CTextPlus txpMain;
  CGridPlus Grid;
  CTextPlus txpNarration;
  CTextPlus txpChqNo;
  Label lblMissing;
  CSelGrid SelGrid1;  ///< the accounts of the lines
  CSelGrid SelGrid2;  ///< those that may be the main account

 protected:
  void BuildBar() override;
  void LoadScreen() override;
  void FirstShow() override;
  void Pressed(const std::string& key) override;
  bool EndEditing() override;
  bool HasUnsavedWork() const override { return IsUnsaved(); }
  void ShownAgain() override;
  void OnKeyDown(KeyEvent& key) override;

 private:
  void DesignControls();

  // Which voucher is on the screen.
  void StartNew();
  void ShowStored(std::int64_t id);
  void ShowDraft(const VoucherDraft& draft);
  void Step(int direction);
  bool MayLeaveVoucher() const;
  bool IsUnsaved() const;
  bool IsBlank() const;

  // The fields around the lines.
  void ConnectFields();
  void ChooseKind(VoucherKind kind);
  void ShowKind();
  void LoadLists();
  void LoadMainAccounts();
  void ProposeMain();
  void PutMain(std::int64_t code);
  Date TypedDay() const;
  bool CheckDay();
  bool CheckMain();
  void ShowNumber();
  void ProposeCheque();
  bool TakesCheque() const;
  VoucherDraft ReadDraft() const;
  std::int64_t MainCode() const;

  // The lines.
  void ConnectGrid();
  void SetColumns();
  void ShowLines(const std::vector<VoucherLine>& lines);
  std::vector<VoucherLine> ReadLines() const;
  void BeforeEdit(int row, int column, bool& cancel, std::string& action);
  void CellOpened(int row, int column);
  void EnterInCell(int row, int column, KeyEvent& key);
  void EnterOnHead(int row);
  void CheckCell(int row, int column, std::string& text, bool& cancel);
  void CheckHead(int row, std::string& text, bool& cancel);
  void CheckAmount(int row, int column, std::string& text, bool& cancel);
  void TakeAccount();
  void PutAccount(int row, int line);
  void LeaveLines();
  void OpenCell(int row, int column);
  int AmountColumn(int row) const;
  int FreeRow() const;
  bool HasCode(int row) const;
  void ShowSums();

  // What is done with the voucher.
  bool Save();
  bool MayStore() const;
  bool MayLoseClearing(const VoucherDraft& draft) const;
  bool IsFaultless(const VoucherDraft& draft);
  bool Store(const VoucherDraft& draft);
  NewVoucher AsStored(const VoucherDraft& draft);
  bool RefuseAtFault(const VoucherFault& fault);
  bool IsNoDouble(const VoucherDraft& draft);
  void Delete();
  void OpenChequeForm();
  void AddAccount();
  void OpenLeaves();

  VoucherKind kind_ = VoucherKind::kCashPayment;
  Date lastDay_;
  std::int64_t lastSaved_ = 0;
  std::string proposedNumber_;
  std::optional<StoredVoucher> stored_;
  VoucherDraft start_;
};

}  // namespace quillon
