#include "desk/qt/windows/FormPicture.h"

#include "desk/qt/adapters/Scale.h"
#include "desk/qt/windows/FormView.h"

namespace quillon {

QImage FormPicture::Draw(const FormPtr& form) {
  const int zoom = Scale::Percent();
  Scale::SetPercent(100);
  FormView view(form);
  view.setAttribute(Qt::WA_DontShowOnScreen);
  view.show();
  view.Settle();
  const QImage picture = view.grab().toImage();
  Scale::SetPercent(zoom);
  return picture;
}

void FormPicture::Save(const FormPtr& form, const std::string& file) {
  if (!Draw(form).save(QString::fromStdString(file))) {
    throw HostError("The picture " + file + " cannot be written");
  }
}

}  // namespace quillon
