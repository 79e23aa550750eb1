#pragma once

#include <string>

#include "entry/DataFormType.h"
#include "host/controls/CButton.h"
#include "host/controls/CEditGrid.h"
#include "host/controls/CSelGrid.h"
#include "host/controls/ComboBox.h"
#include "host/controls/ControlArray.h"
#include "host/controls/Label.h"
#include "host/controls/TextBox.h"
#include "host/forms/Form.h"

namespace quillon {

/// "Data Form Properties": defines a data form, on which each row is a voucher: its kind, its title and up to
/// ten columns of amounts with the accounts that they are posted to.
class frmDataFormSetup : public Form {
 public:
  frmDataFormSetup();

  Label lblFormType;
  ComboBox cmbFormType;
  Label lblForm;
  ComboBox cmbForm;
  Label lblFormTitle;
  TextBox txtFormTitle;
  Label lblGrid;
  CEditGrid Grid;
  ControlArray<CommandButton> Command2;  ///< the row at hand up (0) and down (1)
  ControlArray<CButton> Command1;        ///< save, cancel, delete the row, delete the form
  CSelGrid SelGrid1;

 protected:
  void OnLoad() override;
  void OnKeyDown(KeyEvent& key) override;
  void OnKeyPress(int& character) override { MoveOnAtEnter(character); }

 private:
  void DesignControls();
  void PlaceButtons();
  void Connect();
  void ConnectGrid();
  void SetColumns();
  void NumberRows(const char* stem);
  void FillForms();
  void LoadForm();
  void FillColumns();
  void OpenHeads(int col);
  void CheckHead(int row, std::string& head);
  void TakeHead();
  bool HasColumns() const;
  void Save();
  void SaveForm();
  void SaveColumns();
  void MoveRow(int by);
  void DeleteRow();
  void DeleteForm();
  void DeleteDefinition();

  const DataFormType& Type() const;
  std::string FormName() const { return cmbForm.Text(); }
};

}  // namespace quillon
