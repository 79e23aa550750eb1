#include "desk/print/Paper.h"

#include <QPageLayout>
#include <QPageSize>
#include <QRectF>

#include "host/services/IPrinter.h"

namespace quillon {

namespace {

QPageSize::PageSizeId SizeId(int paper) {
  switch (paper) {
    case 1:
      return QPageSize::Letter;
    case 5:
      return QPageSize::Legal;
    case 8:
      return QPageSize::A3;
    case 11:
      return QPageSize::A5;
    default:
      return QPageSize::A4;
  }
}

}  // namespace

PaperExtent PaperSizeOf(int paper, int orientation) {
  const QSizeF inches = PageLayout(paper, orientation).fullRect(QPageLayout::Inch).size();
  return {inches.width() * kTwipsPerInch, inches.height() * kTwipsPerInch};
}

std::string PaperName(int paper) {
  switch (paper) {
    case 1:
      return "na_letter_8.5x11in";
    case 5:
      return "na_legal_8.5x14in";
    case 8:
      return "iso_a3_297x420mm";
    case 11:
      return "iso_a5_148x210mm";
    default:
      return "iso_a4_210x297mm";
  }
}

QPageLayout PageLayout(int paper, int orientation) {
  return QPageLayout(QPageSize(SizeId(paper)),
                     orientation == IPrinter::kLandscape ? QPageLayout::Landscape : QPageLayout::Portrait,
                     QMarginsF(0, 0, 0, 0));
}

}  // namespace quillon
