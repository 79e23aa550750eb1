#pragma once

#include <filesystem>
#include <functional>
#include <ostream>
#include <string>
#include <vector>

#include "desk/driver/DriverRuntime.h"
#include "desk/shell/Desk.h"

namespace quillon::bench {

/// What the desk took for a piece of bulk work, and what it sent meanwhile.
struct BulkRun {
  double Seconds = 0;
  std::vector<std::string> Sent;
};

/// The desk on a firm, with the screens that change many entries at once.
class BulkWork {
 public:
  explicit BulkWork(const std::filesystem::path& firm);

  /// The bank's entries up to a day go to a party.
  BulkRun Transfer(Date last, int party);

  /// So many parties go into as many others.
  BulkRun Merge(int pairs);

 private:
  /// The driver's runtime that says yes to every question.
  class Runtime : public DriverRuntime {
   public:
    using DriverRuntime::DriverRuntime;
    int AskMessage(const MessageRequest&) override { return 1; }
    void TellError(const std::string& routine, Form* form, const std::exception& error) override;

   protected:
    void FormHappened(Happening, Form&) override {}
  };

  BulkRun PressOk(const FormPtr& form);

  std::ostream nowhere_{nullptr};
  EventLog log_{nowhere_};
  Runtime runtime_;
  Desk desk_;
};

/// Seconds that an act takes.
double TimeOf(const std::function<void()>& act);

}  // namespace quillon::bench
