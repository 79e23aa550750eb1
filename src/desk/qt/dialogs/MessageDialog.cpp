#include "desk/qt/dialogs/MessageDialog.h"

#include <QApplication>
#include <QKeyEvent>
#include <QLabel>
#include <QPlainTextEdit>

#include "desk/qt/adapters/Icons.h"
#include "desk/qt/adapters/PushButton.h"
#include "desk/qt/adapters/Scale.h"

namespace quillon {

namespace {

constexpr long kIcon = 480;
constexpr long kWidest = 7500;
constexpr long kNarrowest = 3000;
constexpr long kDetails = 1800;
constexpr qsizetype kLongestUnbroken = 60;
constexpr char16_t kBreak = u'\u200B';

QString PictureOf(const std::string& icon) {
  if (icon == "Q") return QStringLiteral("question");
  if (icon == "W") return QStringLiteral("warning");
  if (icon == "E") return QStringLiteral("error");
  return QStringLiteral("information");
}

/// Lists and paths without blanks may break behind their commas and slashes.
QString WithBreaks(const QString& text) {
  QString shown = text;
  if (text.size() > kLongestUnbroken) {
    for (const char16_t mark : {u',', u'/'}) shown.replace(QChar(mark), QString(QChar(mark)) + QChar(kBreak));
  }
  return shown;
}

}  // namespace

MessageDialog::MessageDialog(const MessageRequest& request, QWidget* parent)
    : DeskDialog(QString::fromStdString(request.Title), parent),
      taken_(static_cast<int>(request.Buttons.size())) {
  auto* const line = new QHBoxLayout;
  auto* const icon = new QLabel(this);
  icon->setPixmap(Icons::Picture(PictureOf(request.Icon), Scale::Px(kIcon), devicePixelRatioF()));
  icon->setAccessibleName(PictureOf(request.Icon));
  line->addWidget(icon, 0, Qt::AlignTop);
  line->addSpacing(Scale::Px(kIcon) / 3);
  auto* const text = new QLabel(WithBreaks(QString::fromStdString(request.Text)), this);
  text->setTextFormat(Qt::PlainText);
  text->setWordWrap(true);
  text->setTextInteractionFlags(Qt::TextSelectableByMouse);
  const QRect needed = text->fontMetrics().boundingRect(QRect(0, 0, Scale::Px(kWidest), 10000),
                                                        Qt::TextWordWrap, text->text());
  text->setMinimumSize(std::max(needed.width() + 2, Scale::Px(kNarrowest)), needed.height());
  line->addWidget(text, 1, Qt::AlignVCenter);
  Content().addLayout(line);
  setAccessibleDescription(QString::fromStdString(request.Text));
  if (!request.Details.empty()) AddDetails(QString::fromStdString(request.Details));
  for (std::size_t i = 0; i < request.Buttons.size(); ++i) {
    const int number = static_cast<int>(i) + 1;
    PushButton& button = AddButton(QString::fromStdString(request.Buttons[i]), [this, number] {
      taken_ = number;
      accept();
    });
    buttons_.append(&button);
    if (number == request.Default) {
      button.setDefault(true);
      button.setFocus();
    }
  }
}

void MessageDialog::AddDetails(const QString& details) {
  auto* const box = new QPlainTextEdit(details, this);
  box->setReadOnly(true);
  box->setAccessibleName(QStringLiteral("Details"));
  box->setFixedHeight(Scale::Px(kDetails));
  box->hide();
  Content().addWidget(box);
  PushButton& button = AddButton(QStringLiteral("Details"), [this, box] {
    box->setVisible(!box->isVisible());
    adjustSize();
  });
  button.setAutoDefault(false);
}

int MessageDialog::Ask() {
  exec();
  return taken_;
}

void MessageDialog::keyPressEvent(QKeyEvent* event) {
  for (PushButton* button : buttons_) {
    const QString caption = button->accessibleName();
    if (!event->text().isEmpty() && caption.startsWith(event->text(), Qt::CaseInsensitive)) {
      button->click();
      return;
    }
  }
  DeskDialog::keyPressEvent(event);
}

}  // namespace quillon
