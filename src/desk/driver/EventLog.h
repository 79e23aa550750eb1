#pragma once

#include <map>
#include <memory>
#include <ostream>
#include <string>

#include "desk/driver/JsonText.h"
#include "desk/firebird/SqlObserver.h"
#include "desk/print/DeskReports.h"
#include "desk/print/PrintObserver.h"
#include "host/forms/Form.h"

namespace quillon {

/// Writes the driver's lines, one JSON object each, in the order in which things happen, and knows the forms
/// by id.
class EventLog : public SqlObserver, public PrintObserver, public ReportObserver {
 public:
  explicit EventLog(std::ostream& out) : out_(out) {}

  bool TraceSql = false;
  bool TracePrint = false;

  void Write(const Json& line);

  /// Whether a line could not be written: nobody reads any more, or the disk is full.
  bool HasFailed() const { return !out_; }

  /// "f1", "f2" … in the order of first mention; or the id that a script has given the form.
  std::string IdOf(Form& form);
  void GiveId(const FormPtr& form, const std::string& id);

  /// The number of the next id.
  int NextId() const { return nextId_; }
  void SetNextId(int number) { nextId_ = number; }

  /// Throws HostError for an id that no form has. An unloaded form keeps its id.
  FormPtr FormOf(const std::string& id) const;

  void OnStatement(const CDbLink& link, const std::string& db, const std::string& sql, std::int64_t rows,
                   const std::string& error) override;
  void OnText(int page, double x, double y, const std::string& text, const Font& font) override;
  void OnPrinted(const std::string& file, int pages, int paper, int orientation) override;
  void OnReport(const ReportShown& report) override;

 private:
  std::ostream& out_;
  std::map<std::string, FormPtr> forms_;
  int nextId_ = 1;
};

}  // namespace quillon
