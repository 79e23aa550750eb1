#include "desk/print/PdfDocument.h"

#include <QFile>
#include <QPainter>
#include <QPdfWriter>

#include "desk/print/OutputFile.h"
#include "desk/print/Paper.h"
#include "host/values/Errors.h"

namespace quillon {

struct PdfDocument::Parts {
  Parts(const std::string& folder, const std::string& stem)
      : file(folder, stem, ".pdf"), writer(&file.Device()) {}

  void SetPage(int paper, int orientation) { writer.setPageLayout(PageLayout(paper, orientation)); }

  OutputFile file;
  QPdfWriter writer;
  QPainter painter;
};

PdfDocument::PdfDocument(const std::string& folder, const std::string& stem, int paper, int orientation,
                         int dotsPerInch)
    : parts_(std::make_unique<Parts>(folder, stem)) {
  parts_->writer.setResolution(dotsPerInch);
  parts_->writer.setCreator(QStringLiteral("Quillon"));
  parts_->SetPage(paper, orientation);
  if (!parts_->painter.begin(&parts_->writer)) throw HostError("The PDF could not be begun in " + folder);
}

PdfDocument::~PdfDocument() = default;

QPainter& PdfDocument::Painter() { return parts_->painter; }

void PdfDocument::NewPage(int paper, int orientation) {
  parts_->SetPage(paper, orientation);
  parts_->writer.newPage();
  ++pages_;
}

std::string PdfDocument::Finish() {
  parts_->painter.end();
  return parts_->file.Finish();
}

}  // namespace quillon
