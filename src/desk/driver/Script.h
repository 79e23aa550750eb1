#pragma once

#include <chrono>
#include <istream>
#include <string>

#include "desk/driver/DriverRuntime.h"
#include "desk/driver/EventLog.h"
#include "desk/shell/Desk.h"

namespace quillon {

class WindowHandle;

/// Carries out the commands of a script, one JSON object on each line, and answers each by one line.
class Script {
 public:
  static constexpr int kAllDone = 0;
  static constexpr int kRefused = 1;
  static constexpr int kUnusable = 2;

  Script(std::istream& in, Desk& desk, DriverRuntime& runtime, EventLog& log);

  /// To the end of the input, or to a command that opens another firm, which only a fresh process can do: see
  /// Unfinished. Answers the exit status.
  int Run();

  /// Opens a screen in a firm of trial; the script's first lines are what a person does in it.
  void Try(const std::string& form, std::int64_t account);

  /// What a fresh process needs to go on after Run; null when the script is done.
  Json Unfinished() const { return unfinished_; }

  /// Goes on where another process has left off, beginning with the command that it could not carry out.
  void Resume(const Json& unfinished);

 private:
  using Command = Json (Script::*)(const Json&);

  static Command Find(const std::string& name);
  bool Next();
  void CarryOut(int number, const Json& command);
  void LeaveToFreshProcess(const Json& command);
  Json GoBack(int run);
  void LeaveWhereAsked();

  FormPtr Current(const Json& command);
  Control& ControlOf(const Json& command);
  template <class T>
  T& Kind(const Json& command, const char* what);
  Variant MemberValue(const Json& value);
  static Json HandleJson(const WindowHandle& handle);
  Json ShowValue(const Variant& value);
  CDbLink& DbOf(const Json& command);
  Json Act(const std::function<void()>& act);
  void RequireFirm() const;
  bool TypeInto(Control& control, const std::string& text, bool leave);

  // The desk and its forms.
  Json DoFirm(const Json& command);
  Json DoForm(const Json& command);
  Json DoMenu(const Json& command);
  Json DoMenuLine(const Json& command);
  Json DoSet(const Json& command);
  Json DoGet(const Json& command);
  Json DoCall(const Json& command);
  Json DoShow(const Json& command);
  Json DoClose(const Json& command);
  Json DoForms(const Json& command);

  // Work on many entries.
  Json DoBulk(const Json& command);
  Json DoGoBack(const Json& command);

  // Acting as a person.
  Json DoKey(const Json& command);
  Json DoKeys(const Json& command);
  Json DoFocus(const Json& command);
  Json DoType(const Json& command);
  Json DoPaste(const Json& command);
  Json DoCopy(const Json& command);
  Json DoFind(const Json& command);
  Json DoSort(const Json& command);
  Json DoClick(const Json& command);
  Json DoDblClick(const Json& command);
  Json DoBar(const Json& command);
  Json DoChoose(const Json& command);
  Json DoCheck(const Json& command);
  Json DoRow(const Json& command);
  Json DoCell(const Json& command);
  Json DoRange(const Json& command);
  Json DoGridRow(const Json& command);
  Json DoScroll(const Json& command);
  Json DoPickButton(const Json& command);
  Json DoPicked(const Json& command);
  Json DoPopup(const Json& command);
  Json DoAnswer(const Json& command);

  // Looking.
  Json DoState(const Json& command);
  Json DoTree(const Json& command);
  Json DoQuery(const Json& command);
  Json DoExecute(const Json& command);
  Json DoSetting(const Json& command);
  Json DoPicture(const Json& command);
  Json DoTrace(const Json& command);

  std::istream& in_;
  Desk& desk_;
  DriverRuntime& runtime_;
  EventLog& log_;
  int count_ = 0;
  int depth_ = 0;  // of commands inside commands that wait
  int goBack_ = 0;
  std::chrono::steady_clock::time_point looked_{};
  int status_ = kAllDone;
  bool stopped_ = false;
  Json unfinished_;
};

}  // namespace quillon
