#include "host/CDataSet.h"

#include <algorithm>

#include "host/Errors.h"
#include "host/Text.h"

namespace quillon {

void CDataSet::Open(const std::string& sql, CDbLink& link, int /*cursorMode*/, int lockMode) {
  Close();
  rows_ = link.OpenRows(sql, lockMode == kLockOptimistic, CursorLocation == kUseClient);
  Go(0);
  empty_ = atEnd_;
}

void CDataSet::SetActiveConnection(std::nullptr_t) { Opened().Detach(); }

RowSet& CDataSet::Opened() const {
  if (!rows_) throw HostError("The data set is not open");
  return *rows_;
}

std::size_t CDataSet::IndexOf(const std::string& name) const {
  const std::vector<std::string>& names = Opened().FieldNames();
  for (std::size_t i = 0; i < names.size(); ++i) {
    if (names[i] == name) return i;
  }
  const std::string wanted = text::Upper(name);
  for (std::size_t i = 0; i < names.size(); ++i) {
    if (text::Upper(names[i]) == wanted) return i;
  }
  throw SubscriptError(name);
}

Variant CDataSet::Field(const std::string& name) const { return Field(IndexOf(name)); }

Variant CDataSet::Field(std::size_t index) const {
  if (index >= Opened().FieldNames().size()) throw SubscriptError(std::to_string(index));
  for (const auto& [field, value] : changed_) {
    if (field == index) return value;
  }
  if (adding_) return Variant::Null();
  if (row_ < 0 || atEnd_) throw HostError("There is no current record");
  return rows_->Value(row_, index);
}

const std::vector<std::string>& CDataSet::FieldNames() const { return Opened().FieldNames(); }

void CDataSet::SetField(const std::string& name, const Variant& value) {
  const std::size_t index = IndexOf(name);
  if (!adding_ && (row_ < 0 || atEnd_)) throw HostError("There is no current record");
  const auto old =
      std::find_if(changed_.begin(), changed_.end(), [&](const auto& f) { return f.first == index; });
  if (old != changed_.end()) {
    old->second = value;
  } else {
    changed_.emplace_back(index, value);
  }
}

void CDataSet::AddNew() {
  Opened();
  changed_.clear();
  adding_ = true;
}

void CDataSet::Update() {
  RowSet& rows = Opened();
  if (adding_) {
    rows.Append(changed_);
    adding_ = false;
    changed_.clear();
    Go(rows.Count() - 1);
  } else if (!changed_.empty()) {
    rows.Write(row_, changed_);
    changed_.clear();
  }
}

void CDataSet::Go(std::int64_t row) {
  changed_.clear();
  adding_ = false;
  row_ = row;
  atEnd_ = row >= 0 && !Opened().Seek(row);
}

void CDataSet::MoveFirst() { Go(0); }

void CDataSet::MoveNext() {
  if (row_ >= 0 && atEnd_) throw HostError("There is no current record");
  Go(row_ + 1);
}

void CDataSet::MovePrevious() {
  if (row_ < 0) throw HostError("There is no current record");
  Go((atEnd_ ? Opened().Count() : row_) - 1);
}

void CDataSet::MoveLast() { Go(std::max<std::int64_t>(RecordCount() - 1, 0)); }

std::int64_t CDataSet::RecordCount() { return Opened().Count(); }

void CDataSet::Find(const std::string& criteria) {
  const std::size_t sign = criteria.find('=');
  if (sign == std::string::npos) throw HostError("A search needs the form NAME=number: " + criteria);
  const std::size_t field = IndexOf(text::Trim(criteria.substr(0, sign)));
  const Amount wanted = Amount::OfText(criteria.substr(sign + 1));
  for (MoveFirst(); !Eof(); MoveNext()) {
    const Variant value = Field(field);
    if (!value.IsNull() && value.ToAmount() == wanted) return;
  }
}

void CDataSet::Close() {
  rows_.reset();
  changed_.clear();
  adding_ = false;
  row_ = -1;
  atEnd_ = empty_ = true;
}

}  // namespace quillon
