#pragma once

#include <deque>
#include <gtest/gtest.h>
#include <string>
#include <vector>

#include "host/forms/CPickList.h"
#include "host/forms/Runtime.h"
#include "host/services/IPrinter.h"
#include "host/services/PrintSetup.h"

namespace quillon {

/// The forms runtime of a test: nobody sits at it. Answers to message boxes are queued before the act that
/// asks; a question that was not expected fails the test, and so does an answer left over.
class TestRuntime : public Runtime {
 public:
  explicit TestRuntime(IPrinter& printer) : printer_(printer) { gRuntime = this; }
  ~TestRuntime() override {
    EXPECT_TRUE(messageAnswers_.empty()) << "an answer was left over";
    if (gRuntime == this) gRuntime = nullptr;
  }

  void AnswerMessage(int button) { messageAnswers_.push_back(button); }
  const std::vector<std::string>& Errors() const { return errors_; }

  long ScreenWidth() const override { return 20490; }
  long ScreenHeight() const override { return 11520; }
  void Beep() override {}
  void ShowBusy(bool, const std::string&) override {}
  long TextWidth(const Font& font, const std::string& text) const override {
    printer_.Font = font;
    return static_cast<long>(printer_.TextWidth(text));
  }
  std::string ClipboardText() const override { return clipboard_; }
  void SetClipboardText(const std::string& text) override { clipboard_ = text; }
  IPrinter& Printer() override { return printer_; }
  std::vector<PrinterDevice> Printers() const override { return {}; }

  int AskMessage(const MessageRequest& request) override {
    if (messageAnswers_.empty()) {
      ADD_FAILURE() << "not expected: " << request.Text;
      return request.Default;
    }
    const int button = messageAnswers_.front();
    messageAnswers_.pop_front();
    return button;
  }
  bool AskInput(const InputRequest& request, std::string&) override { return Unexpected(request.Prompt); }
  bool AskFile(const FileRequest& request, std::string&) override { return Unexpected(request.Title); }
  bool AskFont(Font&) override { return Unexpected("font"); }
  bool AskDate(DateRequest& request) override { return Unexpected(request.Title); }
  bool AskPick(const CPickList&, std::size_t&) override { return Unexpected("pick"); }
  bool AskParties(PartiesRequest&) override { return Unexpected("parties"); }
  bool AskPrint(PrintSetup&) override { return Unexpected("print dialog"); }
  int AskPopup(Form&, Menu&, long, long) override { return Unexpected("menu") ? 0 : -1; }
  void TellError(const std::string&, Form*, const std::exception& error) override {
    errors_.emplace_back(error.what());
  }

 protected:
  void Wait(const std::function<bool()>&) override { ADD_FAILURE() << "nobody is here to wait for"; }

 private:
  static bool Unexpected(const std::string& what) {
    ADD_FAILURE() << "not expected: " << what;
    return false;
  }

  IPrinter& printer_;
  std::string clipboard_;
  std::deque<int> messageAnswers_;
  std::vector<std::string> errors_;
};

}  // namespace quillon
