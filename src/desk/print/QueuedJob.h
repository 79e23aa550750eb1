#pragma once

#include <string>

#include "host/services/IPrinter.h"

namespace quillon {

/// A job in a printer's queue, by the name that the spooler gave it: "Laser-12".
class QueuedJob {
 public:
  /// A name without a number is that of no job: its fate stays in doubt.
  explicit QueuedJob(const std::string& name);

  /// What the spooler knows of it now; `why` takes, in words, what keeps a job in doubt.
  IPrinter::JobFate Fate(std::string& why) const;

  /// Why it waits in its queue, in words, when its printer is stopped or its queue holds it back; else empty.
  std::string HeldUp() const;

  /// Takes it out of the queue; nothing happens when it is not there any more.
  void TakeBack() const;

 private:
  /// As the spooler counts states; 0 when it does not know the job.
  int State(std::string& heldUp) const;

  std::string queue_;
  int number_ = 0;
};

}  // namespace quillon
