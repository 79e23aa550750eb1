#pragma once

#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "desk/driver/Answers.h"
#include "desk/driver/EventLog.h"
#include "desk/print/PdfPrinter.h"
#include "host/forms/Runtime.h"

namespace quillon {

/// The runtime without a window: a script plays the person. Dialogs take the answers that it laid ready;
/// where a person would be waited for, the next commands of the script are carried out.
class DriverRuntime : public Runtime {
 public:
  DriverRuntime(EventLog& log, const std::string& outputFolder);

  Answers Laid;

  /// A file of the output folder; a whole path stays what it is.
  std::string InOutput(const std::string& file) const;

  /// Carries out the next command; false at the end of the script.
  std::function<bool()> NextCommand;

  /// Picks an item of the menu that is shown. Throws Refused when there is none.
  void PickFromMenu(int item);
  void PickFromMenu(const std::string& key);

  /// Leaves the menu that is shown, as any other act does.
  void LeaveMenu();

  /// Forms that stand for the desk itself and are no news.
  void Ignore(const Form* form) { ignored_ = form; }

  long ScreenWidth() const override { return 1366 * kTwipsPerPixel; }
  long ScreenHeight() const override { return 768 * kTwipsPerPixel; }
  void Beep() override { log_.Write({{"event", "beep"}}); }
  void Say(const std::string& text) override { log_.Write({{"event", "said"}, {"text", text}}); }
  void ShowBusy(bool on, const std::string& text) override;
  void ShowWaiting(bool on) override;
  long TextWidth(const Font& font, const std::string& text) const override;
  std::string ClipboardText() const override { return clipboard_; }
  void SetClipboardText(const std::string& text) override { clipboard_ = text; }
  IPrinter& Printer() override { return printer_; }
  std::vector<PrinterDevice> Printers() const override;
  void PrintForm(Form& form) override;
  int AskMessage(const MessageRequest& request) override;
  bool AskInput(const InputRequest& request, std::string& reply) override;
  bool AskFile(const FileRequest& request, std::string& path) override;
  bool AskFont(Font& font) override;
  bool AskDate(DateRequest& request) override;
  bool AskPick(const CPickList& list, std::size_t& item) override;
  bool AskParties(PartiesRequest& request) override;
  bool AskPrint(PrintSetup& setup) override;
  void ShowHelp(Form& form, int context) override;
  int AskPopup(Form& form, Menu& menu, long left, long top) override;
  void TellError(const std::string& routine, Form* form, const std::exception& error) override;

 protected:
  void FormHappened(Happening what, Form& form) override;
  void PointerChanged(int pointer) override;
  void Wait(const std::function<bool()>& done) override;

 private:
  struct OpenMenu {
    int items = 0;
    std::vector<std::string> keys;
    int chosen = -1;
    bool open = true;
  };

  bool AskSight(const ReportPages& pages);
  std::optional<Json> Answer(const std::string& kind, Json& event);

  EventLog& log_;
  std::string outputFolder_;
  PdfPrinter printer_;
  std::string clipboard_;
  OpenMenu* menu_ = nullptr;
  const Form* ignored_ = nullptr;
};

}  // namespace quillon
