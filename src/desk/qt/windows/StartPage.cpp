#include "desk/qt/windows/StartPage.h"

#include <QLabel>
#include <QVBoxLayout>

#include "desk/qt/adapters/PushButton.h"
#include "desk/qt/adapters/Scale.h"

namespace quillon {

namespace {

constexpr double kTitleSize = 20;
constexpr long kGap = 180;
constexpr long kButtonWidth = 4200;
constexpr long kButtonHeight = 540;

}  // namespace

StartPage::StartPage(QWidget* parent) : QWidget(parent), title_(new QLabel(this)), words_(new QLabel(this)) {
  auto* const all = new QVBoxLayout(this);
  all->setAlignment(Qt::AlignCenter);
  for (QLabel* label : {title_, words_}) {
    label->setAlignment(Qt::AlignCenter);
    all->addWidget(label);
  }
  open_ = AddButton(QStringLiteral("Open a firm"), QStringLiteral("open"), [this] { OnOpen(); });
  sample_ =
      AddButton(QStringLiteral("Look at the sample firm"), QStringLiteral("desk"), [this] { OnSample(); });
  statement_ = AddButton(QStringLiteral("Statement of Account"), QStringLiteral("acstatement"),
                         [this] { OnStatement(); });
  accounts_ = AddButton(QStringLiteral("Accounts"), QStringLiteral("customers"), [this] { OnAccounts(); });
  Replace();
  ShowFirm(QString());
}

void StartPage::Replace() {
  layout()->setSpacing(Scale::Px(kGap));
  Font large;
  large.Size = kTitleSize;
  title_->setFont(Scale::FontOf(large));
  for (PushButton* button : {open_, sample_, statement_, accounts_}) {
    button->setMinimumSize(Scale::Px(kButtonWidth), Scale::Px(kButtonHeight));
  }
}

PushButton* StartPage::AddButton(const QString& caption, const QString& icon,
                                 const std::function<void()>& pressed) {
  auto* const button = new PushButton(this);
  button->SetCaption(caption);
  button->SetIconKey(icon);
  button->setAutoDefault(true);
  connect(button, &QPushButton::clicked, this, pressed);
  layout()->addWidget(button);
  return button;
}

void StartPage::ShowFirm(const QString& name) {
  const bool open = !name.isEmpty();
  title_->setText(open ? name : QStringLiteral("Quillon"));
  words_->setText(open ? QStringLiteral("Where to?") : QStringLiteral("No firm is open"));
  open_->setVisible(!open);
  sample_->setVisible(!open);
  statement_->setVisible(open);
  accounts_->setVisible(open);
  (open ? statement_ : open_)->setFocus();
}

}  // namespace quillon
