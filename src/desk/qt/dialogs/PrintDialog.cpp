#include "desk/qt/dialogs/PrintDialog.h"

#include <QComboBox>
#include <QLabel>
#include <QSpinBox>

#include "desk/qt/adapters/Scale.h"

namespace quillon {

namespace {

constexpr int kMostCopies = 99;

}  // namespace

PrintDialog::PrintDialog(const PrintSetup& setup, const std::vector<std::string>& printers, QWidget* parent)
    : DeskDialog(QStringLiteral("Print"), parent), printer_(new QComboBox(this)) {
  Content().addWidget(new QLabel(QStringLiteral("Printer"), this));
  printer_->setAccessibleName(QStringLiteral("Printer"));
  printer_->setMinimumWidth(Scale::Px(5400));
  for (const std::string& name : printers) printer_->addItem(QString::fromStdString(name));
  printer_->addItem(QStringLiteral("PDF file"), true);
  printer_->setCurrentIndex(std::max(0, printer_->findText(QString::fromStdString(setup.PrinterObj))));
  Content().addWidget(printer_);
  from_ = AddNumber(QStringLiteral("From page"), 1, setup.MaxPage, setup.PageFrom);
  to_ = AddNumber(QStringLiteral("To page"), 1, setup.MaxPage, std::min(setup.PageTo, setup.MaxPage));
  copies_ = AddNumber(QStringLiteral("Copies"), 1, kMostCopies, setup.Copies);
  AddOkCancel();
  printer_->setFocus();
}

QSpinBox* PrintDialog::AddNumber(const QString& caption, int least, int most, int value) {
  auto* const line = new QHBoxLayout;
  auto* const number = new QSpinBox(this);
  number->setRange(least, std::max(least, most));
  number->setValue(value);
  number->setAccessibleName(caption);
  line->addWidget(new QLabel(caption, this), 1);
  line->addWidget(number);
  Content().addLayout(line);
  return number;
}

bool PrintDialog::Check() {
  if (from_->value() <= to_->value()) return true;
  ShowFault(QStringLiteral("The first page can't be behind the last one"));
  from_->setFocus();
  return false;
}

void PrintDialog::TakeInto(PrintSetup& setup) const {
  setup.PrinterObj = printer_->currentData().toBool() ? std::string() : printer_->currentText().toStdString();
  setup.PageFrom = from_->value();
  setup.PageTo = to_->value();
  setup.Copies = copies_->value();
}

}  // namespace quillon
