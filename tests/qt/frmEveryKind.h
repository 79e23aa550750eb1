#pragma once

#include "host/controls/host_controls.h"

namespace quillon {

/// A form with one control of each kind.
class frmEveryKind : public Form {
 public:
  frmEveryKind();

  Label lblText;
  CommandButton cmdGo;
  CheckBox chkOn;
  Frame fraGroup;
  OptionButton optFirst;
  OptionButton optSecond;
  TextBox txtLine;
  TextBox txtLines;
  CTextPlus txpField;
  ComboBox cmbOne;
  ListBox lstBooks;
  PictureBox picSurface;
  ScrollBar scrSide;
  CButtonBar BtnBar1;
  CStdButtons QuillonStdButtons1;
  CEditGrid Grid;
  CSelGrid SelGrid1;
  MSChart Chart;
};

}  // namespace quillon
