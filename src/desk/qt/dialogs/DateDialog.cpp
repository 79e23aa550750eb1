#include "desk/qt/dialogs/DateDialog.h"

#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>

#include "desk/qt/adapters/Scale.h"
#include "host/services/IStd.h"

namespace quillon {

namespace {

Date DateOf(const QLineEdit& field) { return Date::Parse(field.text().toStdString()); }

}  // namespace

DateDialog::DateDialog(const DateRequest& request, QWidget* parent)
    : DeskDialog(QString::fromStdString(request.Title.empty() ? "Date" : request.Title), parent) {
  auto* const rows = new QGridLayout;
  rows->setHorizontalSpacing(Scale::Px(240));
  rows->setVerticalSpacing(Scale::Px(120));
  Content().addLayout(rows);
  const QString caption = QString::fromStdString(request.Caption);
  const QString plain = request.Single ? QStringLiteral("Date") : QStringLiteral("From");
  first_ = AddField(*rows, caption.isEmpty() ? plain : caption, request.First);
  if (!request.Single) second_ = AddField(*rows, QStringLiteral("To"), request.Second);
  auto* const hint = new QLabel(QStringLiteral("A day, or day and month, is enough: 5 or 5/4"), this);
  hint->setForegroundRole(QPalette::PlaceholderText);
  Content().addWidget(hint);
  AddOkCancel();
  first_->setFocus();
  first_->selectAll();
}

QLineEdit* DateDialog::AddField(QGridLayout& rows, const QString& caption, const Date& date) {
  auto* const field = new QLineEdit(QString::fromStdString(date.Text()), this);
  auto* const label = new QLabel(caption, this);
  field->setMinimumWidth(Scale::Px(3000));
  field->setAccessibleName(caption);
  label->setBuddy(field);
  const int row = rows.rowCount();
  rows.addWidget(label, row, 0);
  rows.addWidget(field, row, 1);
  connect(field, &QLineEdit::editingFinished, this, [field] {
    const std::string whole = gStd->ParseDateText(field->text().toStdString(), "");
    if (!whole.empty()) field->setText(QString::fromStdString(whole));
  });
  return field;
}

bool DateDialog::Complete(QLineEdit& field) {
  const std::string whole = gStd->ParseDateText(field.text().toStdString(), "");
  if (whole.empty()) {
    ShowFault(QStringLiteral("Invalid Date"));
    field.setFocus();
    field.selectAll();
    return false;
  }
  field.setText(QString::fromStdString(whole));
  return true;
}

bool DateDialog::Check() {
  if (!Complete(*first_)) return false;
  if (second_ == nullptr) return true;
  if (!Complete(*second_)) return false;
  if (First() <= Second()) return true;
  ShowFault(QStringLiteral("To Date can't be less than From Date"));
  second_->setFocus();
  return false;
}

Date DateDialog::First() const { return DateOf(*first_); }

Date DateDialog::Second() const { return second_ != nullptr ? DateOf(*second_) : Date(); }

}  // namespace quillon
