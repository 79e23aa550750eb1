#include "desk/qt/StartPage.h"

#include <QLabel>
#include <QVBoxLayout>

#include "desk/qt/PushButton.h"
#include "desk/qt/Scale.h"

namespace quillon {

StartPage::StartPage(QWidget* parent) : QWidget(parent) {
  auto* const all = new QVBoxLayout(this);
  all->setAlignment(Qt::AlignCenter);
  all->setSpacing(Scale::Px(180));
  auto* const title = new QLabel(QStringLiteral("Quillon"), this);
  Font large;
  large.Size = 24;
  title->setFont(Scale::FontOf(large));
  title->setAlignment(Qt::AlignCenter);
  all->addWidget(title);
  auto* const words = new QLabel(QStringLiteral("No firm is open"), this);
  words->setAlignment(Qt::AlignCenter);
  all->addWidget(words);
  AddButton(QStringLiteral("Open a firm"), QStringLiteral("open"), [this] { OnOpen(); });
  AddButton(QStringLiteral("Look at the sample firm"), QStringLiteral("desk"), [this] { OnSample(); });
}

void StartPage::AddButton(const QString& caption, const QString& icon, const std::function<void()>& pressed) {
  auto* const button = new PushButton(this);
  button->SetCaption(caption);
  button->SetIconKey(icon);
  button->setMinimumSize(Scale::Px(4200), Scale::Px(540));
  button->setAutoDefault(true);
  connect(button, &QPushButton::clicked, this, pressed);
  layout()->addWidget(button);
}

}  // namespace quillon
