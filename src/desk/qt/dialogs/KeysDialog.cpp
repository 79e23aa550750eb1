#include "desk/qt/dialogs/KeysDialog.h"

#include <QFile>
#include <QGridLayout>
#include <QLabel>

#include "desk/qt/adapters/PushButton.h"
#include "desk/qt/adapters/Scale.h"
#include "desk/qt/adapters/Theme.h"
#include "host/controls/CButtonBar.h"
#include "host/controls/CommandButton.h"
#include "host/forms/Form.h"

/// A resource inside a static library has to be asked for, outside every namespace.
static void InitHelp() { Q_INIT_RESOURCE(help); }

namespace quillon {

namespace {

constexpr long kKeyWidth = 1500;
constexpr long kWordsWidth = 4500;
constexpr long kRowGap = 60;

struct KeyLine {
  const char* key;
  const char* what;
};

constexpr KeyLine kEverywhere[] = {
    {"Enter, Tab", "Next field"},
    {"Shift+Tab", "Field before"},
    {"Ctrl+Tab", "Next window"},
    {"Ctrl+M", "Account of the screen"},
    {"Ctrl+C, Ctrl+V", "Copy, paste"},
    {"Ctrl+O", "Open a firm"},
    {"Ctrl+T", "Statement of account"},
    {"Ctrl+L", "Accounts"},
    {"Alt", "Menus"},
};

}  // namespace

KeysDialog::KeysDialog(const Form* form, int context, QWidget* parent)
    : DeskDialog(QStringLiteral("Keys"), parent), table_(new QGridLayout) {
  table_->setVerticalSpacing(Scale::Px(kRowGap));
  table_->setColumnMinimumWidth(0, Scale::Px(kKeyWidth));
  table_->setColumnMinimumWidth(1, Scale::Px(kWordsWidth));
  AddText(context);
  if (form != nullptr) AddKeysOf(*form);
  AddHeading(QStringLiteral("Everywhere"));
  for (const KeyLine& line : kEverywhere)
    AddKey(QString::fromLatin1(line.key), QString::fromLatin1(line.what));
  Content().addLayout(table_);
  PushButton& close = AddButton(QStringLiteral("Esc: Close"), [this] { reject(); });
  close.setDefault(true);
  close.setFocus();
}

/// The file of that number in the folder of help.
void KeysDialog::AddText(int context) {
  InitHelp();
  QFile file(QStringLiteral(":/help/%1.txt").arg(context));
  if (!file.open(QIODevice::ReadOnly)) return;
  auto* const text = new QLabel(QString::fromUtf8(file.readAll()).trimmed(), this);
  text->setTextFormat(Qt::PlainText);
  text->setWordWrap(true);
  text->setFixedWidth(Scale::Px(kKeyWidth + kWordsWidth));
  Content().addWidget(text);
}

void KeysDialog::AddHeading(const QString& text) {
  auto* const heading = new QLabel(text, this);
  QFont bold = font();
  bold.setBold(true);
  heading->setFont(bold);
  const int row = table_->rowCount();
  table_->addWidget(heading, row, 0, 1, 2);
}

void KeysDialog::AddKey(const QString& key, const QString& what, bool enabled) {
  auto* const name = new QLabel(key, this);
  auto* const words = new QLabel(enabled ? what : what + QStringLiteral("   (off)"), this);
  QPalette accent = palette();
  accent.setColor(QPalette::WindowText, enabled ? Theme::Accent() : Theme::Off());
  name->setPalette(accent);
  const int row = table_->rowCount();
  table_->addWidget(name, row, 0);
  table_->addWidget(words, row, 1);
}

void KeysDialog::AddKeysOf(const Form& form) {
  const auto add = [this](const std::string& caption, const std::string& more, bool enabled) {
    const QString all = QString::fromStdString(caption).remove(QLatin1Char('&'));
    if (!all.contains(QLatin1Char(':'))) return;
    const QString what = all.section(QLatin1Char(':'), 1).trimmed();
    const QString told = QString::fromStdString(more);
    AddKey(all.section(QLatin1Char(':'), 0, 0).trimmed(), told.isEmpty() || told == what ? what : told,
           enabled);
  };
  AddHeading(QString::fromStdString(form.Caption).trimmed());
  for (Control* control : form.Controls()) {
    if (!control->Visible) continue;
    if (auto* bar = dynamic_cast<CButtonBar*>(control)) {
      for (int i = 0; i < bar->Count(); ++i) {
        const CButtonBar::Button& button = bar->Buttons(i);
        if (button.Visible() && !button.Caption().empty())
          add(button.Caption(), button.ToolTip(), button.Enabled());
      }
    } else if (auto* button = dynamic_cast<CommandButton*>(control)) {
      add(button->Caption(), "", button->Enabled);
    }
  }
}

}  // namespace quillon
