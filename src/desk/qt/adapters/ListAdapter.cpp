#include "desk/qt/adapters/ListAdapter.h"

#include <QListWidget>
#include <QMouseEvent>

#include "desk/qt/adapters/Acts.h"
#include "desk/qt/adapters/Scale.h"

namespace quillon {

namespace {

constexpr long kCheckWidth = 330;

}  // namespace

ListAdapter::ListAdapter(ListBox& model, QWidget* parent)
    : Adapter(model, new QListWidget(parent)), list_(model) {
  auto& shown = static_cast<QListWidget&>(Widget());
  shown.setSelectionMode(QAbstractItemView::SingleSelection);
  shown.viewport()->installEventFilter(this);
}

void ListAdapter::Draw() {
  auto& shown = static_cast<QListWidget&>(Widget());
  while (shown.count() > list_.ListCount()) delete shown.takeItem(shown.count() - 1);
  while (shown.count() < list_.ListCount()) shown.addItem(QString());
  for (int i = 0; i < list_.ListCount(); ++i) {
    QListWidgetItem* const item = shown.item(i);
    item->setText(QString::fromStdString(list_.List(i)));
    if (list_.CheckBoxes) item->setCheckState(list_.Selected(i) ? Qt::Checked : Qt::Unchecked);
  }
  shown.setCurrentRow(list_.ListIndex());
}

bool ListAdapter::eventFilter(QObject* /*watched*/, QEvent* event) {
  if (event->type() == QEvent::MouseButtonRelease || event->type() == QEvent::MouseMove) return true;
  if (event->type() != QEvent::MouseButtonPress && event->type() != QEvent::MouseButtonDblClick) return false;
  const QPoint place = static_cast<QMouseEvent*>(event)->position().toPoint();
  auto& shown = static_cast<QListWidget&>(Widget());
  const QListWidgetItem* const item = shown.itemAt(place);
  if (item == nullptr) return true;
  const int row = shown.row(item);
  Acts::Run([&] { list_.UserChoose(row); });
  if (list_.CheckBoxes && place.x() < Scale::Px(kCheckWidth) && row < list_.ListCount()) {
    Acts::Run([&] { list_.UserCheck(row, !list_.Selected(row)); });
  }
  return true;
}

}  // namespace quillon
