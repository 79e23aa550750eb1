#include "desk/qt/dialogs/PrintDialog.h"

#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QSpinBox>

#include "desk/qt/adapters/Scale.h"
#include "host/services/IPrinter.h"

namespace quillon {

namespace {

constexpr int kMostCopies = 99;

}  // namespace

PrintDialog::PrintDialog(const PrintSetup& setup, const std::vector<PrinterDevice>& printers, QWidget* parent)
    : DeskDialog(QStringLiteral("Print"), parent), printer_(AddChoice(QStringLiteral("Printer"))) {
  printer_->setMinimumWidth(Scale::Px(3900));
  for (const PrinterDevice& each : printers) printer_->addItem(QString::fromStdString(each.DeviceName));
  const QString offered = setup.PrinterObj ? QString::fromStdString(setup.PrinterObj->DeviceName) : QString();
  printer_->setCurrentIndex(std::max(0, printer_->findText(offered)));
  if (setup.MaxPage > 1) {
    from_ = AddNumber(QStringLiteral("From page"), setup.MaxPage, setup.PageFrom);
    to_ = AddNumber(QStringLiteral("To page"), setup.MaxPage, setup.PageTo);
    if (setup.OE != "X") {
      sides_ = AddChoice(QStringLiteral("Pages"));
      sides_->addItem(QStringLiteral("All pages"), QString());
      sides_->addItem(QStringLiteral("Odd pages"), QStringLiteral("O"));
      sides_->addItem(QStringLiteral("Even pages"), QStringLiteral("E"));
      sides_->setCurrentIndex(std::max(0, sides_->findData(QString::fromStdString(setup.OE))));
    }
  }
  if (setup.Copies > 0) copies_ = AddNumber(QStringLiteral("Copies"), kMostCopies, setup.Copies);
  if (setup.Color != "X") {
    color_ = AddChoice(QStringLiteral("Colour"));
    color_->addItem(QStringLiteral("In colour"), IPrinter::kColor);
    color_->addItem(QStringLiteral("Black and white"), IPrinter::kMonochrome);
    color_->setCurrentIndex(std::max(0, color_->findData(setup.ColorMode)));
  }
  if (setup.OffersSight) {
    sight_ = new QCheckBox(QStringLiteral("See it first"), this);
    sight_->setChecked(setup.SeeFirst);
    Content().addWidget(sight_);
  }
  const bool across = setup.Orientation == IPrinter::kLandscape;
  Content().addWidget(new QLabel(
      across ? QStringLiteral("Paper: A4, landscape") : QStringLiteral("Paper: A4, upright"), this));
  AddOkCancel();
  printer_->setFocus();
}

QComboBox* PrintDialog::AddChoice(const QString& caption) {
  auto* const line = new QHBoxLayout;
  auto* const choice = new QComboBox(this);
  choice->setAccessibleName(caption);
  line->addWidget(new QLabel(caption, this), 1);
  line->addWidget(choice);
  Content().addLayout(line);
  return choice;
}

QSpinBox* PrintDialog::AddNumber(const QString& caption, int most, int value) {
  auto* const line = new QHBoxLayout;
  auto* const number = new QSpinBox(this);
  number->setRange(1, most);
  number->setValue(value);
  number->setAccessibleName(caption);
  line->addWidget(new QLabel(caption, this), 1);
  line->addWidget(number);
  Content().addLayout(line);
  return number;
}

bool PrintDialog::Check() {
  if (from_ == nullptr || from_->value() <= to_->value()) return true;
  ShowFault(QStringLiteral("The first page can't be behind the last one"));
  from_->setFocus();
  return false;
}

void PrintDialog::TakeInto(PrintSetup& setup) const {
  setup.PrinterObj = PrinterDevice{printer_->currentText().toStdString()};
  if (from_ != nullptr) {
    setup.PageFrom = from_->value();
    setup.PageTo = to_->value();
  }
  if (sides_ != nullptr) setup.OE = sides_->currentData().toString().toStdString();
  if (copies_ != nullptr) setup.Copies = copies_->value();
  if (sight_ != nullptr) setup.SeeFirst = sight_->isChecked();
  if (color_ != nullptr) setup.ColorMode = color_->currentData().toInt();
}

}  // namespace quillon
