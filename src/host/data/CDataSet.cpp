#include "host/data/CDataSet.h"

#include <algorithm>

#include "host/values/Errors.h"
#include "host/values/Text.h"

namespace quillon {

namespace {

char Capital(char c) { return c >= 'a' && c <= 'z' ? static_cast<char>(c - 'a' + 'A') : c; }

bool SameName(const std::string& a, const std::string& b) {
  return a.size() == b.size() &&
         std::equal(a.begin(), a.end(), b.begin(), [](char x, char y) { return Capital(x) == Capital(y); });
}

}  // namespace

void CDataSet::Open(const std::string& sql, CDbLink& link, int /*cursorMode*/, int lockMode) {
  Close();
  std::unique_ptr<RowSet> rows =
      link.OpenRows(sql, {lockMode == kLockOptimistic, CursorLocation == kUseClient, Reads});
  empty_ = atEnd_ = !rows->Seek(0);
  rows_ = std::move(rows);
  row_ = 0;
  NoteNames();
}

void CDataSet::SetActiveConnection(std::nullptr_t) { Opened().Detach(); }

RowSet& CDataSet::Opened() const {
  if (!rows_) throw HostError("The data set is not open");
  return *rows_;
}

std::size_t CDataSet::IndexOf(const std::string& name) const {
  // Forms read the same fields row after row, mostly in the same order: the search goes on where the last one
  // ended.
  const std::vector<std::string>& names = Opened().FieldNames();
  const auto start = names.begin() + static_cast<std::ptrdiff_t>(std::min(nextField_, names.size()));
  const auto isWanted = [&](const std::string& field) { return SameName(field, name); };
  auto found = std::find_if(start, names.end(), isWanted);
  if (found == names.end()) {
    found = std::find_if(names.begin(), start, isWanted);
    if (found == start) throw SubscriptError(name);
  }
  const auto index = static_cast<std::size_t>(found - names.begin());
  nextField_ = index + 1;
  return firstOfName_[index];
}

void CDataSet::NoteNames() {
  const std::vector<std::string>& names = rows_->FieldNames();
  firstOfName_.clear();
  for (std::size_t i = 0; i < names.size(); ++i) {
    const auto same = [&](const std::string& other) { return SameName(other, names[i]); };
    firstOfName_.push_back(
        static_cast<std::size_t>(std::find_if(names.begin(), names.end(), same) - names.begin()));
  }
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
    empty_ = false;
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
  nextField_ = 0;
  atEnd_ = empty_ = true;
}

std::vector<std::string> FirstColumn(const std::string& query, CDbLink& db) {
  std::vector<std::string> texts;
  CDataSet rows;
  for (rows.Open(query, db); !rows.Eof(); rows.MoveNext()) {
    if (const Variant text = rows.Field(std::size_t{0}); !text.IsNull()) texts.push_back(text.ToText());
  }
  return texts;
}

}  // namespace quillon
