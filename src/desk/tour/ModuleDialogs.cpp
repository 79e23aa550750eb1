#include "desk/tour/ModuleDialogs.h"

#include <functional>
#include <map>

#include "host/forms/CDateDialog.h"
#include "host/forms/CPartyFilter.h"
#include "host/forms/CPickList.h"
#include "host/forms/Runtime.h"
#include "host/services/IApp.h"
#include "host/services/ISession.h"
#include "host/services/IStd.h"
#include "host/services/PrintSetup.h"
#include "host/values/Errors.h"

namespace quillon {

namespace {

void AskInput() {
  std::string reply;
  gRuntime->AskInput({"Name of the branch", "Branch", "Nigdi Branch"}, reply);
}

void AskFont() {
  Font font{"Liberation Sans", 12, true, false, false};
  gRuntime->AskFont(font);
}

void AskFile(bool save) {
  std::string path;
  gRuntime->AskFile(
      {save, save ? "Save the Layout" : "Open a Layout", "XML Files (*.xml)|*.xml", "layout.xml"}, path);
}

void AskPick() {
  CPickList list;
  list.Title("Choose a Bank");
  list.Width = 7500;
  list.AddColumn("Bank", 4500, 1);
  list.AddColumn("Station", 2400, 1);
  list.AddItem("Bank of Maharashtra\tPune", 1);
  list.AddItem("Saraswat Co-op. Bank\tMumbai", 2);
  list.AddItem("State Bank of India\tKandla", 3);
  list.Show();
}

void AskDates() {
  CDateDialog dialog;
  dialog.Title("Period of the Report");
  dialog.DateCaption("From");
  dialog.SetDate1(gSession->Year().StartDate());
  dialog.SetDate2(gSession->Year().EndDate());
  dialog.Show();
}

void AskPrinter() {
  PrintSetup setup;
  setup.MaxPage = setup.PageTo = 12;
  setup.Copies = 1;
  setup.Show();
}

const std::map<QString, std::function<void()>>& Dialogs() {
  static const std::map<QString, std::function<void()>> dialogs = {
      {QStringLiteral("input"), AskInput},
      {QStringLiteral("font"), AskFont},
      {QStringLiteral("open"), [] { AskFile(false); }},
      {QStringLiteral("save"), [] { AskFile(true); }},
      {QStringLiteral("pick"), AskPick},
      {QStringLiteral("dates"), AskDates},
      {QStringLiteral("printer"), AskPrinter},
      {QStringLiteral("parties"), [] { CPartyFilter().Show(); }},
      {QStringLiteral("yes-no"),
       [] { gStd->MsgBox("The layout has been changed. Store it?", "2", "Q", "Envelopes", 1); }},
  };
  return dialogs;
}

}  // namespace

void ShowModuleDialog(const QString& name) {
  const auto dialog = Dialogs().find(name);
  if (dialog == Dialogs().end()) throw HostError("No dialog is called " + name.toStdString());
  dialog->second();
}

}  // namespace quillon
