#include "desk/qt/dialogs/PartyDialog.h"

#include <QComboBox>
#include <QLabel>
#include <QLineEdit>

#include "host/data/CDataSet.h"
#include "host/services/ISession.h"
#include "host/services/IStd.h"
#include "host/values/Text.h"

namespace quillon {

namespace {

QStringList TextsOf(const std::string& sql) {
  QStringList texts{QStringLiteral("All")};
  CDataSet rows;
  for (rows.Open(sql, gSession->MainDb()); !rows.Eof(); rows.MoveNext()) {
    texts << QString::fromStdString(rows.Field(std::size_t{0}).ToText());
  }
  return texts;
}

}  // namespace

PartyDialog::PartyDialog(const PartiesRequest& request, QWidget* parent)
    : DeskDialog(QStringLiteral("Select Parties"), parent), request_(request), name_(new QLineEdit(this)) {
  Content().addWidget(new QLabel(QStringLiteral("Name begins with"), this));
  name_->setAccessibleName(QStringLiteral("Name begins with"));
  Content().addWidget(name_);
  station_ = AddChoice(QStringLiteral("Station"),
                       TextsOf("Select distinct mst from FAMaster where mst<>'' order by mst"));
  group_ = AddChoice(QStringLiteral("Group"), TextsOf("Select CtgName from CtgMaster order by CtgName"));
  order_ = AddChoice(QStringLiteral("Sorted by"), {QStringLiteral("Name"), QStringLiteral("Station")});
  AddOkCancel();
  name_->setFocus();
}

QComboBox* PartyDialog::AddChoice(const QString& caption, const QStringList& items) {
  Content().addWidget(new QLabel(caption, this));
  auto* const choice = new QComboBox(this);
  choice->setAccessibleName(caption);
  choice->addItems(items);
  Content().addWidget(choice);
  return choice;
}

PartiesRequest PartyDialog::Answer() const {
  PartiesRequest answer = request_;
  const std::string field = request_.Alias + ".";
  std::vector<std::string> conditions;
  std::vector<std::string> words;
  const auto add = [&](const std::string& condition, const std::string& word) {
    conditions.push_back(condition);
    words.push_back(word);
  };
  const std::string name = name_->text().trimmed().toStdString();
  if (!name.empty()) {
    add("upper(" + field + "mhd) starting with " + gStd->SqlString(text::Upper(name)), "Name: " + name);
  }
  if (station_->currentIndex() > 0) {
    const std::string station = station_->currentText().toStdString();
    add(field + "mst=" + gStd->SqlString(station), "Station: " + station);
  }
  if (group_->currentIndex() > 0) {
    const std::string group = group_->currentText().toStdString();
    add(field + "mbshno in (Select CtgNo from CtgMaster where CtgName=" + gStd->SqlString(group) + ")",
        "Group: " + group);
  }
  answer.Clause = text::Join(conditions, " and ");
  answer.Caption = text::Join(words, ", ");
  answer.OrderBy =
      order_->currentIndex() == 0 ? field + "mhd," + field + "mst" : field + "mst," + field + "mhd";
  return answer;
}

}  // namespace quillon
