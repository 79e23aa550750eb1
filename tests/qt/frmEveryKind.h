#pragma once

#include "host/controls/host_controls.h"

namespace quillon {

/// A form with one control of each kind.
class frmEveryKind : public Form {
 public:
  frmEveryKind() : Form("frmEveryKind") {
    Width = 12000;
    Height = 9000;
    lblText.Move(150, 150, 3000, 345);
    // An adapter takes clicks on a label or a surface only where the form listens.
    lblText.Click = [] {};
    picSurface.Click = [] {};
    cmdGo.Move(150, 600, 1500, 420);
    chkOn.Move(150, 1200, 2400, 345);
    fraGroup.Move(150, 1650, 3000, 1500);
    optFirst.Move(150, 300, 2400, 345);
    optSecond.Move(150, 750, 2400, 345);
    txtLine.Move(150, 3300, 3000, 345);
    txtLines.MultiLine = true;
    txtLines.Move(150, 3750, 3000, 900);
    txpField.Caption = "Field";
    txpField.PickButton = true;
    txpField.Move(150, 4800, 4500, 375);
    for (const char* item : {"Red", "Green", "Blue"}) cmbOne.AddItem(item);
    cmbOne.Move(150, 5400, 3000, 375);
    lstBooks.CheckBoxes = true;
    for (const char* item : {"Cash", "Bank"}) lstBooks.AddItem(item);
    lstBooks.Move(150, 6000, 3000, 1200);
    picSurface.Move(3600, 150, 600, 600);
    scrSide.Move(3600, 900, 3000, 300);
    BtnBar1.AddButtons({"One,F2: One", "Two,F3: Two", "Gap"});
    BtnBar1.Move(0, 8400, 12000, 510);
    QuillonStdButtons1.Move(10800, 0, 1200, 420);
    Grid.Cols = 3;
    Grid.Rows = 6;
    Grid.Move(5000, 1500, 6000, 3000);
    SelGrid1.Title.Caption = "Pick";
    SelGrid1.Grid.Rows = 3;
    SelGrid1.Grid.SetTextMatrix(1, 0, "Apple");
    SelGrid1.Grid.SetTextMatrix(2, 0, "Pear");
    SelGrid1.SetBoundText(&txpField.TextBox);
    SelGrid1.Move(5000, 4800, 3000, 2400);
    Chart.Move(8400, 4800, 3000, 2400);
  }

  Label lblText{*this, "lblText"};
  CommandButton cmdGo{*this, "cmdGo"};
  CheckBox chkOn{*this, "chkOn"};
  Frame fraGroup{*this, "fraGroup"};
  OptionButton optFirst{fraGroup, "optFirst"};
  OptionButton optSecond{fraGroup, "optSecond"};
  TextBox txtLine{*this, "txtLine"};
  TextBox txtLines{*this, "txtLines"};
  CTextPlus txpField{*this, "txpField"};
  ComboBox cmbOne{*this, "cmbOne"};
  ListBox lstBooks{*this, "lstBooks"};
  PictureBox picSurface{*this, "picSurface"};
  ScrollBar scrSide{*this, "scrSide"};
  CButtonBar BtnBar1{*this, "BtnBar1"};
  CStdButtons QuillonStdButtons1{*this, "QuillonStdButtons1"};
  CEditGrid Grid{*this, "Grid"};
  CSelGrid SelGrid1{*this, "SelGrid1"};
  MSChart Chart{*this, "Chart"};
};

}  // namespace quillon
