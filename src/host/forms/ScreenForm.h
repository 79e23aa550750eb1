#pragma once

#include <string>

#include "host/controls/CButtonBar.h"
#include "host/controls/CGridPlus.h"
#include "host/controls/CMStrip.h"
#include "host/controls/CStdButtons.h"
#include "host/controls/GridModel.h"
#include "host/controls/Label.h"
#include "host/forms/AccountPeriod.h"
#include "host/forms/Form.h"
#include "host/forms/GridColumns.h"

namespace quillon {

/// What a full-size screen states of itself; the rest is the same for all of them.
struct ScreenSpec {
  const char* className;
  const char* caption;  ///< of lblTitle as designed
  const char*
      titleSuffix;  ///< behind the caller's title, e.g. " -> Reconciliation"; empty leaves the design caption
  const char* rightKey;       ///< checked with "N" at the first activation, "P" to print; empty asks for none
  const char* registerTitle;  ///< in the host's list of open windows; empty keeps out of it
  const char* iconKey;
  int firstKey = 0;  ///< the function key of button 0
  int lastKey = 0;   ///< the last function key that presses a button
  bool initForm = false;
  bool rightEachTime = false;  ///< the right is asked for at every activation
  int helpContext = 0;         ///< what F1 tells beside the keys
};

/// A full-size screen: its area, title, bar of F keys, rights and registration, Enter as Tab, Esc as Exit and
/// the host's hot keys.
class ScreenForm : public Form {
 public:
  Label lblTitle;
  CMStrip MStrip1;
  CButtonBar BtnBar1;
  CStdButtons QuillonStdButtons1;

 protected:
  ScreenForm(const ScreenSpec& spec, Origin origin);

  /// Load: the bar's buttons, then the screen's own controls and data. The form has its place and title
  /// already.
  virtual void BuildBar() = 0;
  virtual void LoadScreen() = 0;

  /// The first activation, after the right was checked; the form may unload itself here. Afterwards it is
  /// registered, also when this throws: a screen that could not be filled is left like any other.
  virtual void FirstShow() {}

  /// A button of the bar, by its key; Exit, Preview and Print are dealt with here.
  virtual void Pressed(const std::string& /*key*/) {}

  /// Previews or prints, once the user may and the grid is complete.
  virtual void Print(bool /*print*/) {}

  /// The grid that Print hands over, where there is one.
  virtual const CGridPlus* PrintedGrid() const { return nullptr; }

  /// Ends the editing at hand before a button acts; false when what was typed was refused.
  virtual bool EndEditing() { return true; }

  /// Whether leaving loses something: then the user is asked.
  virtual bool HasUnsavedWork() const { return false; }

  /// The screen has become the current one again.
  virtual void ShownAgain() {}

  /// The Exit button, Esc too; cancel keeps the form.
  virtual void ExitPressed(bool& /*cancel*/) {}
  virtual void UnloadScreen() {}

  /// Takes the focus after the first activation.
  virtual GridModel* MainGrid() { return nullptr; }

  /// Registers the account and period as public members.
  void MemberPeriod(AccountPeriod& period);

  /// Clicks the standard Exit button.
  void PressExit() { QuillonStdButtons1.Buttons(CStdButtons::kExit).Click(); }

  /// Twips; where the screen's own controls begin and end.
  long ContentTop() const;
  long ContentBottom() const;

  void OnLoad() override;
  void OnActivate() override;
  void OnUnload() override;
  void OnKeyDown(KeyEvent& key) override;
  void OnKeyPress(int& character) override { MoveOnAtEnter(character); }

 private:
  void PlaceFrame();
  bool MayOpen();
  bool MayPrint();
  void PressKey(const std::string& key);
  void Register();

  const ScreenSpec& spec_;
  bool firstShowing_ = true;
  bool registered_ = false;
};

}  // namespace quillon
