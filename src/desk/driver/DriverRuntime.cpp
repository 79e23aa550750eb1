#include "desk/driver/DriverRuntime.h"

#include <algorithm>
#include <cmath>
#include <filesystem>

#include "desk/print/Spooler.h"
#include "desk/print/TextMeasure.h"
#include "desk/qt/windows/FormPicture.h"
#include "host/controls/Menu.h"
#include "host/forms/CPickList.h"
#include "host/services/Calibration.h"
#include "host/services/IStd.h"
#include "host/services/PrintSetup.h"
#include "host/values/ErrorText.h"

namespace quillon {

namespace {

const char* NameOf(int what) {
  constexpr const char* kNames[] = {"load", "show", "hide", "unload"};
  return kNames[what];
}

/// A date of an answer, as a person may type it; empty stays empty.
Date AnsweredDate(const Json& answer, const char* name) {
  const std::string text = answer.value(name, "");
  if (text.empty()) return {};
  const Date date = Date::Parse(gStd->ParseDateText(text, ""));
  if (date.IsEmpty()) throw HostError("The answer to the date dialog is no date: " + text);
  return date;
}

}  // namespace

DriverRuntime::DriverRuntime(EventLog& log, const std::string& outputFolder)
    : log_(log), outputFolder_(outputFolder), printer_(outputFolder, &log) {
  printer_.AskSight = [this](const ReportPages& pages) { return AskSight(pages); };
}

bool DriverRuntime::AskSight(const ReportPages& pages) {
  const std::string& printer = printer_.DeviceName;
  Json event{{"event", "sight"},
             {"pages", pages.Pages.size()},
             {"printer", printer},
             {"corrected", Calibration::Of(printer).Words()}};
  const std::optional<Json> answer = Answer("sight", event);
  log_.Write(event);
  return answer && answer->value("print", false);
}

std::string DriverRuntime::InOutput(const std::string& file) const {
  return (std::filesystem::path(outputFolder_) / file).string();
}

void DriverRuntime::ShowWaiting(bool on) { log_.Write({{"event", "waiting"}, {"on", on}}); }

void DriverRuntime::ShowBusy(bool on, const std::string& text) {
  log_.Write({{"event", "busy"}, {"on", on}, {"text", text}});
}

long DriverRuntime::TextWidth(const Font& font, const std::string& text) const {
  return std::lround(TextMeasure::Width(font, text));
}

std::vector<PrinterDevice> DriverRuntime::Printers() const { return Spooler::Printers(); }

void DriverRuntime::PrintForm(Form& form) { FormPicture::Print(form.Self(), printer_); }

std::optional<Json> DriverRuntime::Answer(const std::string& kind, Json& event) {
  std::optional<Json> answer = Laid.Take(kind);
  if (!answer) {
    event["answered"] = "default";
  } else if (answer->value("cancel", false)) {
    event["answered"] = "cancel";
    answer.reset();
  } else {
    Json told = *answer;
    told.erase("cmd");
    told.erase("to");
    event["answered"] = told;
  }
  return answer;
}

int DriverRuntime::AskMessage(const MessageRequest& request) {
  Json event{{"event", "message"},         {"text", request.Text},   {"icon", request.Icon},
             {"buttons", request.Buttons}, {"title", request.Title}, {"default", request.Default}};
  if (!request.Details.empty()) event["details"] = request.Details;
  int button = request.Default;
  if (const std::optional<Json> answer = Answer("message", event)) {
    button = answer->at("button").get<int>();
    if (button < 1 || button > static_cast<int>(request.Buttons.size())) {
      throw HostError("The message has no button " + std::to_string(button) + ": " + request.Text);
    }
    event["answered"] = button;
  }
  log_.Write(event);
  return button;
}

bool DriverRuntime::AskInput(const InputRequest& request, std::string& reply) {
  Json event{
      {"event", "input"}, {"prompt", request.Prompt}, {"title", request.Title}, {"text", request.Text}};
  const std::optional<Json> answer = Answer("input", event);
  log_.Write(event);
  if (answer) reply = answer->at("text").get<std::string>();
  return answer.has_value();
}

bool DriverRuntime::AskFile(const FileRequest& request, std::string& path) {
  Json event{{"event", "file"},
             {"save", request.Save},
             {"title", request.Title},
             {"filter", request.Filter},
             {"path", request.Path}};
  const std::optional<Json> answer = Answer("file", event);
  log_.Write(event);
  if (answer) path = answer->at("path").get<std::string>();
  return answer.has_value();
}

bool DriverRuntime::AskFont(Font& font) {
  Json event{{"event", "font"},   {"name", font.Name},     {"size", font.Size},
             {"bold", font.Bold}, {"italic", font.Italic}, {"underline", font.Underline}};
  const std::optional<Json> answer = Answer("font", event);
  log_.Write(event);
  if (!answer) return false;
  font.Name = answer->at("name").get<std::string>();
  font.Size = answer->value("size", font.Size);
  font.Bold = answer->value("bold", font.Bold);
  font.Italic = answer->value("italic", font.Italic);
  font.Underline = answer->value("underline", font.Underline);
  return true;
}

bool DriverRuntime::AskDate(DateRequest& request) {
  Json event{{"event", "date"},          {"title", request.Title},        {"caption", request.Caption},
             {"single", request.Single}, {"date1", request.First.Text()}, {"date2", request.Second.Text()}};
  const std::optional<Json> answer = Answer("date", event);
  log_.Write(event);
  if (!answer) return false;
  const Date first = AnsweredDate(*answer, "date1");
  const Date second = AnsweredDate(*answer, "date2");
  if (first.IsEmpty() || (!request.Single && second.IsEmpty())) {
    throw HostError("The answer to the date dialog lacks a date");
  }
  request.First = first;
  request.Second = second;
  return true;
}

bool DriverRuntime::AskPick(const CPickList& list, std::size_t& item) {
  Json lines = Json::array();
  for (const CPickList::Line& line : list.Lines()) lines.push_back(line.cells);
  Json event{{"event", "pick"}, {"title", list.TitleText()}, {"items", lines}};
  const std::optional<Json> answer = Answer("pick", event);
  log_.Write(event);
  if (!answer) return false;
  item = answer->at("item").get<std::size_t>();
  if (item >= list.Lines().size()) throw HostError("The pick list has no item " + std::to_string(item));
  return true;
}

bool DriverRuntime::AskParties(PartiesRequest& request) {
  Json event{{"event", "parties"}, {"alias", request.Alias}};
  const std::optional<Json> answer = Answer("parties", event);
  log_.Write(event);
  if (!answer) return false;
  request.Clause = answer->at("clause").get<std::string>();
  request.Caption = answer->value("caption", "");
  request.OrderBy = answer->value("orderby", "");
  request.JoinCnd = answer->value("joincnd", "");
  return true;
}

bool DriverRuntime::AskPrint(PrintSetup& setup) {
  Json event{{"event", "printdialog"},
             {"pagefrom", setup.PageFrom},
             {"pageto", setup.PageTo},
             {"copies", setup.Copies},
             {"orientation", setup.Orientation},
             {"colormode", setup.ColorMode},
             {"printer", setup.PrinterObj->DeviceName},
             {"printers", Json::array()}};
  const std::vector<PrinterDevice> printers = Printers();
  for (const PrinterDevice& each : printers) event["printers"].push_back(each.DeviceName);
  const std::optional<Json> answer = Answer("printdialog", event);
  log_.Write(event);
  if (!answer) return false;
  setup.PageFrom = answer->value("pagefrom", setup.PageFrom);
  setup.PageTo = answer->value("pageto", setup.PageTo);
  setup.Copies = answer->value("copies", setup.Copies);
  setup.OE = answer->value("oe", setup.OE);
  setup.SeeFirst = answer->value("seefirst", setup.SeeFirst);
  setup.ColorMode = answer->value("colormode", setup.ColorMode);
  const PrinterDevice chosen{answer->value("printer", setup.PrinterObj->DeviceName)};
  if (std::find(printers.begin(), printers.end(), chosen) == printers.end())
    throw HostError("The print dialog has no printer " + chosen.DeviceName);
  setup.PrinterObj = chosen;
  return true;
}

void DriverRuntime::ShowHelp(Form& form, int context) {
  log_.Write({{"event", "help"}, {"form", log_.IdOf(form)}, {"context", context}});
}

int DriverRuntime::AskPopup(Form& form, Menu& menu, long /*left*/, long /*top*/) {
  Json event = {{"event", "menu"}, {"name", menu.Name()}, {"form", log_.IdOf(form)}, {"items", menu.Items}};
  if (!menu.Keys.empty()) event["keys"] = menu.Keys;
  log_.Write(event);
  OpenMenu open;
  open.items = static_cast<int>(menu.Items.size());
  open.keys = menu.Keys;
  OpenMenu* const outer = menu_;
  menu_ = &open;
  while (open.open && NextCommand()) continue;
  menu_ = outer;
  return open.chosen;
}

void DriverRuntime::PickFromMenu(int item) {
  if (menu_ == nullptr) throw Refused("No menu is shown");
  if (item < 0 || item >= menu_->items) throw Refused("The menu has no item " + std::to_string(item));
  menu_->chosen = item;
  menu_->open = false;
}

void DriverRuntime::PickFromMenu(const std::string& key) {
  if (menu_ == nullptr) throw Refused("No menu is shown");
  const auto found = std::find(menu_->keys.begin(), menu_->keys.end(), key);
  if (found == menu_->keys.end()) throw Refused("The menu has no item \"" + key + "\"");
  PickFromMenu(static_cast<int>(found - menu_->keys.begin()));
}

void DriverRuntime::LeaveMenu() {
  if (menu_ != nullptr) menu_->open = false;
}

void DriverRuntime::TellError(const std::string& routine, Form* form, const std::exception& error) {
  Json event = {{"event", "error"},
                {"routine", routine},
                {"form", form != nullptr ? Json(log_.IdOf(*form)) : Json(nullptr)},
                {"text", ErrorText(error)}};
  if (const std::string details = ErrorDetails(error); !details.empty()) event["details"] = details;
  log_.Write(event);
}

void DriverRuntime::FormHappened(Happening what, Form& form) {
  if (&form == ignored_) return;
  log_.Write({{"event", "form"},
              {"what", NameOf(static_cast<int>(what))},
              {"form", log_.IdOf(form)},
              {"name", form.Name()},
              {"title", form.Caption()},
              {"modal", form.IsModal()}});
}

void DriverRuntime::PointerChanged(int pointer) { log_.Write({{"event", "pointer"}, {"value", pointer}}); }

void DriverRuntime::Wait(const std::function<bool()>& done) {
  while (!done()) {
    if (NextCommand()) continue;
    // At the end of the script what still waits is closed, as a person leaving would.
    const FormPtr form = ActiveForm();
    if (!form) return;
    Act([&] { Unload(*form, UnloadMode::CloseBox); });
    if (form->IsShownToUser()) Hide(*form);
  }
}

}  // namespace quillon
