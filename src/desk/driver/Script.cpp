#include "desk/driver/Script.h"

#include <map>
#include <set>
#include <utility>

#include "desk/driver/FreshProcess.h"
#include "host/controls/CPeriod.h"
#include "host/controls/host_controls.h"
#include "host/forms/WindowHandle.h"
#include "host/values/ErrorText.h"

namespace quillon {

namespace {

constexpr std::size_t kShown = 200;

/// Looking and laying answers ready leaves a menu open; every other act of a person closes it.
bool LeavesMenuOpen(const std::string& name) {
  static const std::set<std::string> kQuiet = {"popup",   "answer", "state", "tree",  "query",   "execute",
                                               "setting", "get",    "forms", "trace", "picture", "set"};
  return kQuiet.contains(name);
}

}  // namespace

Script::Script(std::istream& in, Desk& desk, DriverRuntime& runtime, EventLog& log)
    : in_(in), desk_(desk), runtime_(runtime), log_(log) {
  runtime_.NextCommand = [this] { return Next(); };
  desk_.OnGoBack = [this](int run) { goBack_ = run; };
}

Script::Command Script::Find(const std::string& name) {
  static const std::map<std::string, Command> kCommands = {
      {"firm", &Script::DoFirm},         {"form", &Script::DoForm},
      {"menu", &Script::DoMenu},         {"set", &Script::DoSet},
      {"get", &Script::DoGet},           {"call", &Script::DoCall},
      {"show", &Script::DoShow},         {"close", &Script::DoClose},
      {"forms", &Script::DoForms},       {"key", &Script::DoKey},
      {"focus", &Script::DoFocus},       {"type", &Script::DoType},
      {"paste", &Script::DoPaste},       {"click", &Script::DoClick},
      {"dblclick", &Script::DoDblClick}, {"bar", &Script::DoBar},
      {"choose", &Script::DoChoose},     {"check", &Script::DoCheck},
      {"row", &Script::DoRow},           {"cell", &Script::DoCell},
      {"range", &Script::DoRange},       {"gridrow", &Script::DoGridRow},
      {"scroll", &Script::DoScroll},     {"pickbutton", &Script::DoPickButton},
      {"picked", &Script::DoPicked},     {"popup", &Script::DoPopup},
      {"answer", &Script::DoAnswer},     {"state", &Script::DoState},
      {"tree", &Script::DoTree},         {"query", &Script::DoQuery},
      {"execute", &Script::DoExecute},   {"setting", &Script::DoSetting},
      {"picture", &Script::DoPicture},   {"trace", &Script::DoTrace},
      {"menuline", &Script::DoMenuLine}, {"bulk", &Script::DoBulk},
      {"goback", &Script::DoGoBack},     {"copy", &Script::DoCopy},
      {"find", &Script::DoFind},         {"sort", &Script::DoSort},
      {"keys", &Script::DoKeys}};
  const auto known = kCommands.find(name);
  if (known == kCommands.end()) throw HostError("There is no command \"" + name + "\"");
  return known->second;
}

int Script::Run() {
  while (Next()) continue;
  if (!unfinished_.is_null()) {
    unfinished_.update({{"status", status_}, {"laid", runtime_.Laid.LeftOver()}, {"ids", log_.NextId()}});
  } else if (const Json left = runtime_.Laid.LeftOver(); !left.empty()) {
    log_.Write({{"left_over", left}});
    status_ = std::max(status_, kRefused);
  }
  desk_.CloseFirm();
  return log_.HasFailed() ? kUnusable : status_;
}

/// The windows that wait inside one another end first, and their commands are answered; the command itself is
/// carried out and answered by the fresh process.
void Script::LeaveToFreshProcess(const Json& command) {
  FreshProcess::RequireOpens(command);
  unfinished_ = {
      {"command", command}, {"number", count_}, {"sql", log_.TraceSql}, {"print", log_.TracePrint}};
  stopped_ = true;
}

void Script::Resume(const Json& unfinished) {
  status_ = unfinished.at("status").get<int>();
  count_ = unfinished.at("number").get<int>();
  log_.TraceSql = unfinished.at("sql").get<bool>();
  log_.TracePrint = unfinished.at("print").get<bool>();
  log_.SetNextId(unfinished.at("ids").get<int>());
  for (const Json& answer : unfinished.at("laid")) runtime_.Laid.Add(answer);
  CarryOut(count_, unfinished.at("command"));
}

bool Script::Next() {
  std::string line;
  while (!stopped_ && !log_.HasFailed() && std::getline(in_, line)) {
    if (!line.empty() && line.back() == '\r') line.pop_back();
    if (line.find_first_not_of(" \t") == std::string::npos || line[line.find_first_not_of(" \t")] == '#')
      continue;
    const int number = ++count_;
    const Json command = ParseLine(line);
    if (!command.is_object()) {
      log_.Write({{"done", number},
                  {"ok", false},
                  {"error", "This line is no JSON object: " + line.substr(0, kShown)}});
      status_ = kUnusable;
      stopped_ = true;
      return false;
    }
    CarryOut(number, command);
    return true;
  }
  return false;
}

void Script::CarryOut(int number, const Json& command) {
  Json done{{"done", number}, {"ok", true}};
  ++depth_;
  try {
    LeaveWhereAsked();
    const std::string name = command.value("cmd", "");
    const Command carryOut = Find(name);
    if (!LeavesMenuOpen(name)) runtime_.LeaveMenu();
    Json answer;
    {
      const Runtime::Step step(runtime_);
      answer = (this->*carryOut)(command);
    }
    if (!unfinished_.is_null() && unfinished_.at("number") == number) return;
    if (answer.is_object()) done.update(answer);
    if (depth_ == 1 && goBack_ != 0) done.update(GoBack(std::exchange(goBack_, 0)));
  } catch (const Json::exception& error) {
    done["ok"] = false;
    done["error"] =
        "The command lacks something or holds something else than expected: " + std::string(error.what());
  } catch (const std::exception& error) {
    done["ok"] = false;
    done["error"] = error.what();
    if (const std::string details = ErrorDetails(error); !details.empty()) done["details"] = details;
  }
  --depth_;
  if (!done["ok"].get<bool>()) status_ = std::max(status_, kRefused);
  log_.Write(done);
}

void Script::RequireFirm() const {
  if (!desk_.HasFirm()) throw HostError("No firm is open");
}

FormPtr Script::Current(const Json& command) {
  RequireFirm();
  if (command.contains("form")) return log_.FormOf(command.at("form").get<std::string>());
  FormPtr form = runtime_.ActiveForm();
  if (!form) throw HostError("No form is shown");
  return form;
}

Control& Script::ControlOf(const Json& command) {
  const FormPtr form = Current(command);
  const int index = command.value("index", Control::kNoIndex);
  const std::string name = command.at("control").get<std::string>();
  Control* control = nullptr;
  try {
    control = &form->ControlAt(name, index);
  } catch (const SubscriptError&) {
    // The index may be that of a button inside the control.
    control = &form->ControlAt(name);
    if (dynamic_cast<CStdButtons*>(control) == nullptr) throw;
  }
  if (!command.contains("part")) return *control;
  const std::string part = command.at("part").get<std::string>();
  if (auto* period = dynamic_cast<CPeriod*>(control)) return period->Part(part);
  auto* const inner = dynamic_cast<Control*>(control->Get(part).ToObject().get());
  if (inner == nullptr) throw HostError(name + " has no part " + part);
  return *inner;
}

Json Script::Act(const std::function<void()>& act) {
  runtime_.Act(act);
  runtime_.DeliverKeys();
  return Json::object();
}

Variant Script::MemberValue(const Json& value) {
  if (!value.is_object()) return FromJson(value);
  if (value.contains("form")) {
    return std::static_pointer_cast<Object>(log_.FormOf(value.at("form").get<std::string>()));
  }
  if (value.contains("year")) {
    const std::shared_ptr<FinYear> year = gSession->NewYear();
    bool ok = false;
    year->Init(true);
    year->OpenYear(value.at("year").get<int>(), ok);
    if (!ok) throw HostError("The firm has no financial year " + std::to_string(value.at("year").get<int>()));
    return std::static_pointer_cast<Object>(year);
  }
  if (!value.contains("values")) throw HostError("This value is not understood: " + Line(value));
  Array bag;
  for (const auto& [name, item] : value.at("values").items())
    bag.emplace_back(Array{name, FromJson(item).ToText()});
  return bag;
}

Json Script::HandleJson(const WindowHandle& handle) {
  return {{"title", handle.Title}, {"icon", handle.IconKey}};
}

Json Script::ShowValue(const Variant& value) {
  const std::shared_ptr<Object> object = value.ToObject();
  if (const auto form = std::dynamic_pointer_cast<Form>(object)) return {{"form", log_.IdOf(*form)}};
  if (const auto year = std::dynamic_pointer_cast<FinYear>(object)) return {{"year", year->StartYear()}};
  if (const auto handle = std::dynamic_pointer_cast<WindowHandle>(object)) return HandleJson(*handle);
  return ToJson(value);
}

CDbLink& Script::DbOf(const Json& command) {
  RequireFirm();
  const Json& db = command.contains("db") ? command.at("db") : Json("main");
  const std::string name = db.is_number() ? std::to_string(db.get<int>()) : db.get<std::string>();
  if (name == "main") return gSession->MainDb();
  if (name == "common") return gSession->CommonDb();
  if (name == "forms") return gSession->FormsDb();
  const std::shared_ptr<FinYear> year = gSession->NewYear();
  bool ok = false;
  year->OpenYear(static_cast<int>(Variant(name).ToInteger()), ok);
  if (!ok) throw HostError("There is no database \"" + name + "\"");
  return year->Db();
}

}  // namespace quillon
