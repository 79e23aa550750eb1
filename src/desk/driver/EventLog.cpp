#include "desk/driver/EventLog.h"

#include <cmath>

#include "host/services/ISession.h"

namespace quillon {

void EventLog::Write(const Json& line) { out_ << Line(line) << std::endl; }

std::string EventLog::IdOf(Form& form) {
  for (const auto& [id, known] : forms_) {
    if (known.get() == &form) return id;
  }
  std::string id = "f" + std::to_string(nextId_++);
  while (forms_.contains(id)) id = "f" + std::to_string(nextId_++);
  forms_[id] = form.Self();
  return id;
}

void EventLog::GiveId(const FormPtr& form, const std::string& id) {
  std::erase_if(forms_, [&](const auto& known) { return known.second == form; });
  forms_[id] = form;
}

FormPtr EventLog::FormOf(const std::string& id) const {
  const auto known = forms_.find(id);
  if (known == forms_.end()) throw HostError("There is no form " + id);
  return known->second;
}

void EventLog::OnStatement(const CDbLink& link, const std::string& db, const std::string& sql,
                           std::int64_t rows, const std::string& error) {
  if (!TraceSql) return;
  // The open year is the main database; the definitions of the data forms lie on the same link.
  const bool main = gSession != nullptr && &gSession->MainDb() == &link;
  Json line{{"event", "sql"}, {"db", main ? "main" : db}, {"text", sql}, {"rows", rows}};
  if (!error.empty()) line["error"] = error;
  Write(line);
}

void EventLog::OnText(int page, double x, double y, const std::string& text, const Font& font) {
  if (!TracePrint) return;
  Write({{"event", "print"},
         {"page", page},
         {"x", std::lround(x)},
         {"y", std::lround(y)},
         {"text", text},
         {"font", font.Name},
         {"size", font.Size},
         {"bold", font.Bold},
         {"italic", font.Italic},
         {"underline", font.Underline}});
}

void EventLog::OnPrinted(const std::string& file, int pages, int paper, int orientation) {
  Write({{"event", "printed"},
         {"file", file},
         {"pages", pages},
         {"paper", paper},
         {"orientation", orientation}});
}

void EventLog::OnReport(const ReportShown& report) {
  Write({{"event", "report"},
         {"title", report.Title},
         {"subtitle", report.Subtitle},
         {"print", report.Print},
         {"file", report.File},
         {"pages", report.Pages},
         {"grid", ToJson(report.Grid.CellTexts(0, report.Grid.Rows - 1, {}))}});
}

}  // namespace quillon
