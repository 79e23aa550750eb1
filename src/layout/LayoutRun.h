#pragma once

#include <string>
#include <vector>

#include "host/controls/Label.h"
#include "host/services/PrintRun.h"
#include "host/services/PrintSetup.h"

namespace quillon {

/// A print job of a layout on A4: the objects' texts land at the objects' places plus margins. A job that is
/// not ended leaves no page.
class LayoutRun {
 public:
  /// Twips that are added to every place.
  struct Margins {
    double Left = 0;
    double Top = 0;

    /// From the texts of two fields, in inches.
    static Margins OfInches(const std::string& left, const std::string& top);
  };

  /// Takes the printer that was chosen; without a dialog the Printer stays what it is.
  LayoutRun(const PrintSetup* setup, bool isLandscape, const Margins& margins);

  IPrinter& Printer() { return run_.Printer(); }
  const Margins& Offset() const { return margins_; }

  /// The object's lines below each other from its place on, in the printer's font. An object that is aligned
  /// to the right has its lines end at its right edge when `keepsAlignment`.
  void PrintLines(const Label& object, const std::vector<std::string>& lines, bool keepsAlignment);

  void NewPage() { run_.NewPage(); }

  /// Sends the job; false when its user saw the pages and discarded them. Throws HostError when it can't be
  /// written or the device refuses it.
  bool EndDoc() { return run_.EndDoc(); }

 private:
  PrintRun run_;
  Margins margins_;
};

}  // namespace quillon
