#pragma once

#include <QTimer>
#include <functional>
#include <map>
#include <string>
#include <vector>

#include "desk/print/PdfPrinter.h"
#include "desk/print/PrintObserver.h"
#include "host/forms/Runtime.h"

class QWidget;

namespace quillon {

class DeskArea;
class FormView;

/// The runtime with windows: full screens lie in the desk's area, modal ones too; other forms are windows of
/// their own, and the questions are dialogs.
class QtRuntime : public Runtime, private PrintObserver {
 public:
  /// Print jobs leave their PDF in the folder.
  explicit QtRuntime(std::string outputFolder);
  ~QtRuntime() override;

  /// Where full screens go; without one they are windows too. The area outlives the forms, or is taken back
  /// by nothing.
  void SetArea(DeskArea* area) { area_ = area; }

  /// Called when a long job begins or ends, with its text, and when another form has come to the top.
  std::function<void(bool on, const std::string& text)> OnBusy;
  std::function<void()> OnTopChanged;

  /// Called when a statement begins or ends to wait for another program.
  std::function<void(bool on)> OnWaiting;

  /// Called with what was done and is told in passing.
  std::function<void(const std::string& text)> OnSaid;

  /// Called with the sum, count and range of the amounts that are selected, and with an empty text where none
  /// are.
  std::function<void(const std::string& text)> OnSelected;

  /// Called with the words for how far a job has come, and with none at its end.
  std::function<void(const std::string& text)> OnProgress;

  /// Nothing for a form that is not shown.
  FormView* ViewOf(const Form& form) const;
  FormView* TopView() const;

  /// The window that a dialog stands on.
  QWidget* TopWindow() const;

  /// Whether a handler waits for a window, so that the desk must stay.
  bool IsWaiting() const { return waits_; }

  /// All windows anew, after the zoom has changed.
  void Replace();

  long ScreenWidth() const override;
  long ScreenHeight() const override;
  void Beep() override;
  void ShowBusy(bool on, const std::string& text) override;
  void ShowProgress(const std::string& text, std::int64_t done, std::int64_t whole) override;
  void HideProgress() override;
  void Say(const std::string& text) override;
  void ShowCell(GridModel& grid, const std::string& text) override;
  void ShowWaiting(bool on) override;
  long TextWidth(const Font& font, const std::string& text) const override;
  std::string ClipboardText() const override;
  void SetClipboardText(const std::string& text) override;
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
  void Repaint() override;
  void Wait(const std::function<bool()>& done) override;

 private:
  /// While a person is asked, the pointer of the job that asks rests.
  class PointerRest {
   public:
    explicit PointerRest(Runtime& runtime) : runtime_(runtime), before_(runtime.MousePointer()) {
      runtime_.SetMousePointer(kPointerDefault);
    }
    PointerRest(const PointerRest&) = delete;
    PointerRest& operator=(const PointerRest&) = delete;
    ~PointerRest() { runtime_.SetMousePointer(before_); }

   private:
    Runtime& runtime_;
    int before_;
  };

  void OnText(int, double, double, const std::string&, const Font&) override {}
  void OnPrinted(const std::string& file, int pages, int paper, int orientation) override;
  bool AskSight(const ReportPages& pages);
  bool IsScreen(const Form& form) const;
  void ShowView(Form& form);
  void HideView(Form& form);
  void Settle();
  void TellSelected();

  PdfPrinter printer_;
  DeskArea* area_ = nullptr;
  std::map<const Form*, FormView*> views_;
  std::weak_ptr<Form> top_;
  QTimer selected_;  // the amounts are summed when the hand rests
  bool waits_ = false;
};

}  // namespace quillon
