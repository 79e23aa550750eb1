#include "desk/firebird/FirebirdField.h"

#include <algorithm>
#include <array>
#include <cstdio>
#include <cstring>

#include "desk/firebird/FirebirdStatus.h"
#include "host/values/Errors.h"
#include "host/values/Text.h"

namespace quillon {

namespace {

constexpr int kAmountDecimals = 4;
constexpr unsigned kOctets = 1;
constexpr int kDaysTo1970 = 40587;  // the engine counts from 17 November 1858
constexpr unsigned kBytesPerCharacter = 4;
constexpr unsigned kTicksPerSecond = 10000;

template <class T>
T Load(const unsigned char* at) {
  T value;
  std::memcpy(&value, at, sizeof value);
  return value;
}

template <class T>
void Store(unsigned char* at, T value) {
  std::memcpy(at, &value, sizeof value);
}

std::int64_t TenTo(int power) {
  std::int64_t value = 1;
  for (; power > 0; --power) value *= 10;
  return value;
}

/// A number of `from` decimals as one of `to`; ties go to the even digit.
std::int64_t Rescaled(std::int64_t value, int from, int to) {
  if (to >= from) {
    std::int64_t result = 0;
    if (__builtin_mul_overflow(value, TenTo(to - from), &result)) throw OverflowError();
    return result;
  }
  const std::int64_t divisor = TenTo(from - to);
  const std::int64_t quotient = value / divisor;
  const std::int64_t rest = std::abs(value % divisor);
  const bool up = rest * 2 > divisor || (rest * 2 == divisor && quotient % 2 != 0);
  return quotient + (up ? (value < 0 ? -1 : 1) : 0);
}

FirebirdField::Kind KindOf(const FirebirdField& field) {
  using Kind = FirebirdField::Kind;
  switch (field.Type) {
    case SQL_SHORT:
    case SQL_LONG:
    case SQL_INT64:
      return field.Scale == 0 ? Kind::kInteger : Kind::kAmount;
    case SQL_FLOAT:
    case SQL_DOUBLE:
    case SQL_D_FLOAT:
      return Kind::kDouble;
    case SQL_BOOLEAN:
      return Kind::kFlag;
    case SQL_TYPE_DATE:
    case SQL_TIMESTAMP:
      return Kind::kDate;
    case SQL_TYPE_TIME:
      return Kind::kTime;
    case SQL_BLOB:
      return Kind::kBlob;
    default:
      return Kind::kText;
  }
}

void PutWhole(const FirebirdField& field, unsigned char* at, std::int64_t number) {
  if (field.Type == SQL_INT64) return Store<std::int64_t>(at, number);
  const bool isShort = field.Type == SQL_SHORT;
  const std::int64_t limit = isShort ? INT16_MAX : INT32_MAX;
  if (number > limit || number < -limit - 1) throw OverflowError();
  if (isShort) {
    Store(at, static_cast<std::int16_t>(number));
  } else {
    Store(at, static_cast<std::int32_t>(number));
  }
}

void PutText(const FirebirdField& field, unsigned char* at, const std::string& value) {
  const bool varies = field.Type == SQL_VARYING;
  // The engine reserves four bytes for a character; a text may use them for fewer bytes only.
  const std::size_t room = field.CharSet == kOctets ? field.Length : field.Length / kBytesPerCharacter;
  const bool fits = value.size() <= room || (field.CharSet != kOctets && text::Length(value) <= room);
  if (!fits || value.size() > field.Length) {
    throw HostError("The text is longer than the " + std::to_string(room) +
                    " characters that its place holds: " + value);
  }
  if (varies) {
    Store(at, static_cast<std::uint16_t>(value.size()));
    at += sizeof(std::uint16_t);
  } else {
    std::memset(at, field.CharSet == kOctets ? 0 : ' ', field.Length);
  }
  std::copy(value.begin(), value.end(), at);
}

std::int32_t EngineDay(const Variant& value) {
  const Date date = value.ToDate();
  if (date.IsEmpty()) throw HostError("This is no date: " + value.ToText());
  return static_cast<std::int32_t>(Date::Days(Date::Of(1970, 1, 1), date) + kDaysTo1970);
}

}  // namespace

bool FirebirdField::IsPadded() const { return Type == SQL_TEXT && CharSet != kOctets; }

bool FirebirdField::IsNull(const unsigned char* message) const {
  return Load<std::int16_t>(message + NullOffset) != 0;
}

void FirebirdField::SetNull(unsigned char* message, bool null) const {
  Store<std::int16_t>(message + NullOffset, null ? -1 : 0);
}

std::int64_t FirebirdField::Whole(const unsigned char* message) const {
  const unsigned char* at = message + Offset;
  switch (Type) {
    case SQL_BOOLEAN:
      return *at;
    case SQL_TYPE_DATE:
    case SQL_TIMESTAMP:
      return Load<std::int32_t>(at) - kDaysTo1970;
    default:
      break;
  }
  const std::int64_t number = Type == SQL_SHORT  ? Load<std::int16_t>(at)
                              : Type == SQL_LONG ? Load<std::int32_t>(at)
                                                 : Load<std::int64_t>(at);
  return Holds == Kind::kAmount ? Rescaled(number, -Scale, kAmountDecimals) : number;
}

double FirebirdField::Real(const unsigned char* message) const {
  const unsigned char* at = message + Offset;
  return Type == SQL_FLOAT ? Load<float>(at) : Load<double>(at);
}

std::string FirebirdField::Text(const unsigned char* message) const {
  const unsigned char* at = message + Offset;
  if (Holds == Kind::kTime) {
    const unsigned seconds = Load<std::uint32_t>(at) / kTicksPerSecond;
    std::array<char, 16> text{};
    std::snprintf(text.data(), text.size(), "%02u:%02u:%02u", seconds / 3600 % 24, seconds / 60 % 60,
                  seconds % 60);
    return text.data();
  }
  if (Type == SQL_VARYING) {
    const auto length = Load<std::uint16_t>(at);
    return {reinterpret_cast<const char*>(at) + sizeof length, length};
  }
  std::size_t length = Length;
  if (IsPadded()) {
    while (length > 0 && at[length - 1] == ' ') --length;
  }
  return {reinterpret_cast<const char*>(at), length};
}

void FirebirdField::Put(unsigned char* message, const Variant& value) const {
  unsigned char* at = message + Offset;
  switch (Holds) {
    case Kind::kInteger:
      return PutWhole(*this, at, value.ToInteger());
    case Kind::kAmount:
      return PutWhole(*this, at, Rescaled(value.ToAmount().Units(), kAmountDecimals, -Scale));
    case Kind::kDouble:
      if (Type == SQL_FLOAT) return Store(at, static_cast<float>(value.ToDouble()));
      return Store(at, value.ToDouble());
    case Kind::kFlag:
      *at = value.ToFlag() ? 1 : 0;
      return;
    case Kind::kDate:
      Store(at, EngineDay(value));
      if (Type == SQL_TIMESTAMP) Store<std::uint32_t>(at + sizeof(std::int32_t), 0);
      return;
    case Kind::kText:
      return PutText(*this, at, value.Is<Date>() ? value.As<Date>().Format("yyyy-MM-dd") : value.ToText());
    default:
      throw HostError("A value cannot be given for the field " + Name);
  }
}

std::vector<FirebirdField> FirebirdField::Describe(Firebird::IMessageMetadata& metadata,
                                                   const std::string& statement) {
  FirebirdStatus status(statement);
  std::vector<FirebirdField> fields(metadata.getCount(&status));
  for (unsigned i = 0; i < fields.size(); ++i) {
    FirebirdField& field = fields[i];
    field.Name = metadata.getAlias(&status, i);
    field.Relation = metadata.getRelation(&status, i);
    field.Column = metadata.getField(&status, i);
    field.Type = metadata.getType(&status, i) & ~1U;
    field.Length = metadata.getLength(&status, i);
    field.Offset = metadata.getOffset(&status, i);
    field.NullOffset = metadata.getNullOffset(&status, i);
    field.CharSet = metadata.getCharSet(&status, i);
    field.Scale = metadata.getScale(&status, i);
    field.Holds = KindOf(field);
  }
  return fields;
}

}  // namespace quillon
