#include "desk/qt/dialogs/KeysDialog.h"

#include <QFile>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <algorithm>

#include "desk/qt/adapters/PushButton.h"
#include "desk/qt/adapters/Scale.h"
#include "desk/qt/adapters/Theme.h"
#include "host/controls/CButtonBar.h"
#include "host/controls/CommandButton.h"
#include "host/controls/EditableGrid.h"
#include "host/forms/Form.h"

/// A resource inside a static library has to be asked for, outside every namespace.
static void InitHelp() { Q_INIT_RESOURCE(help); }

namespace quillon {

namespace {

constexpr long kKeyWidth = 1500;
constexpr long kWordsWidth = 3600;
constexpr long kRowGap = 60;
constexpr long kColumnGap = 450;

const QString kBetween = QStringLiteral(" | ");  // a key and its words

struct KeyLine {
  const char* key;
  const char* what;
};

constexpr KeyLine kEverywhere[] = {
    {"Enter, Tab", "Next field"},
    {"Shift+Tab", "Field before"},
    {"Ctrl+Tab", "Next window"},
    {"Ctrl+M", "Account of the screen"},
    {"Ctrl+C, Ctrl+X, Ctrl+V", "Copy, cut, paste"},
    {"Ctrl+O", "Open a firm"},
    {"Ctrl+T", "Statement of account"},
    {"Ctrl+L", "Accounts"},
    {"Alt", "Menus"},
};

constexpr KeyLine kInGrid[] = {
    {"Arrows, Page Up, Page Down", "Move"},
    {"Home, End", "First, last row"},
    {"Shift and these", "Select rows and blocks"},
    {"Ctrl+A", "Select all"},
    {"Ctrl+C", "Copy what is selected"},
    {"Ctrl+Shift+C", "Copy it with the headings"},
    {"Ctrl+Space", "The cell in full"},
    {"Ctrl+F", "Find"},
    {"Ctrl+G, Ctrl+Shift+G", "Find the next, the one before"},
};

constexpr KeyLine kInEditedGrid[] = {
    {"Enter, F2", "Change the cell, where it may be"},
    {"Ctrl+V", "Paste; several lines go down the column"},
    {"Del", "Empty the cell"},
};

constexpr KeyLine kLook[] = {
    {"Click on a heading", "Sort for looking"},
    {"Ctrl+Shift+F", "Show only the rows that have a text"},
};

constexpr KeyLine kUndo[] = {{"Ctrl+Z, Ctrl+Y", "Take back, put back"}};

}  // namespace

KeysDialog::KeysDialog(const Form* form, int context, QWidget* parent)
    : DeskDialog(QStringLiteral("Keys"), parent), columns_(new QHBoxLayout) {
  columns_->setSpacing(Scale::Px(kColumnGap));
  AddText(context);
  Content().addLayout(columns_);
  AddColumn();
  if (form != nullptr) AddKeysOf(*form);
  AddHeading(QStringLiteral("Everywhere"));
  for (const KeyLine& line : kEverywhere)
    AddKey(QString::fromLatin1(line.key), QString::fromLatin1(line.what));
  if (form != nullptr) AddGridKeys(*form);
  PushButton& close = AddButton(QStringLiteral("Esc: Close"), [this] { reject(); });
  close.setDefault(true);
  close.setFocus();
}

void KeysDialog::AddColumn() {
  auto* const column = new QVBoxLayout;
  table_ = new QGridLayout;
  table_->setVerticalSpacing(Scale::Px(kRowGap));
  table_->setColumnMinimumWidth(0, Scale::Px(kKeyWidth));
  table_->setColumnMinimumWidth(1, Scale::Px(kWordsWidth));
  column->addLayout(table_);
  column->addStretch();
  columns_->addLayout(column);
}

/// The file of that number in the folder of help.
void KeysDialog::AddText(int context) {
  InitHelp();
  QFile file(QStringLiteral(":/help/%1.txt").arg(context));
  if (!file.open(QIODevice::ReadOnly)) return;
  QStringList words;
  for (const QString& line : QString::fromUtf8(file.readAll()).trimmed().split(QLatin1Char('\n'))) {
    (line.contains(kBetween) ? keyLines_ : words) << line;
  }
  auto* const text = new QLabel(words.join(QLatin1Char('\n')), this);
  text->setTextFormat(Qt::PlainText);
  text->setWordWrap(true);
  text->setMinimumWidth(Scale::Px(kKeyWidth + kWordsWidth));
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
  for (const QString& line : keyLines_) AddKey(line.section(kBetween, 0, 0), line.section(kBetween, 1));
}

/// Of the grid that its user sees.
void KeysDialog::AddGridKeys(const Form& form) {
  const std::vector<Control*>& controls = form.Controls();
  const auto shown = std::find_if(controls.begin(), controls.end(), [](const Control* control) {
    return control->Visible && dynamic_cast<const GridModel*>(control) != nullptr;
  });
  if (shown == controls.end()) return;
  AddColumn();
  AddHeading(QStringLiteral("In the grid"));
  const auto add = [this](const auto& lines) {
    for (const KeyLine& line : lines) AddKey(QString::fromLatin1(line.key), QString::fromLatin1(line.what));
  };
  add(kInGrid);
  const auto* const edited = dynamic_cast<const EditableGrid*>(*shown);
  if (edited != nullptr && edited->BeforeEdit) add(kInEditedGrid);
  const auto& grid = dynamic_cast<const GridModel&>(**shown);
  if (grid.Undo) add(kUndo);
  if (grid.Look.IsAllowed) add(kLook);
}

}  // namespace quillon
