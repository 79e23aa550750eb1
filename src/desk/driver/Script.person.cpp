#include "desk/driver/Script.h"

#include "desk/driver/KeyNames.h"
#include "host/controls/host_controls.h"
#include "host/values/Text.h"

namespace quillon {

template <class T>
T& Script::Kind(const Json& command, const char* what) {
  Control& control = ControlOf(command);
  if (auto* wanted = dynamic_cast<T*>(&control)) return *wanted;
  throw HostError(control.Name() + " is no " + what);
}

Json Script::DoKey(const Json& command) {
  const FormPtr form = Current(command);
  const ScriptKey key = KeyOf(command.at("key").get<std::string>(), command.value("shift", ""));
  if (runtime_.IsCovered(*form)) throw Refused("The form " + form->Name() + " is covered by another one");
  return Act([&] { form->UserKey(key.KeyCode, key.Shift, key.Character); });
}

/// Each key goes to the form that is on top then.
Json Script::DoKeys(const Json& command) {
  const std::string text = command.at("keys").get<std::string>();
  for (std::size_t at = 0; at < text.size();) {
    const std::size_t close = text[at] == '{' ? text.find('}', at + 2) : std::string::npos;
    const std::size_t bytes = close != std::string::npos ? close - at + 1 : text::CharBytes(text, at);
    Json key = {{"key", text.substr(at, bytes)}};
    if (close != std::string::npos) {
      const std::string name = text.substr(at + 1, bytes - 2);
      const std::size_t plus = name.size() > 1 ? name.rfind('+', name.size() - 2) : std::string::npos;
      key["key"] = plus == std::string::npos ? name : name.substr(plus + 1);
      if (plus != std::string::npos) key["shift"] = name.substr(0, plus);
    }
    DoKey(key);
    at += bytes;
  }
  return Json::object();
}

Json Script::DoFocus(const Json& command) {
  Control& control = ControlOf(command);
  if (!control.CanTakeFocus()) throw Refused(control.Name() + " takes no focus");
  bool arrived = false;
  Act([&] { arrived = control.OwnerForm().UserFocus(control); });
  return {{"focused", arrived}};
}

bool Script::TypeInto(Control& control, const std::string& text, bool leave) {
  const FormPtr form = control.OwnerForm().Self();
  auto* field = dynamic_cast<CTextPlus*>(&control);
  TextBox& box = field != nullptr ? field->TextBox : dynamic_cast<TextBox&>(control);
  control.RequireReachable();
  if (box.Locked) throw Refused(control.Name() + " is locked");
  if (!form->UserFocus(control)) return false;
  box.SelectAll();
  if (text.empty()) form->UserKey(keys::kDelete, 0, 0);
  for (std::size_t at = 0; at < text.size() && control.HasFocus();) {
    const std::size_t bytes = text::CharBytes(text, at);
    const int character = text::CodePoint(text.substr(at, bytes));
    const bool lineEnd = character == '\n';
    if (character != '\r') {
      form->UserKey(lineEnd ? keys::kEnter : CodeOfCharacter(character), 0,
                    lineEnd ? keys::kEnter : character);
    }
    at += bytes;
  }
  if (leave && control.HasFocus()) form->UserKey(keys::kTab, 0, 0);
  return true;
}

Json Script::DoType(const Json& command) {
  Control& control = ControlOf(command);
  const std::string text = command.at("text").get<std::string>();
  const bool leave = command.value("leave", true);
  if (auto* combo = dynamic_cast<ComboBox*>(&control)) {
    return Act([&] {
      combo->UserType(text);
      if (leave) combo->OwnerForm().FocusNext(false);
    });
  }
  if (dynamic_cast<CTextPlus*>(&control) == nullptr && dynamic_cast<TextBox*>(&control) == nullptr) {
    throw HostError(control.Name() + " is no field to type into");
  }
  return Act([&] {
    if (!TypeInto(control, text, leave)) throw Refused("The field that has the focus was not left");
  });
}

Json Script::DoPaste(const Json& command) {
  Control& control = ControlOf(command);
  const std::string text = command.at("text").get<std::string>();
  return Act([&] {
    const FormPtr form = control.OwnerForm().Self();
    if (!form->UserFocus(control)) throw Refused("The field that has the focus was not left");
    TextBox* const box = control.TypedBox();
    const bool takesText = box != nullptr || dynamic_cast<EditableGrid*>(&control) != nullptr;
    if (!takesText) throw Refused(control.Name() + " is no field to paste into");
    if (box != nullptr && box->Locked) throw Refused(control.Name() + " is locked");
    form->UserPaste(text);
  });
}

Json Script::DoCopy(const Json& command) {
  Control& control = ControlOf(command);
  const int shift = keys::kCtrl | (command.value("headings", false) ? keys::kShift : 0);
  Act([&] {
    if (control.OwnerForm().UserFocus(control)) control.OwnerForm().UserKey('C', shift, 0);
  });
  return {{"text", runtime_.ClipboardText()}};
}

Json Script::DoFind(const Json& command) {
  auto& grid = Kind<GridModel>(command, "grid");
  const std::string text = command.at("text").get<std::string>();
  Act([&] {
    if (!grid.OwnerForm().UserFocus(grid)) throw Refused("The field that has the focus was not left");
    grid.OwnerForm().UserKey('F', keys::kCtrl, 0);
    if (!grid.Finder.IsOpen()) throw Refused("The cell under edit was refused");
    grid.Finder.Box.UserType(text);
  });
  return {{"found", grid.Finder.HasFound()},
          {"note", grid.Finder.Note()},
          {"row", grid.Row()},
          {"col", grid.Col()}};
}

Json Script::DoSort(const Json& command) {
  auto& grid = Kind<GridModel>(command, "grid");
  return Act([&] { grid.Look.UserSort(command.at("col").get<int>()); });
}

Json Script::DoClick(const Json& command) {
  Control& control = ControlOf(command);
  if (auto* standard = dynamic_cast<CStdButtons*>(&control)) {
    const int index = command.value("index", CStdButtons::kExit);
    return Act([&] { standard->UserPress(index); });
  }
  return Act([&] { control.UserClick(); });
}

Json Script::DoDblClick(const Json& command) {
  Control& control = ControlOf(command);
  return Act([&] { control.UserDoubleClick(); });
}

Json Script::DoBar(const Json& command) {
  auto& bar = Kind<CButtonBar>(command, "button bar");
  const Json& button = command.at("button");
  return Act([&] {
    if (button.is_number()) {
      if (button.get<int>() < 0 || button.get<int>() >= bar.Count()) {
        throw Refused(bar.Name() + " has no button " + std::to_string(button.get<int>()));
      }
      bar.UserPress(button.get<int>());
    } else {
      bar.UserPress(button.get<std::string>());
    }
  });
}

Json Script::DoChoose(const Json& command) {
  auto& list = Kind<ItemList>(command, "list");
  const Json& item = command.at("item");
  return Act([&] {
    item.is_number() ? list.UserChoose(item.get<int>()) : list.UserChoose(item.get<std::string>());
  });
}

Json Script::DoCheck(const Json& command) {
  Control& control = ControlOf(command);
  const Json& given = command.contains("value") ? command.at("value") : Json(true);
  const bool value = FromJson(given).ToFlag();
  if (auto* box = dynamic_cast<CheckBox*>(&control)) return Act([&] { box->UserCheck(value); });
  auto& list = Kind<ListBox>(command, "check list");
  const int item = command.at("item").get<int>();
  return Act([&] { list.UserCheck(item, value); });
}

Json Script::DoRow(const Json& command) {
  auto& grid = Kind<GridModel>(command, "grid");
  const int row = command.at("row").get<int>();
  const int col = command.value("col", grid.UserCol());
  return Act([&] { grid.UserMoveTo(row, col); });
}

Json Script::DoCell(const Json& command) {
  auto& grid = Kind<EditableGrid>(command, "grid to edit");
  const int row = command.at("row").get<int>();
  const int col = command.at("col").get<int>();
  const std::string text = command.at("text").get<std::string>();
  bool entered = false;
  bool left = false;
  Act([&] {
    entered = grid.UserEnterCell(row, col);
    if (!entered) return;
    grid.UserType(text);
    left = grid.UserLeaveCell();
  });
  const bool stands = row < grid.Rows && col < grid.Cols;
  return {{"entered", entered},
          {"left", left},
          {"text", stands ? Json(grid.TextMatrix(row, col)) : Json(nullptr)}};
}

Json Script::DoRange(const Json& command) {
  auto& grid = Kind<GridModel>(command, "grid");
  return Act([&] {
    grid.UserSelect(command.at("row").get<int>(), command.at("col").get<int>(),
                    command.at("rowsel").get<int>(), command.at("colsel").get<int>());
  });
}

Json Script::DoGridRow(const Json& command) {
  auto& grid = Kind<GridModel>(command, "grid");
  const int row = command.at("row").get<int>();
  const std::string what = command.value("what", "dblclick");
  if (what != "dblclick" && what != "click") throw HostError("A row is not \"" + what + "\"-ed");
  return Act(
      [&] { what == "dblclick" ? grid.UserDoubleClickRow(row) : grid.UserMoveTo(row, grid.UserCol()); });
}

Json Script::DoScroll(const Json& command) {
  auto& bar = Kind<ScrollBar>(command, "scroll bar");
  return Act([&] { bar.UserScroll(command.at("value").get<int>()); });
}

Json Script::DoPickButton(const Json& command) {
  auto& field = Kind<CTextPlus>(command, "field");
  return Act([&] { field.UserPickButton(); });
}

Json Script::DoPicked(const Json& command) {
  auto& list = Kind<CSelGrid>(command, "selection grid");
  return Act([&] {
    command.contains("row") ? list.UserPick(command.at("row").get<int>())
                            : list.UserPick(command.at("text").get<std::string>());
  });
}

Json Script::DoPopup(const Json& command) {
  command.contains("key") ? runtime_.PickFromMenu(command.at("key").get<std::string>())
                          : runtime_.PickFromMenu(command.at("item").get<int>());
  return Json::object();
}

}  // namespace quillon
