#pragma once

#include <initializer_list>
#include <memory>
#include <string>

#include "host/controls/CButton.h"
#include "host/controls/CTextPlus.h"
#include "host/controls/CheckBox.h"
#include "host/controls/ComboBox.h"
#include "host/controls/CommandButton.h"
#include "host/controls/ControlArray.h"
#include "host/controls/Label.h"
#include "host/controls/PictureBox.h"
#include "host/controls/TextBox.h"
#include "host/forms/ScreenForm.h"
#include "layout/FocusPanel.h"
#include "layout/LayoutBoard.h"

namespace quillon {

class StoredLayout;

/// "Cheque Print": shows a voucher's cheque, prints it, and keeps for each bank account where every item
/// lands on the leaf. The preview shows the cheque; Settings brings up the layout, eleven objects at their
/// true places over an inch grid.
class frmChqPrint : public ScreenForm {
 public:
  frmChqPrint();

  /// The caller's voucher form, which answers NextCheque(form, -1 or 1); nothing leaves Prev and Next without
  /// effect.
  std::shared_ptr<Object> fDataForm;

  /// 0 takes the bank of the user's last cheque, if there was one.
  long BankCode = 0;
  long PartyCode = 0;
  std::string PayTo;
  std::string Station;
  quillon::Amount Amount;
  std::string vDate;
  std::string Narration;
  std::string ChqNo;
  std::string Remarks;

  /// Kept for the caller.
  bool MultiPrint = false;

  /// What is kept with the layout besides the controls.
  struct KeptState {
    std::string BankAcNo;
    double AmtWd = 0;   ///< inches for the amount in words; below 2 it is not split over two lines
    int DateStyle = 0;  ///< an index of cmbDateStyle
  };
  KeptState Kept;

  /// Fills all captions from the members; the caller calls it after a change of them.
  void UpdateLabels();

  /// What stands on the cheque, for the captions and for the paper alike.
  std::string PayeeText() const;
  std::string AmountText() const;
  std::string NotExceedingText() const;

  /// The cheque's date by a picture, as Date::Format takes it; a text that is no date stays as it is.
  std::string DateText(const std::string& picture) const;

  /// The object of a Tag, case ignored; nothing when there is none.
  Label* ObjectOf(const std::string& tag) { return board_.Find(tag); }

  /// Gives every object the font. One that the machine lacks is told once, and size and bold still apply.
  void TakeFonts(const std::string& name, double size, bool bold, StoredLayout& reading);

  static constexpr int kPlainDate = 0;
  static constexpr int kSlashDate = 1;
  static constexpr int kBoxDate = 2;

  /// The date style that a stored text means; the plain one for what is none.
  static int DateStyleOf(const std::string& text);

  /// Prints the cheque; the flag asks for the printer first.
  void PrintChq(bool bPrintSettings);

  /// The grid in inches and eighths.
  void DrawGrid() { board_.DrawGrid(); }

  /// Copies the layout, without the account's number, to another account of the firm, which the user picks.
  void ExportChqSettings();

  ControlArray<Label> Lbl;

  PictureBox pic2;
  Label lblPreview;
  PictureBox picBankName;
  TextBox txpBank;
  PictureBox picCheque;
  Label lblDate0;
  Label lblPayTo0;
  Label lblRupees0;
  Label lblRs0;
  Label lblDate2;
  Label lblPayTo2;
  Label lblAmountInWords2;
  Label lblAmountInWords22;
  Label lblAmount2;
  Label lblAcNo2;
  Label lblAcNo20;
  Label lblChqNo2;
  Label lblBankName2;
  Label lblBankAdd2;
  Label lblFor2;
  Label lblSignatory2;
  Label lblPayeesAc2;
  Label lblRemarks2;
  Label lblRemarks20;

  FocusPanel picOpt;
  CheckBox Check1;
  CheckBox Check2;
  CheckBox Check3;
  CheckBox Check4;
  CheckBox chkStation;
  CheckBox chkNotExceeding;
  CheckBox chkBankDetails;
  Label lblDateStyle;
  ComboBox cmbDateStyle;
  CTextPlus txpTopMargin;
  CTextPlus txpLeftMargin;
  CTextPlus txpDateChrGap;
  ControlArray<Label> lblUnit;
  CommandButton btnPayTo;
  CommandButton btnAcNo;
  CommandButton btnRemarks;
  CommandButton btnFont;
  CommandButton btnAmtWidth;
  ControlArray<CButton> btnSettings;
  ControlArray<CButton> btnOKCancel;
  Label lblHint;

 protected:
  void BuildBar() override;
  void LoadScreen() override;
  void UnloadScreen() override;
  void Pressed(const std::string& key) override;
  void Print(bool print) override;
  void OnKeyDown(KeyEvent& key) override;

 private:
  // --- The screen
  void DesignControls();
  void DesignPreview();
  void DesignCheque();
  void DesignObjects();
  void DesignOptions();
  void DesignButtons();
  void ConnectOptions();
  void ConnectPreview();
  void ConnectButtons();

  // --- The captions
  void ShowCaption();
  void ShowPayTo();
  void ShowAmounts();
  void ShowSigners();
  void ShowChqNo();
  void ShowAcNo();
  void ShowRemarks();
  void ShowBank();
  void ShowDateStyle();
  void ClearPayeesAcOfSelf();

  // --- What the user does
  void ShowLayout();
  void ChooseDateStyle();
  void AskPayTo();
  void AskAcNo();
  void AskRemarks();
  void AskAmtWidth();
  void AskFont();
  void StepCheque(int direction);
  void PressSettings(int index);
  void DeleteSettings();
  void SaveChqDef();
  std::string DefFileName() const;
  void ImportChqDef();
  bool RequireBank() const;
  void LeaveToPanel();
  LayoutBoard::Limits Limits() const;

  std::string narrationLeft_;  ///< what the captions leave of the narration
  std::string numberTaken_;    ///< and the number that they took out of it
  LayoutBoard board_{*this, Lbl};
};

}  // namespace quillon
