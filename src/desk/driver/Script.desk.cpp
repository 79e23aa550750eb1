#include "desk/driver/Script.h"

#include "desk/driver/ControlState.h"
#include "desk/firm/FirmLock.h"
#include "desk/qt/windows/FormPicture.h"
#include "host/data/CDataSet.h"
#include "host/forms/WindowHandle.h"
#include "host/values/Text.h"

namespace quillon {

Json Script::DoFirm(const Json& command) {
  try {
    const std::string folder = command.at("folder").get<std::string>();
    if (FirmLock::NeedsFreshProcess(folder)) {
      LeaveToFreshProcess(command);
      return Json::object();
    }
    desk_.OpenFirm(folder, command.value("user", ""), command.value("year", 0),
                   command.value("takeover", ""));
    runtime_.Ignore(desk_.App().MainWindow().MainForm().get());
  } catch (const HostError&) {
    status_ = kUnusable;
    throw;
  }
  return Json::object();
}

Json Script::DoForm(const Json& command) {
  RequireFirm();
  const std::string key = command.at("key").get<std::string>();
  const FormPtr form = command.value("host", false) ? gApp->GetForm(key) : desk_.Module().GetForm(key);
  if (!form) return {{"form", nullptr}};
  if (command.contains("id")) log_.GiveId(form, command.at("id").get<std::string>());
  return {{"form", log_.IdOf(*form)}};
}

Json Script::DoMenu(const Json& command) {
  RequireFirm();
  const std::string key = command.at("key").get<std::string>();
  return Act([&] {
    bool cancel = false;
    gApp->MainWindow().MainMenuClick.Raise(key, cancel);
  });
}

Json Script::DoMenuLine(const Json& command) {
  RequireFirm();
  DeskMenu& menu = desk_.Menu();
  if (command.contains("key")) {
    if (const FormPtr form = runtime_.ActiveForm(); form && form->IsModal())
      throw Refused("The form " + form->Name() + " keeps the menus away");
    return Act([&] { menu.Pick(command.at("key").get<std::string>()); });
  }
  Json lines = Json::array();
  for (const DeskMenuLine& line : menu.Lines()) {
    lines.push_back({{"key", line.Key},
                     {"menu", text::ReplaceAll(line.Menu, "&", "")},
                     {"caption", text::ReplaceAll(line.Caption, "&", "")},
                     {"enabled", menu.IsOn(line)}});
  }
  return {{"lines", lines}};
}

Json Script::DoSet(const Json& command) {
  const Variant value = MemberValue(command.at("value"));
  if (command.contains("control")) {
    ControlOf(command).Set(command.at("property").get<std::string>(), value);
  } else {
    Current(command)->Set(command.at("member").get<std::string>(), value);
  }
  return Json::object();
}

Json Script::DoGet(const Json& command) {
  if (command.contains("control")) {
    return {{"value", ShowValue(ControlOf(command).Get(command.at("property").get<std::string>()))}};
  }
  return {{"value", ShowValue(Current(command)->Get(command.at("member").get<std::string>()))}};
}

Json Script::DoCall(const Json& command) {
  Array arguments;
  for (const Json& argument : command.value("args", Json::array()))
    arguments.push_back(MemberValue(argument));
  const FormPtr form = Current(command);
  const Variant value = form->Call(command.at("method").get<std::string>(), arguments);
  runtime_.DeliverKeys();
  return {{"value", ShowValue(value)}};
}

Json Script::DoShow(const Json& command) {
  const FormPtr form = Current(command);
  FormPtr owner;
  if (command.contains("owner")) owner = log_.FormOf(command.at("owner").get<std::string>());
  return Act([&] { runtime_.Show(form, command.value("modal", false), owner); });
}

Json Script::DoClose(const Json& command) {
  const FormPtr form = Current(command);
  if (!form->IsShownToUser()) throw Refused("The form " + form->Name() + " is not shown");
  if (runtime_.IsCovered(*form)) throw Refused("The form " + form->Name() + " is covered by another one");
  return Act([&] { runtime_.Unload(*form, UnloadMode::CloseBox); });
}

Json Script::DoForms(const Json& /*command*/) {
  Json forms = Json::array();
  for (const FormPtr& form : runtime_.AllForms()) {
    const auto handle = std::dynamic_pointer_cast<WindowHandle>(form->QuillonForm);
    const bool stands = form->CallingForm && form->StandsOnCaller();
    forms.push_back({{"id", log_.IdOf(*form)},
                     {"name", form->Name()},
                     {"title", form->Caption()},
                     {"visible", form->IsShownToUser()},
                     {"modal", form->IsModal()},
                     {"current", form == runtime_.ActiveForm()},
                     {"registered", handle ? HandleJson(*handle) : Json(nullptr)},
                     {"stands_on", stands ? Json(log_.IdOf(*form->CallingForm)) : Json(nullptr)}});
  }
  return {{"forms", forms}};
}

Json Script::DoState(const Json& command) {
  if (command.contains("control")) return StateOf(ControlOf(command), command);
  return StateOf(*Current(command), command);
}

Json Script::DoTree(const Json& command) { return TreeOf(*Current(command), log_); }

Json Script::DoQuery(const Json& command) {
  CDataSet set;
  set.Open(command.at("sql").get<std::string>(), DbOf(command));
  Json rows = Json::array();
  for (; !set.Eof(); set.MoveNext()) {
    Json row = Json::array();
    for (std::size_t i = 0; i < set.FieldNames().size(); ++i) row.push_back(ToDatabaseJson(set.Field(i)));
    rows.push_back(std::move(row));
  }
  return {{"columns", set.FieldNames()}, {"rows", rows}};
}

Json Script::DoExecute(const Json& command) {
  std::int64_t rows = 0;
  DbOf(command).Execute(command.at("sql").get<std::string>(), rows, CDbLink::kNoRows);
  return {{"rows", rows}};
}

Json Script::DoSetting(const Json& command) {
  RequireFirm();
  const std::string store = command.at("store").get<std::string>();
  const std::string key = command.at("key").get<std::string>();
  if (store != "firm" && store != "user") throw HostError("There is no store \"" + store + "\"");
  if (command.contains("value")) {
    const std::string value = FromJson(command.at("value")).ToText();
    store == "firm" ? gApp->PutFirmSetting(key, value) : gApp->PutUserSetting(key, value);
  }
  return {{"value", store == "firm" ? gApp->GetFirmSetting(key) : gApp->GetUserSetting(key)}};
}

Json Script::DoPicture(const Json& command) {
  const FormPtr form = Current(command);
  if (!form->IsShownToUser()) throw Refused("The form " + form->Name() + " is not shown");
  const std::string file = runtime_.InOutput(command.at("file").get<std::string>());
  FormPicture::Save(form, file);
  return {{"file", file}};
}

Json Script::DoTrace(const Json& command) {
  log_.TraceSql = command.value("sql", log_.TraceSql);
  log_.TracePrint = command.value("print", log_.TracePrint);
  return Json::object();
}

Json Script::DoAnswer(const Json& command) {
  runtime_.Laid.Add(command);
  return Json::object();
}

}  // namespace quillon
