#pragma once

#include <memory>
#include <string>

#include "desk/print/Paper.h"

class QPainter;

namespace quillon {

/// A PDF in the making, drawn from each page's top left corner.
class PdfDocument {
 public:
  /// Begins the first page. `paper` and `orientation` are the numbers of IPrinter, `dotsPerInch` is the unit
  /// of the painter. Throws HostError.
  PdfDocument(const std::string& folder, const std::string& stem, int paper, int orientation,
              int dotsPerInch = kTwipsPerInch);
  PdfDocument(const PdfDocument&) = delete;
  PdfDocument& operator=(const PdfDocument&) = delete;

  /// Drops an unfinished document.
  ~PdfDocument();

  QPainter& Painter();
  int Pages() const { return pages_; }
  void NewPage(int paper, int orientation);

  /// The file with its folder: STEM-1.pdf, STEM-2.pdf … Throws HostError.
  std::string Finish();

 private:
  struct Parts;
  std::unique_ptr<Parts> parts_;
  int pages_ = 1;
};

}  // namespace quillon
