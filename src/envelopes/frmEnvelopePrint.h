#pragma once

#include <memory>
#include <string>

#include "host/controls/CheckBox.h"
#include "host/controls/ComboBox.h"
#include "host/controls/CommandButton.h"
#include "host/controls/ControlArray.h"
#include "host/controls/Frame.h"
#include "host/controls/Label.h"
#include "host/controls/TextBox.h"
#include "host/forms/ScreenForm.h"
#include "host/services/CPartyInfo.h"
#include "layout/FocusPanel.h"
#include "layout/LayoutBoard.h"
#include "layout/LayoutRun.h"

namespace quillon {

/// "Envelopes": prints envelopes for one party, or for all of the address labels' sheet, by a layout that is
/// kept for each named size. Eleven objects stand at their true places over an inch grid.
class frmEnvelopePrint : public ScreenForm {
 public:
  frmEnvelopePrint();

  /// The address labels, which answer CurCode, PreviousCode, NextCode, ColCount and Grid; nothing for one
  /// party.
  std::shared_ptr<Object> fAdLbl;

  /// The party to show; 0 asks for one where there are no labels.
  long AcCode = 0;

  void DrawGrid() { board_.DrawGrid(); }

  /// Fills name, address, phone and mobile from the party's record; 0, and a party that is gone, blanks them.
  void ShowParty(long code, bool keepShown);

  /// Prints the party shown, or all parties of the labels.
  void PrintEnvelopes(bool all);
  void SaveEnvSettings();
  void LoadEnvSettings();

  /// The object of a Tag, case ignored; nothing when there is none.
  Label* ObjectOf(const std::string& tag) { return board_.Find(tag); }

  /// How far objects go, in twips.
  LayoutBoard::Limits Limits() const;

  ControlArray<Label> Lbl;
  FocusPanel Picture1;
  Label lblMode;
  ComboBox Combo1;
  Label lblSize;
  ComboBox Combo2;
  CommandButton btnConfig;
  Label lblHint;

  Frame Frame1;
  Label Label2;
  ControlArray<CheckBox> Check1;
  ControlArray<TextBox> Text1;
  ControlArray<Label> lblMargin;
  ControlArray<TextBox> Text2;
  CheckBox chkLandscape;
  CommandButton btnOK;

 protected:
  void BuildBar() override;
  void LoadScreen() override;
  void FirstShow() override;
  void ShownAgain() override { ShowWanted(); }
  void UnloadScreen() override;
  void Pressed(const std::string& key) override;
  void Print(bool print) override;
  void ExitPressed(bool& cancel) override;
  void OnKeyDown(KeyEvent& key) override;

 private:
  void DesignControls();
  void DesignFrame();
  void PlaceControls();
  void Connect();
  void ShowWanted();
  bool SelectParty();
  void FillParty(CPartyInfo& party);
  void StepParty(const char* method);
  void ShowMode();
  void OpenFrame();
  void CloseFrame();
  void ShowObjects(int check);
  void ChooseFont(Label& object);
  void PrintAll(LayoutRun& run, int pageFrom, int pageTo, int copies);
  void PrintCopies(LayoutRun& run, int copies);
  void PrintObjects(LayoutRun& run);

  LayoutBoard board_{*this, Lbl};
  long shownCode_ = 0;
  bool asking_ = false;  // while the picker is up, whose closing shows the form again
};

}  // namespace quillon
