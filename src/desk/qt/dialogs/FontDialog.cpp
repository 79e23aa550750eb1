#include "desk/qt/dialogs/FontDialog.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDoubleSpinBox>
#include <QFontDatabase>
#include <QLabel>

#include "desk/qt/adapters/Scale.h"

namespace quillon {

namespace {

constexpr double kSmallest = 4;
constexpr double kLargest = 200;
constexpr double kSizeStep = 0.75;  // a dot of the screen
constexpr long kSampleHeight = 1200;

}  // namespace

FontDialog::FontDialog(const Font& font, QWidget* parent)
    : DeskDialog(QStringLiteral("Font"), parent),
      name_(new QComboBox(this)),
      size_(new QDoubleSpinBox(this)) {
  const QString name = QString::fromStdString(font.Name);
  QStringList names = QFontDatabase::families();
  if (!names.contains(name, Qt::CaseInsensitive)) names.prepend(name);
  name_->addItems(names);
  name_->setCurrentIndex(name_->findText(name, Qt::MatchFixedString));
  name_->setAccessibleName(QStringLiteral("Font"));
  size_->setRange(std::min(kSmallest, font.Size), std::max(kLargest, font.Size));
  size_->setSingleStep(kSizeStep);
  size_->setValue(font.Size);
  size_->setAccessibleName(QStringLiteral("Size"));
  auto* const line = new QHBoxLayout;
  line->addWidget(name_, 1);
  line->addWidget(size_);
  line->addWidget(new QLabel(QStringLiteral("points"), this));
  Content().addLayout(line);
  bold_ = AddMark(QStringLiteral("Bold"), font.Bold);
  italic_ = AddMark(QStringLiteral("Italic"), font.Italic);
  underline_ = AddMark(QStringLiteral("Underline"), font.Underline);
  sample_ = new QLabel(QStringLiteral("Rupees One Thousand 1,23,456.78"), this);
  sample_->setFixedHeight(Scale::Px(kSampleHeight));
  Content().addWidget(sample_);
  AddOkCancel();
  connect(name_, &QComboBox::currentTextChanged, this, [this] { ShowSample(); });
  connect(size_, &QDoubleSpinBox::valueChanged, this, [this] { ShowSample(); });
  ShowSample();
  name_->setFocus();
}

QCheckBox* FontDialog::AddMark(const QString& caption, bool set) {
  auto* const mark = new QCheckBox(caption, this);
  mark->setChecked(set);
  connect(mark, &QCheckBox::toggled, this, [this] { ShowSample(); });
  Content().addWidget(mark);
  return mark;
}

Font FontDialog::Chosen() const {
  return {name_->currentText().toStdString(), size_->value(), bold_->isChecked(), italic_->isChecked(),
          underline_->isChecked()};
}

void FontDialog::ShowSample() { sample_->setFont(Scale::FontOf(Chosen())); }

}  // namespace quillon
