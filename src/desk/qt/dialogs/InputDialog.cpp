#include "desk/qt/dialogs/InputDialog.h"

#include <QLabel>
#include <QLineEdit>

#include "desk/qt/adapters/Scale.h"

namespace quillon {

InputDialog::InputDialog(const InputRequest& request, QWidget* parent)
    : DeskDialog(request.Title.empty() ? QStringLiteral("Quillon") : QString::fromStdString(request.Title),
                 parent),
      line_(new QLineEdit(QString::fromStdString(request.Text), this)) {
  auto* const prompt = new QLabel(QString::fromStdString(request.Prompt), this);
  prompt->setTextFormat(Qt::PlainText);
  prompt->setWordWrap(true);
  prompt->setBuddy(line_);
  line_->setMinimumWidth(Scale::Px(6000));
  line_->setAccessibleName(prompt->text());
  line_->selectAll();
  Content().addWidget(prompt);
  Content().addWidget(line_);
  AddOkCancel();
  line_->setFocus();
}

std::string InputDialog::Text() const { return line_->text().toStdString(); }

}  // namespace quillon
