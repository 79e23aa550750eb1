#pragma once

#include <filesystem>
#include <functional>
#include <ostream>
#include <string>
#include <vector>

#include "desk/driver/DriverRuntime.h"
#include "desk/print/ReportPages.h"
#include "desk/shell/Desk.h"

namespace quillon::bench {

/// What the desk takes to bring something onto paper, and what the writing of the ready pages takes alone.
struct PaperTimes {
  std::string Title;
  double Desk = 0;   ///< seconds
  double Floor = 0;  ///< seconds
};

/// The desk on a firm with many parties, printing cheques, envelopes, labels and letters.
class PaperWork {
 public:
  PaperWork(const std::filesystem::path& firm, const std::filesystem::path& output);

  /// The firm's parties, added to one that has none.
  static void AddParties(CDbLink& year, int count);

  /// The same texts are put by the writer of pages alone.
  PaperTimes Cheques(int count);
  PaperTimes Envelopes(int count);

  /// The report engine has the ready grid.
  PaperTimes Labels();
  PaperTimes Letter();

 private:
  class Runtime : public DriverRuntime {
   public:
    using DriverRuntime::DriverRuntime;
    void TellError(const std::string& routine, Form* form, const std::exception& error) override;

   protected:
    void FormHappened(Happening, Form&) override {}
  };

  FormPtr OpenLabels(int mostParties);
  ReportPages PagesOf(const std::function<void()>& print);
  double Write(const ReportPages& pages, int times) const;
  PaperTimes Report(const std::string& title, const std::function<void()>& act);

  std::ostream nowhere_{nullptr};
  EventLog log_{nowhere_};
  std::string output_;
  Runtime runtime_;
  Desk desk_;
};

}  // namespace quillon::bench
