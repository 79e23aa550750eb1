#include "desk/driver/ControlState.h"

#include <array>
#include <climits>

#include "host/controls/GridModel.h"
#include "host/controls/Surface.h"

namespace quillon {

namespace {

/// What a kind's list of values is called inside its row.
Json Named(const Json& row, std::initializer_list<const char*> names) {
  Json object = Json::object();
  std::size_t at = 0;
  for (const char* name : names) object[name] = row.at(at++);
  return object;
}

Json CellsOf(const GridModel& grid, const Json& command) {
  int first = 0;
  int last = INT_MAX;
  std::vector<int> cols;
  if (command.contains("rows")) {
    first = command.at("rows").at(0).get<int>();
    last = command.at("rows").at(command.at("rows").size() - 1).get<int>();
  }
  if (command.contains("cols")) cols = command.at("cols").get<std::vector<int>>();
  return ToJson(grid.CellTexts(first, last, cols));
}

}  // namespace

Json StateOf(const Control& control, const Json& command) {
  Json state = Json::object();
  for (const auto& [name, value] : control.Describe()) state[name] = ToJson(value);
  if (state.contains("buttons")) {
    for (Json& button : state["buttons"]) {
      button = Named(button, {"key", "caption", "picture", "tooltip", "enabled", "visible"});
    }
  }
  if (dynamic_cast<const Surface*>(&control) != nullptr) {
    for (Json& line : state["lines"]) line = Named(line, {"fromleft", "fromtop", "toleft", "totop", "color"});
  }
  if (const auto* grid = dynamic_cast<const GridModel*>(&control)) {
    for (Json& paint : state["colors"])
      paint = Named(paint, {"row", "firstcol", "lastcol", "backcolor", "forecolor"});
    if (state.contains("cell")) state["cell"] = Named(state["cell"], {"left", "top", "width", "height"});
    if (state.contains("look")) state["look"] = Named(state["look"], {"sortedby", "downwards", "filter"});
    if (state.contains("find")) state["find"] = Named(state["find"], {"text", "found", "note"});
    state["selection"] = Named(state["selection"], {"firstrow", "firstcol", "lastrow", "lastcol"});
    state["cells"] = CellsOf(*grid, command);
  }
  if (state.contains("font") && state["font"].is_array()) {
    state["font"] = Named(state["font"], {"name", "size", "bold", "italic", "underline"});
  }
  return state;
}

Json TreeOf(Form& form, EventLog& log) {
  Json controls = Json::array();
  for (const Control* control : form.Controls()) {
    Json entry = Json::object();
    for (const auto& [name, value] : control->Describe()) {
      for (const char* wanted : {"name", "kind", "index", "visible", "enabled", "caption", "text", "title"}) {
        if (name == wanted) entry[name] = ToJson(value);
      }
    }
    controls.push_back(std::move(entry));
  }
  const Control* focus = form.ActiveControl();
  return {{"form", log.IdOf(form)},  {"name", form.Name()},
          {"title", form.Caption()}, {"left", form.Left()},
          {"top", form.Top()},       {"width", form.Width()},
          {"height", form.Height()}, {"focus", focus != nullptr ? Json(focus->Name()) : Json(nullptr)},
          {"controls", controls}};
}

}  // namespace quillon
