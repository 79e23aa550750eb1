#include "desk/firebird/RowStore.h"

#include <algorithm>
#include <cstring>

#include "desk/firebird/FirebirdStatement.h"

namespace quillon {

namespace {

constexpr std::size_t kSlot = 8;
constexpr std::size_t kBlock = std::size_t{256} * 1024;

struct TextPlace {
  std::uint32_t At;
  std::uint32_t Size;
};

template <class T>
T Load(const char* at) {
  T value;
  std::memcpy(&value, at, sizeof value);
  return value;
}

}  // namespace

Variant RowStore::Value(std::int64_t row, std::size_t field) const {
  const char* start = rows_[static_cast<std::size_t>(row)];
  if (start[field]) return Variant::Null();
  const char* slot = start + Head() + field * kSlot;
  switch (kinds_[field]) {
    case FirebirdField::Kind::kInteger:
      return Load<std::int64_t>(slot);
    case FirebirdField::Kind::kAmount:
      return Amount::OfUnits(Load<std::int64_t>(slot));
    case FirebirdField::Kind::kFlag:
      return Load<std::int64_t>(slot) != 0;
    case FirebirdField::Kind::kDouble:
      return Load<double>(slot);
    case FirebirdField::Kind::kDate:
      return Load<Date>(slot);
    default: {
      const auto place = Load<TextPlace>(slot);
      return std::string(start + place.At, place.Size);
    }
  }
}

void RowStore::Begin() { made_.assign(Head() + kinds_.size() * kSlot, '\0'); }

void RowStore::PutSlot(std::size_t field, const void* value) {
  std::memcpy(made_.data() + Head() + field * kSlot, value, kSlot);
}

void RowStore::PutText(std::size_t field, const std::string& text) {
  const TextPlace place{static_cast<std::uint32_t>(made_.size()), static_cast<std::uint32_t>(text.size())};
  made_ += text;
  PutSlot(field, &place);
}

const char* RowStore::Keep() {
  const std::size_t size = (made_.size() + kSlot - 1) / kSlot * kSlot;
  if (size > free_) {
    free_ = std::max(size, kBlock);
    next_ = blocks_.emplace_back(new char[free_]).get();
  }
  char* const place = next_;
  std::memcpy(place, made_.data(), made_.size());
  next_ += size;
  free_ -= size;
  return place;
}

void RowStore::Put(std::size_t field, const Variant& value) {
  using Kind = FirebirdField::Kind;
  std::int64_t whole = 0;
  switch (kinds_[field]) {
    case Kind::kInteger:
      whole = value.ToInteger();
      return PutSlot(field, &whole);
    case Kind::kAmount:
      whole = value.ToAmount().Units();
      return PutSlot(field, &whole);
    case Kind::kFlag:
      whole = value.ToFlag() ? 1 : 0;
      return PutSlot(field, &whole);
    case Kind::kDouble: {
      const double real = value.ToDouble();
      return PutSlot(field, &real);
    }
    case Kind::kDate: {
      const Date date = value.ToDate();
      std::memcpy(&whole, &date, sizeof date);
      return PutSlot(field, &whole);
    }
    default:
      return PutText(field, value.ToText());
  }
}

void RowStore::Add(FirebirdStatement& statement) {
  using Kind = FirebirdField::Kind;
  const std::vector<FirebirdField>& fields = statement.Outputs();
  const unsigned char* message = statement.Row();
  Begin();
  for (std::size_t i = 0; i < kinds_.size(); ++i) {
    const FirebirdField& field = fields[i];
    if (field.IsNull(message)) {
      made_[i] = 1;
    } else if (field.Holds == Kind::kDouble) {
      const double real = field.Real(message);
      PutSlot(i, &real);
    } else if (field.Holds == Kind::kText || field.Holds == Kind::kTime) {
      PutText(i, field.Text(message));
    } else if (field.Holds == Kind::kDate || field.Holds == Kind::kBlob) {
      Put(i, statement.Value(i));
    } else {
      const std::int64_t whole = field.Whole(message);
      PutSlot(i, &whole);
    }
  }
  rows_.push_back(Keep());
}

void RowStore::Pack(const std::vector<Variant>& values) {
  Begin();
  for (std::size_t i = 0; i < kinds_.size(); ++i) {
    if (values[i].IsNull() || values[i].IsEmpty()) {
      made_[i] = 1;
    } else {
      Put(i, values[i]);
    }
  }
}

void RowStore::Add(const std::vector<Variant>& values) {
  Pack(values);
  rows_.push_back(Keep());
}

void RowStore::Replace(std::int64_t row, const std::vector<Variant>& values) {
  Pack(values);
  rows_[static_cast<std::size_t>(row)] = Keep();
}

}  // namespace quillon
