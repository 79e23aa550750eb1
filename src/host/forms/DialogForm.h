#pragma once

#include <string>
#include <vector>

#include "host/controls/CButton.h"
#include "host/controls/ControlArray.h"
#include "host/forms/Form.h"

namespace quillon {

/// What a dialog states of itself.
struct DialogSpec {
  const char* className;
  const char* caption;
  long width;  ///< twips
  long height;
  Form::Origin origin = Form::Origin::Module;

  /// A dialog that keeps its answers hides when it is left, and its caller unloads it; any other unloads.
  bool keepsLoaded = false;

  /// A window that only shows something has the second button alone, "Esc: Close".
  bool onlyCloses = false;

  /// By which callers reach the pair of buttons, and what stands on them; F7 and Esc press them either way.
  const char* buttons = "btnOKCancel";
  const char* okCaption = "F7: OK";
  const char* cancelCaption = "Esc: Cancel";
};

/// A dialog: centred on the screen, OK and Cancel in the lower right corner, F7 and Esc their keys, Enter as
/// Tab, and the close box as Cancel.
class DialogForm : public Form {
 public:
  /// True from Load until the user confirmed, and again when a dialog that stayed loaded is left otherwise.
  bool Cancelled = true;

  ControlArray<CButton> btnOKCancel;

 protected:
  explicit DialogForm(const DialogSpec& spec);

  /// OK or F7: true when the dialog may close. What is wrong is told here, and the focus goes to it.
  virtual bool Confirm() { return true; }

  virtual void LoadDialog() {}

  /// Leaves the dialog; without a Confirm that was true before it, as Cancel.
  void Close();

  void OnLoad() override;
  void OnQueryUnload(bool& cancel, UnloadMode mode) override;
  void OnKeyDown(KeyEvent& key) override;
  void OnKeyPress(int& character) override { MoveOnAtEnter(character); }

 private:
  void PressOk();

  bool keepsLoaded_;
};

}  // namespace quillon
