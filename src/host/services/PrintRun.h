#pragma once

#include "host/services/IPrinter.h"

namespace quillon {

/// A print job for its block: it begins on a fresh page whatever was left unfinished before, and one that is
/// not ended, or that an exception breaks off, leaves no page behind.
class PrintRun {
 public:
  /// The printer must live as long as the run.
  explicit PrintRun(IPrinter& printer) : printer_(printer) { printer_.KillDoc(); }
  PrintRun(const PrintRun&) = delete;
  PrintRun& operator=(const PrintRun&) = delete;
  ~PrintRun() { printer_.KillDoc(); }

  IPrinter& Printer() { return printer_; }
  void NewPage() { printer_.NewPage(); }

  /// Sends the job; false when its user saw the pages and discarded them. Throws HostError when it can't be
  /// written or the device refuses it.
  bool EndDoc() { return printer_.EndDoc(); }

  /// Drops what was printed so far.
  void KillDoc() { printer_.KillDoc(); }

 private:
  IPrinter& printer_;
};

}  // namespace quillon
