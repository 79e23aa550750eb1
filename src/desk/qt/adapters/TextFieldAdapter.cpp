#include "desk/qt/adapters/TextFieldAdapter.h"

#include <QToolButton>

#include "desk/qt/adapters/Acts.h"
#include "desk/qt/adapters/BoxEdit.h"
#include "desk/qt/adapters/ElidedLabel.h"
#include "desk/qt/adapters/Icons.h"
#include "desk/qt/adapters/Scale.h"

namespace quillon {

TextFieldAdapter::TextFieldAdapter(CTextPlus& model, QWidget* parent)
    : Adapter(model, new QWidget(parent)),
      field_(model),
      label_(new ElidedLabel(&Widget())),
      box_(new BoxEdit(model.TextBox, model, &Widget())),
      pick_(new QToolButton(&Widget())) {
  Widget().setFocusPolicy(Qt::NoFocus);
  pick_->setFocusPolicy(Qt::NoFocus);
  pick_->setIcon(Icons::Of(QStringLiteral("search")));
  pick_->setAccessibleName(QStringLiteral("Pick"));
  pick_->setToolTip(QStringLiteral("Arrow down"));
  connect(pick_, &QToolButton::clicked, this, [this] { Acts::Run([this] { field_.UserPickButton(); }); });
  field_.TextBox.AddListener(*this);
}

TextFieldAdapter::~TextFieldAdapter() { field_.TextBox.RemoveListener(*this); }

QWidget* TextFieldAdapter::FocusWidget() { return box_; }

void TextFieldAdapter::Arrange() {
  const int width = Widget().width();
  const int height = Widget().height();
  const int label = field_.Caption().empty() ? 0 : std::min(Scale::Px(field_.LabelWidth), width);
  const int pick = field_.PickButton ? height : 0;
  label_->setGeometry(0, 0, label, height);
  box_->setGeometry(label, 0, width - label - pick, height);
  pick_->setGeometry(width - pick, 0, pick, height);
  label_->setVisible(label > 0);
  pick_->setVisible(pick > 0);
}

void TextFieldAdapter::Draw() {
  Arrange();
  label_->setText(QString::fromStdString(field_.Caption));
  box_->setAccessibleName(QString::fromStdString(field_.Caption));
  box_->setPalette(Widget().palette());
  box_->ShowBox();
}

void TextFieldAdapter::Settle() { box_->ShowBox(); }

}  // namespace quillon
