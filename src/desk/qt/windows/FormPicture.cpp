#include "desk/qt/windows/FormPicture.h"

#include <QBuffer>
#include <QFileInfo>
#include <QPainter>
#include <QSaveFile>

#include "desk/print/PdfPrinter.h"
#include "desk/qt/adapters/Scale.h"
#include "desk/qt/windows/FormView.h"

namespace quillon {

namespace {

// A line of one dot is then a fine one on paper, and places are true to a tenth of a millimetre.
constexpr int kPaperPercent = 300;
constexpr int kScreenDots = 96;

/// The zoom of the desk is another one while it lives.
class ZoomFor {
 public:
  explicit ZoomFor(int percent) : before_(Scale::Percent()) { Scale::SetDrawing(percent); }
  ZoomFor(const ZoomFor&) = delete;
  ZoomFor& operator=(const ZoomFor&) = delete;
  ~ZoomFor() { Scale::SetDrawing(before_); }

 private:
  int before_;
};

}  // namespace

QImage FormPicture::Draw(const FormPtr& form) {
  const ZoomFor zoom(100);
  FormView view(form);
  view.setAttribute(Qt::WA_DontShowOnScreen);
  view.show();
  view.Settle();
  return view.grab().toImage();
}

void FormPicture::Print(const FormPtr& form, PdfPrinter& printer) {
  const ZoomFor zoom(kPaperPercent);
  QWidget paper;  // a form on it is no window and has no edge
  FormView view(form, &paper);
  view.Settle();
  view.setAutoFillBackground(form->BackColor != Control::kDefaultColor);
  QWidget::RenderFlags parts = QWidget::DrawChildren;
  if (form->BackColor != Control::kDefaultColor) parts |= QWidget::DrawWindowBackground;
  // The painter counts the dots of the screen, in which the widgets' fonts are measured.
  printer.PrintPicture(kScreenDots, [&](QPainter& painter) {
    painter.scale(100.0 / kPaperPercent, 100.0 / kPaperPercent);
    view.render(&painter, {}, {}, parts);
  });
}

void FormPicture::Save(const FormPtr& form, const std::string& file) {
  const QString name = QString::fromStdString(file);
  QByteArray bytes;
  QBuffer buffer(&bytes);
  buffer.open(QIODevice::WriteOnly);
  const bool drawn = Draw(form).save(&buffer, QFileInfo(name).suffix().toLatin1().constData());
  QSaveFile out(name);
  // A picture that cannot be written whole leaves nothing; commit alone does not hear of a disk that is full.
  if (!drawn || !out.open(QIODevice::WriteOnly) || out.write(bytes) != bytes.size() || !out.flush() ||
      !out.commit())
    throw HostError("The picture " + file + " cannot be written");
}

}  // namespace quillon
